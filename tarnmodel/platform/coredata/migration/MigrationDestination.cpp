#include "tarnmodel/platform/coredata/migration/MigrationDestination.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteStoreFile.h"
#include "tarnmodel/platform/coredata/sqlite/SearchTables.h"
#include "tarnmodel/platform/coredata/sqlite/TransactionGuards.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

constexpr std::string_view kTable = "CREATE TABLE ";

bool isTable(const std::string& statement)
{
    return statement.starts_with(kTable);
}

/// The kind of what a CREATE INDEX or CREATE TRIGGER statement makes, as the schema names it.
std::string_view kindMadeBy(const std::string& statement)
{
    return statement.starts_with("CREATE TRIGGER ") ? "trigger" : "index";
}

/// What a CREATE INDEX or CREATE TRIGGER statement is for.
bool isOn(const std::string& statement, const std::string& table)
{
    return statement.find(" ON " + quotedIdentifier(table) + " ") != std::string::npos;
}

} // namespace

MigrationDestination::MigrationDestination(const std::filesystem::path& file, const NSManagedObjectModel& model)
    : file_(file), connection_(file, {.create = true}), schema_(model), selects_(schema_, model),
      writer_(schema_, connection_)
{
    // The file is thrown away when something fails, and synced as a whole in the end. What is sorted for an index may
    // be more than memory should hold.
    connection_.execute("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA secure_delete = OFF;"
                        "PRAGMA cache_size = -4000; PRAGMA cache_spill = 1; PRAGMA foreign_keys = OFF;"
                        "PRAGMA temp_store = FILE;");
    const StoreFileContents contents = contentsOfStoreFile(connection_);
    if (contents == StoreFileContents::Nothing)
        makeTables();
    else if (contents == StoreFileContents::SomethingElse)
        throw StoreFailure(StoreErrorNotAStore, "\"" + file.string() + "\" is not a store.");
    else if (!isMetadataOfModel(model, readStoreMetadata(connection_)))
        throw StoreFailure(StoreErrorIncompatible, "\"" + file.string() + "\" is a store of another model.");
}

void MigrationDestination::makeTables()
{
    connection_.execute("PRAGMA page_size = 8192");
    WriteTransaction transaction(connection_, WriteTransaction::Lock::Exclusive);
    for (const std::string& statement : schema_.creationStatements())
        if (isTable(statement))
            connection_.execute(statement);
    transaction.commit();
    isNew_ = true;
}

// Rows ----------------------------------------------------------------------------------------------------------------

void MigrationDestination::insert(const StoreRow& row)
{
    const StoreTable& table = schema_.table(*row.entity);
    noteRows(table.name, 1);
    noteRows(table.largeName, 1);
    writer_.insertUnsigned(row);
}

bool MigrationDestination::exists(const NSEntityDescription& entity, std::int64_t key)
{
    SQLiteStatement statement
        = connection_.prepare("SELECT 1 FROM " + quotedIdentifier(schema_.table(entity).name) + " WHERE \"pk\" = ?1");
    statement.bindInteger(1, key);
    return statement.step();
}

const NSEntityDescription* MigrationDestination::entityOf(const NSEntityDescription& root, std::int64_t key)
{
    const StoreTable& table = schema_.table(root);
    if (!table.hasDiscriminator)
        return exists(root, key) ? table.root : nullptr;
    SQLiteStatement statement
        = connection_.prepare("SELECT \"entity\" FROM " + quotedIdentifier(table.name) + " WHERE \"pk\" = ?1");
    statement.bindInteger(1, key);
    return statement.step() ? root.model().entityNamed(statement.bytes(0)) : nullptr;
}

bool MigrationDestination::isOfEntity(const NSEntityDescription& entity, std::int64_t key)
{
    const NSEntityDescription* found = entityOf(entity.rootEntity(), key);
    return found && found->isKindOfEntity(entity);
}

std::vector<std::int64_t> MigrationDestination::keysBetween(
    const NSEntityDescription& entity, std::int64_t after, std::int64_t last, std::size_t most)
{
    SQLiteStatement statement = connection_.prepare("SELECT t.\"pk\" FROM "
        + quotedIdentifier(schema_.table(entity).name) + " AS t WHERE t.\"pk\" > ?1 AND t.\"pk\" <= ?2"
        + andEntityIs(entity, false, "t") + " ORDER BY t.\"pk\" LIMIT ?3");
    statement.bindInteger(1, after);
    statement.bindInteger(2, last);
    statement.bindInteger(3, static_cast<std::int64_t>(most));
    std::vector<std::int64_t> keys;
    while (statement.step())
        keys.push_back(statement.integer(0));
    return keys;
}

