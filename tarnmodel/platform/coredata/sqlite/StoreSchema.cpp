#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

#include <algorithm>

namespace tarn {

void appendQuotedIdentifier(std::string& sql, std::string_view text)
{
    sql += '"';
    for (const char c : text) {
        sql += c;
        if (c == '"')
            sql += c;
    }
    sql += '"';
}

std::string quotedIdentifier(std::string_view text)
{
    std::string quoted;
    appendQuotedIdentifier(quoted, text);
    return quoted;
}

std::string shadowColumnName(const NSAttributeDescription& attribute)
{
    return attribute.name() + "_folded";
}

const std::string& SignatureTable::columnTable() const noexcept
{
    return attribute->isLarge() ? table->largeName : table->name;
}

// Tables and columns --------------------------------------------------------------------------------------------------

StoreSchema::StoreSchema(const NSManagedObjectModel& model)
{
    for (const NSEntityDescription* entity : model.entities())
        if (&entity->rootEntity() == entity)
            addTable(*entity);
    for (const NSEntityDescription* entity : model.entities())
        addJoins(*entity);
    linkColumns();
}

void StoreSchema::addTable(const NSEntityDescription& root)
{
    auto table = std::make_unique<StoreTable>();
    table->root = &root;
    table->name = root.name();
    table->largeName = root.name() + "_large";
    table->hasDiscriminator = !root.subentities().empty();
    addColumns(*table, root);
    addSignatures(*table);
    tablesByRoot_.emplace(&root, table.get());
    tables_.push_back(std::move(table));
}

void StoreSchema::addColumns(StoreTable& table, const NSEntityDescription& entity)
{
    for (const NSPropertyDescription* property : entity.properties()) {
        bool large = false;
        if (property->isRelationship()) {
            const auto& relationship = static_cast<const NSRelationshipDescription&>(*property);
            if (relationship.isToMany() || relationship.storage() != RelationshipStorage::Column)
                continue;
        } else {
            large = static_cast<const NSAttributeDescription&>(*property).isLarge();
        }
        auto& columns = large ? table.largeColumns : table.columns;
        const auto isSame = [&](const StoreColumn& column) { return column.name == property->name(); };
        if (std::none_of(columns.begin(), columns.end(), isSame))
            columns.push_back({property->name(), property, nullptr});
    }
    for (const NSEntityDescription* subentity : entity.subentities())
        addColumns(table, *subentity);
}

void StoreSchema::addSignatures(StoreTable& table)
{
    for (const auto* columns : {&table.columns, &table.largeColumns}) {
        for (const StoreColumn& column : *columns) {
            if (!column.attribute() || !hasSignature(*column.attribute()))
                continue;
            auto made = std::make_unique<SignatureTable>();
            made->name = table.name + "_" + column.name + "_signature";
            made->changesName = table.name + "_" + column.name + "_changes";
            made->table = &table;
            made->attribute = column.attribute();
            table.signatures.push_back(std::move(made));
        }
    }
}

void StoreSchema::addJoins(const NSEntityDescription& entity)
{
    for (const NSRelationshipDescription* relationship : entity.relationships()) {
        if (relationship->storage() != RelationshipStorage::JoinTable || !relationship->ownsJoinTable())
            continue;
        if (&relationship->declaringEntity() != &entity)
            continue;
        auto join = std::make_unique<JoinTable>();
        join->name = entity.name() + "_" + relationship->name();
        join->relationship = relationship;
        StoreTable* owner = &mutableTable(entity);
        StoreTable* member = &mutableTable(relationship->destinationEntity());
        join->owner = owner;
        join->member = member;
        owner->joins.push_back(join.get());
        if (member != owner)
            member->joins.push_back(join.get());
        joinsByRelationship_.emplace(relationship, join.get());
        joinsByRelationship_.emplace(&relationship->inverseRelationship(), join.get());
        joins_.push_back(std::move(join));
    }
}

void StoreSchema::linkColumns()
{
    for (const auto& table : tables_) {
        for (StoreColumn& column : table->columns) {
            if (!column.property->isRelationship())
                continue;
            const auto& relationship = static_cast<const NSRelationshipDescription&>(*column.property);
            StoreTable* target = &mutableTable(relationship.destinationEntity());
            column.target = target;
            target->referringColumns.push_back({table.get(), column.name});
        }
    }
}

const StoreTable& StoreSchema::table(const NSEntityDescription& entity) const
{
    return *tablesByRoot_.at(&entity.rootEntity());
}

const JoinTable& StoreSchema::join(const NSRelationshipDescription& relationship) const
{
    return *joinsByRelationship_.at(&relationship);
}

JoinDirection joinDirection(const StoreSchema& schema, const NSRelationshipDescription& relationship)
{
    const JoinTable& table = schema.join(relationship);
    if (&relationship == table.relationship)
        return {&table, "owner", "member"};
    return {&table, "member", "owner"};
}

// Statements ----------------------------------------------------------------------------------------------------------

namespace {

std::string_view columnType(NSAttributeType type)
{
    switch (type) {
    case NSAttributeType::Double:
        return "REAL";
    case NSAttributeType::String:
        return "TEXT";
    case NSAttributeType::Data:
        return "BLOB";
    default:
        return "INTEGER";
    }
}

std::string referenceTo(const StoreTable& table)
{
    return " REFERENCES " + quotedIdentifier(table.name) + " (\"pk\") DEFERRABLE INITIALLY DEFERRED";
}

std::string columnDefinition(const StoreColumn& column)
{
    const std::string name = quotedIdentifier(column.name);
    if (const auto* attribute = column.attribute())
        return name + " " + std::string(columnType(attribute->type()));
    return name + " INTEGER" + referenceTo(*column.target);
}

std::string tableStatement(const StoreTable& table)
{
    std::string sql = "CREATE TABLE " + quotedIdentifier(table.name) + " (\"pk\" INTEGER PRIMARY KEY";
    if (table.hasDiscriminator)
        sql += ", \"entity\" TEXT NOT NULL";
    sql += ", \"rowVersion\" INTEGER NOT NULL";
    for (const StoreColumn& column : table.columns)
        sql += ", " + columnDefinition(column);
    for (const StoreColumn& column : table.columns)
        if (column.attribute() && hasShadowColumn(*column.attribute()))
            sql += ", " + quotedIdentifier(shadowColumnName(*column.attribute())) + " TEXT";
    return sql + ")";
}

std::string largeTableStatement(const StoreTable& table)
{
    std::string sql
        = "CREATE TABLE " + quotedIdentifier(table.largeName) + " (\"pk\" INTEGER PRIMARY KEY" + referenceTo(table);
    for (const StoreColumn& column : table.largeColumns)
        sql += ", " + columnDefinition(column);
    return sql + ")";
}

std::string indexStatement(const std::string& name, const std::string& table, const std::string& columns, bool unique)
{
    return std::string("CREATE ") + (unique ? "UNIQUE " : "") + "INDEX " + quotedIdentifier(name) + " ON "
        + quotedIdentifier(table) + " (" + columns + ")";
}

void addShadowStatements(
    const StoreTable& table, const NSAttributeDescription& attribute, std::vector<std::string>& all)
{
    const std::string column = quotedIdentifier(attribute.name());
    const std::string shadow = quotedIdentifier(shadowColumnName(attribute));
    const std::string stale = table.name + "_" + attribute.name() + "_stale";
    all.push_back(indexStatement(table.name + "_" + shadowColumnName(attribute), table.name, shadow, false));
    // Normally empty: the rows whose folded value has to be made again.
    all.push_back(indexStatement(stale, table.name, shadow, false) + " WHERE " + shadow + " IS NULL AND " + column
        + " IS NOT NULL");
    // Another program that changes the attribute knows nothing of its shadow.
    all.push_back("CREATE TRIGGER " + quotedIdentifier(stale) + " AFTER UPDATE OF " + column + " ON "
        + quotedIdentifier(table.name) + " WHEN NEW." + column + " IS NOT OLD." + column + " AND NEW." + shadow
        + " IS OLD." + shadow + " BEGIN UPDATE " + quotedIdentifier(table.name) + " SET " + shadow
        + " = NULL WHERE \"pk\" = NEW.\"pk\"; END");
}

/// Searches look at the rows that have a flag by themselves; usually they are few.
void addFlagIndex(const StoreTable& table, const StoreColumn& column, std::vector<std::string>& all)
{
    all.push_back("CREATE INDEX IF NOT EXISTS " + quotedIdentifier(table.name + "_" + column.name + "_flagged") + " ON "
        + quotedIdentifier(table.name) + " (" + quotedIdentifier(column.name) + ") WHERE "
        + quotedIdentifier(column.name) + " = 1");
}

void addFlagIndexes(const StoreTable& table, std::vector<std::string>& all)
{
    for (const StoreColumn& column : table.columns)
        if (column.attribute() && column.attribute()->isFlagIndexed())
            addFlagIndex(table, column, all);
}

/// Whoever writes makes the signature stale, and notes the row among the changes. No OR clause and no UPSERT: those of
/// the statement that fires a trigger would override them.
void addSignatureStatements(const SignatureTable& signature, std::vector<std::string>& all)
{
    const std::string table = quotedIdentifier(signature.columnTable());
    const std::string column = quotedIdentifier(signature.attribute->name());
    const std::string signatures = quotedIdentifier(signature.name);
    const std::string changes = quotedIdentifier(signature.changesName);
    const auto trigger = [&](const char* name, const std::string& event, const std::string& body) {
        all.push_back("CREATE TRIGGER IF NOT EXISTS " + quotedIdentifier(signature.name + name) + " AFTER " + event
            + " BEGIN " + body + " END");
    };
    const auto note
        = [&](const char* key) { return "INSERT INTO " + changes + " (\"pk\") VALUES (" + std::string(key) + ");"; };
    const std::string makeStale = "UPDATE " + signatures + " SET \"signature\" = NULL WHERE \"pk\" = NEW.\"pk\"; "
        + "INSERT INTO " + signatures + " (\"pk\") SELECT NEW.\"pk\" WHERE NOT EXISTS (SELECT 1 FROM " + signatures
        + " WHERE \"pk\" = NEW.\"pk\"); ";

    all.push_back("CREATE TABLE IF NOT EXISTS " + signatures + " (\"pk\" INTEGER PRIMARY KEY, \"signature\" BLOB)");
    all.push_back(
        "CREATE TABLE IF NOT EXISTS " + changes + " (\"change\" INTEGER PRIMARY KEY, \"pk\" INTEGER NOT NULL)");
    trigger("_insert", "INSERT ON " + table, makeStale + note("NEW.\"pk\""));
    trigger("_update", "UPDATE OF \"pk\", " + column + " ON " + table,
        "DELETE FROM " + signatures + " WHERE \"pk\" = OLD.\"pk\" AND OLD.\"pk\" <> NEW.\"pk\"; " + makeStale
            + note("NEW.\"pk\""));
    trigger("_delete", "DELETE ON " + table,
        "DELETE FROM " + signatures + " WHERE \"pk\" = OLD.\"pk\"; " + note("OLD.\"pk\""));
    // A signature may be thrown away, but its row must not be forgotten.
    trigger("_lost", "DELETE ON " + signatures + " WHEN EXISTS (SELECT 1 FROM " + table + " WHERE \"pk\" = OLD.\"pk\")",
        "INSERT INTO " + signatures + " (\"pk\") VALUES (OLD.\"pk\"); " + note("OLD.\"pk\""));
}

/// Another program that changes a row knows nothing of its version; whoever holds the record would not notice. Folded
/// values follow from others, and come without a version. No list of columns: each connection reads these statements
/// when it is opened.
void addVersionStatements(const StoreTable& table, std::vector<std::string>& all)
{
    const auto trigger = [&](const std::string& on, const std::string& condition) {
        all.push_back("CREATE TRIGGER IF NOT EXISTS " + quotedIdentifier(on + "_version") + " AFTER UPDATE ON "
            + quotedIdentifier(on) + condition + " BEGIN UPDATE " + quotedIdentifier(table.name)
            + " SET \"rowVersion\" = \"rowVersion\" + 1 WHERE \"pk\" = NEW.\"pk\"; END");
    };
    const auto isUnchanged = [](const std::string& column) { return "NEW." + column + " IS OLD." + column; };
    std::string condition = " WHEN " + isUnchanged("\"rowVersion\"");
    for (const StoreColumn& column : table.columns)
        if (column.attribute() && hasShadowColumn(*column.attribute()))
            condition += " AND " + isUnchanged(quotedIdentifier(shadowColumnName(*column.attribute())));
    trigger(table.name, condition);
    if (!table.largeColumns.empty())
        trigger(table.largeName, "");
}

void addColumnIndexes(const StoreTable& table, std::vector<std::string>& all)
{
    for (const StoreColumn& column : table.columns) {
        const auto* attribute = column.attribute();
        if (!attribute || attribute->isIndexed())
            all.push_back(
                indexStatement(table.name + "_" + column.name, table.name, quotedIdentifier(column.name), false));
        if (attribute && hasShadowColumn(*attribute))
            addShadowStatements(table, *attribute, all);
    }
}

void addCompositeIndexes(const StoreTable& table, const NSEntityDescription& entity, std::vector<std::string>& all)
{
    for (const IndexDescription& index : entity.indexes()) {
        std::string name = table.name;
        std::string columns;
        for (const auto& column : index.columns) {
            name += "_" + column.property;
            columns += (columns.empty() ? "" : ", ") + quotedIdentifier(column.property)
                + (column.descending ? " DESC" : "");
        }
        const std::string statement = indexStatement(name, table.name, columns, index.unique);
        if (std::find(all.begin(), all.end(), statement) == all.end())
            all.push_back(statement);
    }
    for (const NSEntityDescription* subentity : entity.subentities())
        addCompositeIndexes(table, *subentity, all);
}

void addJoinStatements(const JoinTable& join, std::vector<std::string>& all)
{
    all.push_back("CREATE TABLE " + quotedIdentifier(join.name) + " (\"owner\" INTEGER NOT NULL"
        + referenceTo(*join.owner) + ", \"member\" INTEGER NOT NULL" + referenceTo(*join.member)
        + ", PRIMARY KEY (\"owner\", \"member\")) WITHOUT ROWID");
    all.push_back(indexStatement(join.name + "_member", join.name, "\"member\", \"owner\"", true));
}

/// `text` as an SQL string.
std::string quotedText(std::string_view text)
{
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c;
        if (c == '\'')
            quoted += c;
    }
    return quoted += '\'';
}

void collectNames(const NSEntityDescription& entity, bool includesSubentities, std::string& names)
{
    names += (names.empty() ? "" : ", ") + quotedText(entity.name());
    if (!includesSubentities)
        return;
    for (const NSEntityDescription* subentity : entity.subentities())
        collectNames(*subentity, true, names);
}

} // namespace

