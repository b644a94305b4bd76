#include "tests/store/StoreRows.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <sqlite3.h>

#include <functional>
#include <type_traits>

namespace tarn {

namespace {

constexpr std::size_t kMostDifferences = 20;
constexpr std::size_t kLongestShownCell = 300;

class PlainDatabase {
public:
    explicit PlainDatabase(const std::filesystem::path& file)
    {
        EXPECT_EQ(sqlite3_open_v2(file.c_str(), &handle_, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK) << file;
    }
    ~PlainDatabase() { sqlite3_close(handle_); }
    PlainDatabase(const PlainDatabase&) = delete;
    PlainDatabase& operator=(const PlainDatabase&) = delete;

    void query(const std::string& sql, const std::function<void(sqlite3_stmt*)>& row) const
    {
        sqlite3_stmt* statement = nullptr;
        ASSERT_EQ(sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr), SQLITE_OK)
            << sql << ": " << sqlite3_errmsg(handle_);
        while (sqlite3_step(statement) == SQLITE_ROW)
            row(statement);
        EXPECT_EQ(sqlite3_finalize(statement), SQLITE_OK) << sql << ": " << sqlite3_errmsg(handle_);
    }

private:
    sqlite3* handle_ = nullptr;
};

std::string bytesAt(sqlite3_stmt* statement, int column)
{
    const void* bytes = sqlite3_column_blob(statement, column);
    const auto count = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
    return count == 0 ? std::string() : std::string(static_cast<const char*>(bytes), count);
}

StoreRows::Cell cellAt(sqlite3_stmt* statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return std::to_string(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
        return fmt::format("{:a}", sqlite3_column_double(statement, column));
    case SQLITE_TEXT:
        return StoreRows::cellOfText(bytesAt(statement, column));
    case SQLITE_BLOB:
        return "X" + bytesAt(statement, column);
    default:
        return std::string(StoreRows::nil);
    }
}

void readRows(const PlainDatabase& database, const std::string& name, const std::string& table, StoreRows& rows)
{
    database.query("SELECT * FROM \"" + name + "\"", [&](sqlite3_stmt* statement) {
        StoreRows::Row row;
        for (int column = 0; column < sqlite3_column_count(statement); ++column)
            row[sqlite3_column_name(statement, column)] = cellAt(statement, column);
        const std::int64_t key = std::stoll(row.at("pk"));
        row.erase("pk");
        rows.tables[table][key].merge(row);
    });
}

/// A row that has no large values may have no row for them.
void addMissingLargeValues(const PlainDatabase& database, const std::string& name, StoreRows::Table& table)
{
    database.query("SELECT \"name\" FROM pragma_table_info('" + name + "_large') WHERE \"name\" <> 'pk'",
        [&](sqlite3_stmt* statement) {
            for (auto& [key, row] : table)
                row.try_emplace(bytesAt(statement, 0), StoreRows::nil);
        });
}

std::string shown(const StoreRows::Cell& cell)
{
    std::string text = cell.substr(0, kLongestShownCell);
    for (char& character : text)
        if (character >= 0 && character < ' ')
            character = '?';
    return cell.size() > kLongestShownCell ? fmt::format("{}... ({} bytes)", text, cell.size()) : text;
}

std::string shown(std::int64_t number)
{
    return std::to_string(number);
}

template <typename Key, typename Mapped>
void compare(const std::map<Key, Mapped>& expected, const std::map<Key, Mapped>& actual,
    std::vector<std::string>& found, const std::string& place)
{
    const auto name = [&](const Key& key) { return fmt::format("{} {}", place, key); };
    for (const auto& [key, value] : expected) {
        const auto other = actual.find(key);
        if (other == actual.end())
            found.push_back(name(key) + " is missing");
        else if constexpr (std::is_same_v<Mapped, StoreRows::Cell> || std::is_same_v<Mapped, std::int64_t>) {
            if (value != other->second)
                found.push_back(fmt::format("{} is {} and not {}", name(key), shown(other->second), shown(value)));
        } else
            compare(value, other->second, found, name(key));
    }
    for (const auto& [key, value] : actual)
        if (!expected.contains(key))
            found.push_back(name(key) + " is too much");
}

std::vector<std::string> shortened(std::vector<std::string> found)
{
    if (found.size() > kMostDifferences) {
        const std::size_t count = found.size();
        found.resize(kMostDifferences);
        found.push_back(fmt::format("... {} in all", count));
    }
    return found;
}

} // namespace

StoreRows StoreRows::ofFile(const std::filesystem::path& file)
{
    const PlainDatabase database(file);
    std::vector<std::string> names;
    database.query("SELECT \"name\" FROM sqlite_schema WHERE \"type\" = 'table' AND \"name\" NOT LIKE 'sqlite%' "
                   "AND \"name\" NOT LIKE '%\\_signature' ESCAPE '\\' AND \"name\" NOT LIKE '%\\_changes' ESCAPE '\\' "
                   "ORDER BY \"name\"",
        [&](sqlite3_stmt* statement) { names.push_back(bytesAt(statement, 0)); });
    StoreRows rows;
    for (const std::string& name : names) {
        if (name.starts_with("store_"))
            continue;
        if (name.find('_') == std::string::npos) {
            rows.tables[name];
            readRows(database, name, name, rows);
        } else if (name.ends_with("_large")) {
            const std::string table = name.substr(0, name.find('_'));
            readRows(database, name, table, rows);
            addMissingLargeValues(database, table, rows.tables[table]);
        } else {
            auto& join = rows.joins[name];
            database.query("SELECT \"owner\", \"member\" FROM \"" + name + "\"", [&](sqlite3_stmt* statement) {
                join.emplace(sqlite3_column_int64(statement, 0), sqlite3_column_int64(statement, 1));
            });
        }
    }
    database.query("SELECT \"key\", \"value\" FROM \"store_metadata\"",
        [&](sqlite3_stmt* statement) { rows.metadata[bytesAt(statement, 0)] = bytesAt(statement, 1); });
    database.query("SELECT \"entity\", \"nextKey\" FROM \"store_keys\"",
        [&](sqlite3_stmt* statement) { rows.keys[bytesAt(statement, 0)] = sqlite3_column_int64(statement, 1); });
    return rows;
}

std::map<std::string, std::string> StoreRows::schemaOfFile(const std::filesystem::path& file)
{
    const PlainDatabase database(file);
    std::map<std::string, std::string> schema;
    database.query("SELECT \"type\", \"name\", \"tbl_name\", \"sql\" FROM sqlite_schema", [&](sqlite3_stmt* statement) {
        schema[bytesAt(statement, 0) + " " + bytesAt(statement, 1)]
            = bytesAt(statement, 2) + ": " + bytesAt(statement, 3);
    });
    for (const char* setting :
        {"page_size", "journal_mode", "auto_vacuum", "user_version", "application_id", "encoding"})
        database.query(std::string("PRAGMA ") + setting,
            [&](sqlite3_stmt* statement) { schema[std::string("PRAGMA ") + setting] = bytesAt(statement, 0); });
    return schema;
}

void StoreRows::makeNewLinksComparable()
{
    std::set<Cell> identifiers;
    std::map<std::pair<std::int64_t, std::int64_t>, Row> links; // by the note and the place
    for (auto& [key, row] : tables["OVNoteBackLink"]) {
        EXPECT_THAT(row["uniqueIdentifier"], testing::MatchesRegex("'[0-9A-F-]{36}"));
        EXPECT_TRUE(identifiers.insert(row["uniqueIdentifier"]).second);
        EXPECT_THAT(row["modificationDate"], testing::MatchesRegex("[0-9]+"));
        row.erase("uniqueIdentifier");
        row.erase("modificationDate");
        EXPECT_TRUE(links.emplace(std::pair(std::stoll(row["linkedBy"]), std::stoll(row["location"])), row).second);
    }
    Table& table = tables["OVNoteBackLink"];
    table.clear();
    for (auto& [place, row] : links)
        table.emplace(static_cast<std::int64_t>(table.size()) + 1, std::move(row));
}

std::vector<std::string> differences(const StoreRows& expected, const StoreRows& actual)
{
    std::vector<std::string> found;
    compare(expected.tables, actual.tables, found, "");
    compare(expected.metadata, actual.metadata, found, "metadata");
    compare(expected.keys, actual.keys, found, "next key of");
    if (expected.joins != actual.joins) {
        for (const auto& [name, pairs] : expected.joins)
            found.push_back(fmt::format("{} has {} rows instead of {}", name,
                actual.joins.contains(name) ? actual.joins.at(name).size() : 0, pairs.size()));
        found.push_back(fmt::format("there are {} join tables", actual.joins.size()));
    }
    return shortened(std::move(found));
}

std::vector<std::string> differences(
    const std::map<std::string, std::string>& expected, const std::map<std::string, std::string>& actual)
{
    std::vector<std::string> found;
    compare(expected, actual, found, "");
    return shortened(std::move(found));
}

} // namespace tarn
