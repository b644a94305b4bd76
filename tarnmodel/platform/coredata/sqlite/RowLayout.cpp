#include "tarnmodel/platform/coredata/sqlite/RowLayout.h"

#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"

namespace tarn {

RowLayout::RowLayout(const StoreSchema& schema, const NSEntityDescription& entity, RowContents contents)
    : entity_(entity), contents_(contents), hasDiscriminator_(schema.table(entity).hasDiscriminator),
      hasLargeColumns_(!schema.table(entity).largeColumns.empty())
{
    firstValue_ = hasDiscriminator_ ? 3 : 2; // after pk, rowVersion, entity
    if (contents != RowContents::Keys)
        addColumns(schema.table(entity).columns, false);
    if (contents == RowContents::WholeRow)
        addColumns(schema.table(entity).largeColumns, true);
    columnList_ = listOfColumns();
}

void RowLayout::addColumns(const std::vector<StoreColumn>& columns, bool large)
{
    for (const StoreColumn& column : columns) {
        const NSEntityDescription& declaring = column.property->declaringEntity();
        if (entity_.isKindOfEntity(declaring) || declaring.isKindOfEntity(entity_))
            columns_.push_back({&column, column.property, large});
    }
}

std::string RowLayout::listOfColumns() const
{
    constexpr std::size_t usualLength = 32;
    std::string sql;
    sql.reserve((columns_.size() + 3) * usualLength);
    const auto add = [&sql](std::string_view table, std::string_view column) {
        if (!sql.empty())
            sql += ", ";
        sql += table;
        sql += '.';
        appendQuotedIdentifier(sql, column);
    };
    add(rowAlias, "pk");
    add(rowAlias, "rowVersion");
    if (hasDiscriminator_)
        add(rowAlias, "entity");
    for (const Column& column : columns_)
        add(column.large ? largeAlias : rowAlias, column.stored->name);
    return sql;
}

const NSEntityDescription& RowLayout::concreteEntity(const SQLiteStatement& statement) const
{
    if (!hasDiscriminator_)
        return entity_;
    const std::string_view name = statement.bytes(2);
    if (name == entity_.name())
        return entity_;
    const NSEntityDescription* found = entity_.model().entityNamed(name);
    if (!found || &found->rootEntity() != &entity_.rootEntity())
        throw StoreFailure(
            StoreErrorCorrupt, "The store has a row of the unknown entity \"" + std::string(name) + "\".");
    return *found;
}

namespace {

void readValue(const SQLiteStatement& statement, int column, const NSPropertyDescription& property,
    PropertyValues& values, const StoreRow* before)
{
    if (statement.isNull(column))
        return;
    const PropertyIndex index = property.index();
    if (property.isRelationship())
        return values.setInteger(index, statement.integer(column));
    switch (static_cast<const NSAttributeDescription&>(property).type()) {
    case NSAttributeType::Double:
        return values.setDouble(index, statement.floating(column));
    case NSAttributeType::String:
    case NSAttributeType::Data:
        return values.setBytes(index, statement.bytes(column), before ? &before->values : nullptr);
    case NSAttributeType::Boolean:
        return values.setInteger(index, statement.integer(column) != 0 ? 1 : 0);
    default:
        return values.setInteger(index, statement.integer(column));
    }
}

} // namespace

StoreRow RowLayout::read(const SQLiteStatement& statement, const StoreRow* before) const
{
    const NSEntityDescription& entity = concreteEntity(statement);
    StoreRow row{&entity, statement.integer(0), statement.integer(1), {}};
    if (contents_ == RowContents::Keys)
        return row;
    const PropertyMask unread = contents_ == RowContents::Row ? entity.largeMask() : 0;
    row.values = PropertyValues(entity, entity.inverseColumnMask() | unread);
    int column = firstValue_;
    for (const Column& read : columns_) {
        if (entity.isKindOfEntity(read.property->declaringEntity()))
            readValue(statement, column, *read.property, row.values, before);
        ++column;
    }
    return row;
}

} // namespace tarn