std::vector<std::int64_t> MigrationDestination::keysOfFoldedValue(
    const NSEntityDescription& entity, const NSAttributeDescription& attribute, std::string_view text)
{
    const StoreTable& table = schema_.table(entity);
    const bool isLarge = attribute.isLarge();
    const std::string column = hasShadowColumn(attribute)
        ? "t." + quotedIdentifier(shadowColumnName(attribute))
        : "fold(" + std::string(isLarge ? "large." : "t.") + quotedIdentifier(attribute.name()) + ")";
    SQLiteStatement statement = connection_.prepare("SELECT t.\"pk\" FROM " + quotedIdentifier(table.name) + " AS t"
        + (isLarge ? " JOIN " + quotedIdentifier(table.largeName) + " AS large ON large.\"pk\" = t.\"pk\"" : "")
        + " WHERE " + column + " = fold(?1)" + andEntityIs(entity, true, "t") + " ORDER BY t.\"pk\"");
    statement.bindText(1, text);
    std::vector<std::int64_t> keys;
    while (statement.step())
        keys.push_back(statement.integer(0));
    return keys;
}

void MigrationDestination::setColumn(
    const NSEntityDescription& entity, std::string_view column, std::int64_t key, std::optional<std::int64_t> target)
{
    SQLiteStatement statement = connection_.prepare("UPDATE " + quotedIdentifier(schema_.table(entity).name) + " SET "
        + quotedIdentifier(column) + " = ?2 WHERE \"pk\" = ?1");
    statement.bindInteger(1, key);
    if (target)
        statement.bindInteger(2, *target);
    else
        statement.bindNull(2);
    statement.run();
}

void MigrationDestination::relate(const NSEntityDescription& entity, const NSRelationshipDescription& relationship,
    std::int64_t key, std::span<const std::int64_t> targets)
{
    std::vector<std::int64_t> found;
    for (const std::int64_t target : targets)
        if (isOfEntity(relationship.destinationEntity(), target))
            found.push_back(target);
    std::ranges::sort(found);
    if (relationship.storage() == RelationshipStorage::Column)
        return setColumn(entity, relationship.name(), key,
            found.empty() ? std::nullopt : std::optional<std::int64_t>(found.front()));
    const std::vector<RelatedKey> present = selects_.related(connection_, relationship, key);
    const bool isJoined = relationship.storage() == RelationshipStorage::JoinTable;
    const auto change = [&](std::int64_t other, bool added) {
        if (!isJoined)
            return setColumn(relationship.destinationEntity(), relationship.inverseRelationship().name(), other,
                added ? std::optional<std::int64_t>(key) : std::nullopt);
        const bool owns = relationship.ownsJoinTable();
        const JoinChange join{
            owns ? &relationship : &relationship.inverseRelationship(), owns ? key : other, owns ? other : key, added};
        writer_.changeJoins(std::array{join});
    };
    for (const RelatedKey& related : present)
        if (!std::ranges::binary_search(found, related.key))
            change(related.key, false);
    for (const std::int64_t target : found)
        change(target, true);
}

// Making it a store ---------------------------------------------------------------------------------------------------

/// Another mapping model may have made it before. An index and a trigger can have one name.
void MigrationDestination::executeOnce(const std::string& statement)
{
    if (isTable(statement))
        return;
    SQLiteStatement made = connection_.prepare("SELECT 1 FROM sqlite_schema WHERE \"type\" = ?1 AND \"name\" = ?2");
    made.bindText(1, kindMadeBy(statement));
    const std::string name = madeName(statement);
    made.bindText(2, name);
    const bool isMade = made.step();
    made.reset();
    if (!isMade)
        connection_.execute(statement);
}

void MigrationDestination::addIndexes(const StoreTable& table)
{
    for (const std::string& statement : schema_.creationStatements())
        if (isOn(statement, table.name) || isOn(statement, table.largeName))
            executeOnce(statement);
}

void MigrationDestination::addJoinIndexes()
{
    for (const std::string& statement : schema_.creationStatements())
        for (const auto& join : schema_.joins())
            if (isOn(statement, join->name))
                executeOnce(statement);
}

std::vector<std::string> MigrationDestination::indexStatements(const std::string& table) const
{
    constexpr std::string_view kCondition = "IF NOT EXISTS ";
    std::vector<std::string> statements;
    for (std::string statement : schema_.creationStatements()) {
        if (!isOn(statement, table) || kindMadeBy(statement) != "index")
            continue;
        if (const std::size_t place = statement.find(kCondition); place != std::string::npos)
            statement.erase(place, kCondition.size());
        statements.push_back(std::move(statement));
    }
    std::ranges::sort(statements);
    return statements;
}

