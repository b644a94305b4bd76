#include "tarnmodel/platform/coredata/sqlite/SearchTables.h"

#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteStoreFile.h"
#include "tarnmodel/platform/coredata/sqlite/SubstringSignature.h"

#include <algorithm>
#include <limits>

namespace tarn {

namespace {

/// A mirror that is further behind loads everything again.
constexpr std::int64_t kLongestList = 8192;
constexpr std::int64_t kKeptChanges = 2048;

void noteRow(SQLiteConnection& connection, const SignatureTable& table, std::int64_t key)
{
    SQLiteStatement statement
        = connection.prepare("INSERT INTO " + quotedIdentifier(table.changesName) + " (\"pk\") VALUES (?1)");
    statement.bindInteger(1, key);
    statement.run();
}

void noteEveryRow(SQLiteConnection& connection, const SignatureTable& table)
{
    noteRow(connection, table, 0);
}

/// A row with its attribute, as the walks below read it: pk, attribute, signature.
std::string selectOfRows(const SignatureTable& table)
{
    return "SELECT t.\"pk\", t." + quotedIdentifier(table.attribute->name()) + ", s.\"signature\" FROM "
        + quotedIdentifier(table.columnTable()) + " AS t LEFT JOIN " + quotedIdentifier(table.name)
        + " AS s ON s.\"pk\" = t.\"pk\"";
}

std::string signatureOfColumn(const SQLiteStatement& statement, int column)
{
    return statement.isNull(column) ? signatureOfNothing() : signatureOfText(statement.bytes(column));
}

/// What these rows should have; the rows that exist.
std::vector<std::pair<std::int64_t, std::string>> freshSignatures(
    SQLiteConnection& connection, const SignatureTable& table, std::span<const std::int64_t> keys)
{
    std::vector<std::pair<std::int64_t, std::string>> made;
    for (const std::int64_t key : keys) {
        SQLiteStatement statement = connection.prepare(selectOfRows(table) + " WHERE t.\"pk\" = ?1");
        statement.bindInteger(1, key);
        if (statement.step())
            made.emplace_back(key, signatureOfColumn(statement, 1));
    }
    return made;
}

} // namespace

// The tables ----------------------------------------------------------------------------------------------------------

bool hasSearchTables(SQLiteConnection& connection, const StoreSchema& schema)
{
    return holdsAll(connection, schema.searchStatements());
}

void addSearchTables(SQLiteConnection& connection, const StoreSchema& schema)
{
    for (const std::string& statement : schema.searchStatements())
        connection.execute(statement);
    for (const auto& table : schema.tables()) {
        for (const auto& signature : table->signatures) {
            const std::string name = quotedIdentifier(signature->name);
            connection.execute("INSERT INTO " + name + " (\"pk\") SELECT \"pk\" FROM "
                + quotedIdentifier(signature->columnTable()) + " WHERE \"pk\" NOT IN (SELECT \"pk\" FROM " + name
                + ")");
            // What was there may have been made while triggers were missing.
            connection.execute("UPDATE " + name + " SET \"signature\" = NULL WHERE \"signature\" IS NOT NULL");
            noteEveryRow(connection, *signature);
        }
    }
}

// Keeping in step -----------------------------------------------------------------------------------------------------

void writeSignature(SQLiteConnection& connection, const SignatureTable& table, std::int64_t key,
    const std::optional<std::string>& signature)
{
    {
        SQLiteStatement statement = connection.prepare("INSERT INTO " + quotedIdentifier(table.name)
            + " (\"pk\", \"signature\") VALUES (?1, ?2) ON CONFLICT (\"pk\") DO UPDATE SET \"signature\" = ?2");
        statement.bindInteger(1, key);
        if (signature)
            statement.bindBlob(2, *signature);
        else
            statement.bindNull(2);
        statement.run();
    }
    noteRow(connection, table, key);
}

void removeSignature(SQLiteConnection& connection, const SignatureTable& table, std::int64_t key)
{
    {
        SQLiteStatement statement
            = connection.prepare("DELETE FROM " + quotedIdentifier(table.name) + " WHERE \"pk\" = ?1");
        statement.bindInteger(1, key);
        statement.run();
    }
    noteRow(connection, table, key);
}

void forgetSignatures(SQLiteConnection& connection, const StoreSchema& schema)
{
    for (const auto& table : schema.tables()) {
        for (const auto& signature : table->signatures) {
            connection.execute("UPDATE " + quotedIdentifier(signature->name)
                + " SET \"signature\" = NULL WHERE \"signature\" IS NOT NULL");
            noteEveryRow(connection, *signature);
        }
    }
}

void completeSignatures(
    SQLiteConnection& connection, const SignatureTable& table, const std::function<void()>& madeSome)
{
    constexpr std::size_t kPage = 256;
    std::int64_t key = std::numeric_limits<std::int64_t>::min();
    while (true) {
        std::vector<std::pair<std::int64_t, std::string>> page;
        {
            SQLiteStatement statement = connection.prepare(
                selectOfRows(table) + " WHERE t.\"pk\" > ?1 AND s.\"signature\" IS NULL ORDER BY t.\"pk\" LIMIT ?2");
            statement.bindInteger(1, key);
            statement.bindInteger(2, static_cast<std::int64_t>(kPage));
            while (statement.step())
                page.emplace_back(statement.integer(0), signatureOfColumn(statement, 1));
        }
        for (const auto& [row, signature] : page) {
            SQLiteStatement statement = connection.prepare("INSERT INTO " + quotedIdentifier(table.name)
                + " (\"pk\", \"signature\") VALUES (?1, ?2) ON CONFLICT (\"pk\") DO UPDATE SET \"signature\" = ?2");
            statement.bindInteger(1, row);
            statement.bindBlob(2, signature);
            statement.run();
        }
        madeSome();
        if (page.size() < kPage)
            return;
        key = page.back().first;
    }
}

void rewriteSignatures(SQLiteConnection& connection, const SignatureTable& table, std::span<const std::int64_t> keys)
{
    for (const auto& [key, signature] : freshSignatures(connection, table, keys))
        writeSignature(connection, table, key, signature);
}

void trimChanges(SQLiteConnection& connection, const SignatureTable& table)
{
    const std::string name = quotedIdentifier(table.changesName);
    const std::int64_t first = connection.integerOf("SELECT min(\"change\") FROM " + name);
    const std::int64_t last = connection.integerOf("SELECT max(\"change\") FROM " + name);
    if (last - first < kLongestList)
        return;
    SQLiteStatement statement = connection.prepare("DELETE FROM " + name + " WHERE \"change\" <= ?1");
    statement.bindInteger(1, last - kKeptChanges);
    statement.run();
}

// Checks --------------------------------------------------------------------------------------------------------------

SignatureProblems problemsOfSignatures(
    SQLiteConnection& connection, const SignatureTable& table, std::int64_t key, std::size_t most)
{
    SignatureProblems problems;
    SQLiteStatement statement
        = connection.prepare(selectOfRows(table) + " WHERE t.\"pk\" > ?1 ORDER BY t.\"pk\" LIMIT ?2");
    statement.bindInteger(1, key);
    statement.bindInteger(2, static_cast<std::int64_t>(most));
    std::size_t count = 0;
    for (; statement.step(); ++count) {
        problems.lastKey = statement.integer(0);
        if (!isCurrentSignature(statement.bytes(2)))
            problems.staleKeys.push_back(problems.lastKey);
        else if (statement.bytes(2) != signatureOfColumn(statement, 1))
            problems.wrongKeys.push_back(problems.lastKey);
    }
    problems.isLast = count < most;
    return problems;
}

} // namespace tarn