std::string entityCondition(const NSEntityDescription& entity, bool includesSubentities, std::string_view alias)
{
    const bool isWholeTable = &entity.rootEntity() == &entity && includesSubentities;
    if (isWholeTable || (entity.rootEntity().subentities().empty()))
        return {};
    std::string names;
    collectNames(entity, includesSubentities, names);
    return std::string(alias) + ".\"entity\" IN (" + names + ")";
}

std::string andEntityIs(const NSEntityDescription& entity, bool includesSubentities, std::string_view alias)
{
    const std::string condition = entityCondition(entity, includesSubentities, alias);
    return condition.empty() ? condition : " AND " + condition;
}

std::vector<std::string> StoreSchema::creationStatements() const
{
    std::vector<std::string> all{
        "CREATE TABLE \"store_metadata\" (\"key\" TEXT PRIMARY KEY, \"value\" TEXT) WITHOUT ROWID",
        "CREATE TABLE \"store_keys\" (\"entity\" TEXT PRIMARY KEY, \"nextKey\" INTEGER NOT NULL) WITHOUT ROWID",
    };
    for (const auto& table : tables_) {
        all.push_back(tableStatement(*table));
        if (!table->largeColumns.empty())
            all.push_back(largeTableStatement(*table));
    }
    for (const auto& join : joins_)
        addJoinStatements(*join, all);
    for (const auto& table : tables_) {
        addColumnIndexes(*table, all);
        addCompositeIndexes(*table, *table->root, all);
    }
    const auto later = laterStatements();
    all.insert(all.end(), later.begin(), later.end());
    return all;
}

std::vector<std::string> StoreSchema::laterStatements() const
{
    std::vector<std::string> all = versionStatements();
    const auto search = searchStatements();
    all.insert(all.end(), search.begin(), search.end());
    return all;
}

std::vector<std::string> StoreSchema::versionStatements() const
{
    std::vector<std::string> all;
    for (const auto& table : tables_)
        addVersionStatements(*table, all);
    return all;
}

std::vector<std::string> StoreSchema::searchStatements() const
{
    std::vector<std::string> all;
    for (const auto& table : tables_) {
        addFlagIndexes(*table, all);
        for (const auto& signature : table->signatures)
            addSignatureStatements(*signature, all);
    }
    return all;
}

} // namespace tarn