void MigrationDestination::addIndexesOf(const std::string& table)
{
    for (const std::string& statement : schema_.creationStatements())
        if (isOn(statement, table) && kindMadeBy(statement) == "index")
            executeOnce(statement);
}

void MigrationDestination::clearDanglingReferences()
{
    for (const auto& table : schema_.tables())
        for (const StoreColumn& column : table->columns)
            if (column.target)
                clearColumn(*table, column);
    for (const auto& join : schema_.joins())
        if (missingTarget(join->name))
            clearJoins(*join);
}

void MigrationDestination::clearJoins(const JoinTable& join)
{
    const auto isMissing = [](const StoreTable& table, std::string_view column) {
        return "NOT EXISTS (SELECT 1 FROM " + quotedIdentifier(table.name) + " AS t WHERE t.\"pk\" = j."
            + quotedIdentifier(column) + ")";
    };
    connection_.execute("DELETE FROM " + quotedIdentifier(join.name) + " AS j WHERE " + isMissing(*join.owner, "owner")
        + " OR " + isMissing(*join.member, "member"));
}

std::optional<std::string> MigrationDestination::missingTarget(const std::string& table)
{
    SQLiteStatement check = connection_.prepare("PRAGMA foreign_key_check(" + quotedIdentifier(table) + ")");
    return check.step() ? std::optional(std::string(check.bytes(2))) : std::nullopt;
}

void MigrationDestination::clearColumn(const StoreTable& table, const StoreColumn& column)
{
    const auto& relationship = static_cast<const NSRelationshipDescription&>(*column.property);
    const std::string name = quotedIdentifier(column.name);
    connection_.execute("UPDATE " + quotedIdentifier(table.name) + " SET " + name + " = NULL WHERE " + name
        + " IS NOT NULL AND NOT EXISTS (SELECT 1 FROM " + quotedIdentifier(column.target->name)
        + " AS t WHERE t.\"pk\" = " + quotedIdentifier(table.name) + "." + name
        + andEntityIs(relationship.destinationEntity(), true, "t") + ")");
}

void MigrationDestination::completeDerivedValues(const std::function<void()>& madeSome)
{
    for (const std::string& statement : schema_.laterStatements())
        connection_.execute(statement);
    for (const auto& table : schema_.tables()) {
        for (const auto& signature : table->signatures) {
            if (!isSigned(*signature))
                completeSignatures(connection_, *signature, madeSome);
            connection_.execute("DELETE FROM " + quotedIdentifier(signature->changesName));
        }
    }
}

/// Whether as many signatures came along as rows: then nobody has to read all texts to find one that is missing.
bool MigrationDestination::isSigned(const SignatureTable& signature) const
{
    const auto count = [this](const std::string& table) {
        const auto found = rowCounts_.find(table);
        return found == rowCounts_.end() ? 0 : found->second;
    };
    return isNew_ && count(signature.name) == count(signature.columnTable());
}

void MigrationDestination::writeMetadata(
    const NSManagedObjectModel& model, const StoreMetadata& old, const EntitySteps::NextKeys& keys)
{
    StoreMetadata metadata = newStoreMetadata(model);
    for (const auto& [key, value] : old)
        if (!key.starts_with(StoreEntityHashPrefix) && key != StoreFormatVersionKey && key != StoreModelVersionKey
            && key != StoreFoldingVersionKey)
            metadata[key] = value;
    for (const auto& [key, value] : metadata)
        writeStoreMetadataValue(connection_, key, value);
    for (const auto& [root, next] : keys) {
        SQLiteStatement statement
            = connection_.prepare("INSERT INTO \"store_keys\" (\"entity\", \"nextKey\") VALUES (?1, ?2) "
                                  "ON CONFLICT (\"entity\") DO UPDATE SET \"nextKey\" = max(\"nextKey\", ?2)");
        statement.bindText(1, root->name());
        statement.bindInteger(2, next);
        statement.run();
    }
}

EntitySteps::NextKeys MigrationDestination::nextKeys()
{
    EntitySteps::NextKeys keys;
    for (const auto& table : schema_.tables())
        keys.emplace(table->root,
            connection_.integerOf("SELECT coalesce(max(\"pk\"), 0) + 1 FROM " + quotedIdentifier(table->name)));
    return keys;
}

/// The rows of large attributes were made from rows that are there.
void MigrationDestination::checkReferences()
{
    std::vector<std::string> tables;
    for (const auto& table : schema_.tables())
        tables.push_back(table->name);
    for (const auto& join : schema_.joins())
        tables.push_back(join->name);
    for (const std::string& table : tables)
        if (const auto target = missingTarget(table))
            throw StoreFailure(StoreErrorValidation,
                "A row of \"" + table + "\" of the new store points at a missing row of \"" + *target + "\".");
}

} // namespace tarn
