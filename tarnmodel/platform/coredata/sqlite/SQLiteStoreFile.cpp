#include "tarnmodel/platform/coredata/sqlite/SQLiteStoreFile.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/TransactionGuards.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <functional>
#include <utility>

namespace tarn {

namespace {

constexpr std::string_view kContents = "SELECT count(*), coalesce(sum(name = 'store_metadata'), 0) FROM sqlite_schema";

using ShadowVisitor
    = std::function<void(const std::string& table, const std::string& column, const std::string& shadow)>;

void forEachShadow(const StoreSchema& schema, const ShadowVisitor& visit)
{
    for (const auto& table : schema.tables())
        for (const StoreColumn& column : table->columns)
            if (column.attribute() && hasShadowColumn(*column.attribute()))
                visit(quotedIdentifier(table->name), quotedIdentifier(column.name),
                    quotedIdentifier(shadowColumnName(*column.attribute())));
}

} // namespace

StoreFileContents contentsOfStoreFile(SQLiteConnection& connection)
{
    // One statement: between two of them another process may have made the tables.
    SQLiteStatement statement = connection.prepare(kContents);
    statement.step();
    if (statement.integer(1) > 0)
        return StoreFileContents::Store;
    return statement.integer(0) == 0 ? StoreFileContents::Nothing : StoreFileContents::SomethingElse;
}

void createStoreTables(SQLiteConnection& connection, const StoreSchema& schema, const NSManagedObjectModel& model)
{
    connection.execute("PRAGMA page_size = 8192");
    WriteTransaction transaction(connection, WriteTransaction::Lock::Exclusive);
    if (contentsOfStoreFile(connection) != StoreFileContents::Nothing)
        return; // another process was faster
    for (const std::string& statement : schema.creationStatements())
        connection.execute(statement);
    for (const auto& [key, value] : newStoreMetadata(model))
        writeStoreMetadataValue(connection, key, value);
    transaction.commit();
}

StoreMetadata readStoreMetadata(SQLiteConnection& connection)
{
    SQLiteStatement statement
        = connection.prepare("SELECT \"key\", \"value\" FROM \"store_metadata\" ORDER BY \"key\"");
    StoreMetadata metadata;
    while (statement.step())
        metadata.emplace(statement.bytes(0), statement.bytes(1));
    return metadata;
}

void writeStoreMetadataValue(SQLiteConnection& connection, std::string_view key, std::string_view value)
{
    SQLiteStatement statement
        = connection.prepare("INSERT INTO \"store_metadata\" (\"key\", \"value\") VALUES (?1, ?2) "
                             "ON CONFLICT (\"key\") DO UPDATE SET \"value\" = excluded.\"value\"");
    statement.bindText(1, key);
    statement.bindText(2, value);
    statement.run();
}

// Shadow columns ------------------------------------------------------------------------------------------------------

void foldAgain(SQLiteConnection& connection, const StoreSchema& schema)
{
    forEachShadow(schema, [&](const auto& table, const auto& column, const auto& shadow) {
        connection.execute("UPDATE " + table + " SET " + shadow + " = fold(" + column + ") WHERE " + shadow
            + " IS NOT fold(" + column + ")");
    });
    writeStoreMetadataValue(connection, StoreFoldingVersionKey, std::to_string(foldingVersion()));
}

bool hasStaleShadows(SQLiteConnection& connection, const StoreSchema& schema)
{
    bool found = false;
    forEachShadow(schema, [&](const auto& table, const auto& column, const auto& shadow) {
        found = found
            || connection.integerOf("SELECT EXISTS (SELECT 1 FROM " + table + " WHERE " + shadow + " IS NULL AND "
                   + column + " IS NOT NULL)")
                > 0;
    });
    return found;
}

void foldStale(SQLiteConnection& connection, const StoreSchema& schema)
{
    forEachShadow(schema, [&](const auto& table, const auto& column, const auto& shadow) {
        connection.execute("UPDATE " + table + " SET " + shadow + " = fold(" + column + ") WHERE " + shadow
            + " IS NULL AND " + column + " IS NOT NULL");
    });
}

// What came with later versions --------------------------------------------------------------------------------------

std::string madeName(const std::string& statement)
{
    const std::size_t start = statement.find('"') + 1;
    return statement.substr(start, statement.find('"', start) - start);
}

bool holdsAll(SQLiteConnection& connection, const std::vector<std::string>& statements)
{
    std::string names;
    for (const std::string& statement : statements)
        names += (names.empty() ? "'" : ", '") + madeName(statement) + "'";
    return connection.integerOf("SELECT count(*) FROM sqlite_schema WHERE name IN (" + names + ")")
        == static_cast<std::int64_t>(statements.size());
}

void addVersionTriggers(SQLiteConnection& connection, const StoreSchema& schema)
{
    for (const std::string& statement : schema.versionStatements())
        connection.execute(statement);
}

// Checks --------------------------------------------------------------------------------------------------------------

std::vector<std::string> problemsOfStoreFile(SQLiteConnection& connection, const StoreSchema& schema)
{
    std::vector<std::string> problems;
    {
        SQLiteStatement check = connection.prepare("PRAGMA integrity_check");
        while (check.step())
            if (check.bytes(0) != "ok")
                problems.emplace_back(check.bytes(0));
    }
    {
        SQLiteStatement check = connection.prepare("PRAGMA foreign_key_check");
        while (check.step())
            problems.push_back("a row of \"" + std::string(check.bytes(0)) + "\" points at a missing row of \""
                + std::string(check.bytes(2)) + "\"");
    }
    forEachShadow(schema, [&](const auto& table, const auto& column, const auto& shadow) {
        SQLiteStatement check = connection.prepare("SELECT \"pk\" FROM " + table + " WHERE " + shadow
            + " IS NOT NULL AND " + shadow + " IS NOT fold(" + column + ") ORDER BY \"pk\"");
        while (check.step())
            problems.push_back("row " + std::to_string(check.integer(0)) + " of " + table + ": " + shadow
                + " is not the folded value of " + column);
    });
    return problems;
}

} // namespace tarn
