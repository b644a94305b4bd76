#include "tarnmodel/platform/coredata/sqlite/StoreSelects.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteFunctions.h"

namespace tarn {

// The texts -----------------------------------------------------------------------------------------------------------

StoreSelects::StoreSelects(const StoreSchema& schema, const NSManagedObjectModel& model) : schema_(schema)
{
    for (const NSEntityDescription* entity : model.entities()) {
        EntitySelects& selects = entities_[entity];
        for (const RowContents contents : {RowContents::Keys, RowContents::Row, RowContents::WholeRow})
            selects.push_back(entitySelect(schema, *entity, contents));
        for (const NSRelationshipDescription* relationship : entity->relationships())
            if (relationship->storage() != RelationshipStorage::Column)
                addRelationship(schema, *relationship);
    }
}

StoreSelects::EntitySelect StoreSelects::entitySelect(
    const StoreSchema& schema, const NSEntityDescription& entity, RowContents contents) const
{
    EntitySelect select{RowLayout(schema, entity, contents), {}, {}};
    const StoreTable& table = schema.table(entity);
    std::string sql = "SELECT " + select.layout.columnList() + " FROM " + quotedIdentifier(table.name) + " AS t0";
    if (select.layout.readsLargeTable())
        sql += " LEFT JOIN " + quotedIdentifier(table.largeName) + " AS large ON large.\"pk\" = t0.\"pk\"";
    std::string filter = entityCondition(entity, true, "t0");
    if (!filter.empty())
        filter = " AND " + filter;
    select.byKey = sql + " WHERE t0.\"pk\" = ?1" + filter;
    select.byKeys = sql + " WHERE t0.\"pk\" IN (SELECT \"value\" FROM value_list(?1))" + filter + " ORDER BY t0.\"pk\"";
    return select;
}

void StoreSelects::addRelationship(const StoreSchema& schema, const NSRelationshipDescription& relationship)
{
    const StoreTable& table = schema.table(relationship.destinationEntity());
    const std::string name = quotedIdentifier(table.name);
    const std::string entity = table.hasDiscriminator ? ", t0.\"entity\"" : "";
    RelationshipSelect select;
    select.readsEntity = table.hasDiscriminator;
    if (relationship.storage() == RelationshipStorage::InverseColumn) {
        const std::string from = " FROM " + name + " AS t0 WHERE t0."
            + quotedIdentifier(relationship.inverseRelationship().name()) + " = ?1";
        select.keys = "SELECT t0.\"pk\"" + entity + from + " ORDER BY t0.\"pk\"";
        select.count = "SELECT count(*)" + from;
    } else {
        const JoinDirection direction = joinDirection(schema, relationship);
        const std::string to = "j.\"" + std::string(direction.to) + "\"";
        const std::string from = " FROM " + quotedIdentifier(direction.table->name) + " AS j";
        const std::string where = " WHERE j.\"" + std::string(direction.from) + "\" = ?1";
        const std::string join = select.readsEntity ? " JOIN " + name + " AS t0 ON t0.\"pk\" = " + to : "";
        select.keys = "SELECT " + to + entity + from + join + where + " ORDER BY " + to;
        select.count = "SELECT count(*)" + from + where;
    }
    relationships_.emplace(&relationship, std::move(select));
}

// Reading -------------------------------------------------------------------------------------------------------------

std::optional<StoreRow> StoreSelects::row(
    SQLiteConnection& connection, const NSEntityDescription& entity, std::int64_t key, RowContents contents) const
{
    const EntitySelect& select = entities_.at(&entity)[static_cast<std::size_t>(contents)];
    SQLiteStatement statement = connection.prepare(select.byKey);
    statement.bindInteger(1, key);
    if (!statement.step())
        return std::nullopt;
    return select.layout.read(statement);
}

void StoreSelects::appendRows(SQLiteConnection& connection, const NSEntityDescription& entity,
    std::span<const std::int64_t> keys, RowContents contents, std::vector<StoreRow>& rows) const
{
    if (keys.size() == 1) {
        if (auto one = row(connection, entity, keys.front(), contents))
            rows.push_back(std::move(*one));
        return;
    }
    const EntitySelect& select = entities_.at(&entity)[static_cast<std::size_t>(contents)];
    SQLiteStatement statement = connection.prepare(select.byKeys);
    statement.bindPointer(1, &keys, keyListPointerType);
    while (statement.step())
        rows.push_back(select.layout.read(statement, rows.empty() ? nullptr : &rows.back()));
}

std::vector<RelatedKey> StoreSelects::related(
    SQLiteConnection& connection, const NSRelationshipDescription& relationship, std::int64_t key) const
{
    const RelationshipSelect& select = relationships_.at(&relationship);
    const NSEntityDescription& destination = relationship.destinationEntity();
    SQLiteStatement statement = connection.prepare(select.keys);
    statement.bindInteger(1, key);
    std::vector<RelatedKey> related;
    while (statement.step()) {
        const NSEntityDescription* entity
            = select.readsEntity ? destination.model().entityNamed(statement.bytes(1)) : &destination;
        if (!entity)
            throw StoreFailure(StoreErrorCorrupt, "The store has a row of an unknown entity.");
        related.push_back({entity, statement.integer(0)});
    }
    return related;
}

std::size_t StoreSelects::countOfRelated(
    SQLiteConnection& connection, const NSRelationshipDescription& relationship, std::int64_t key) const
{
    SQLiteStatement statement = connection.prepare(relationships_.at(&relationship).count);
    statement.bindInteger(1, key);
    return statement.step() ? static_cast<std::size_t>(statement.integer(0)) : 0;
}

std::optional<StoreRow> SQLiteRowReader::readRow(
    const NSEntityDescription& entity, std::int64_t key, RowContents contents) const
{
    return selects_.row(connection_, entity, key, contents);
}

std::vector<RelatedKey> SQLiteRowReader::readRelatedKeys(
    const NSRelationshipDescription& relationship, std::int64_t key) const
{
    return selects_.related(connection_, relationship, key);
}

} // namespace tarn
