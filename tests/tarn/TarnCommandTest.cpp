#include "tests/tarn/TarnCommandTest.h"

#include <fstream>
#include <sqlite3.h>
#include <stdexcept>

namespace tarn::test {

namespace fs = std::filesystem;

TarnCommandTest::TarnCommandTest()
{
    std::string pattern = (fs::temp_directory_path() / "tarn tést XXXXXX").string();
    if (!::mkdtemp(pattern.data()))
        throw std::runtime_error("no folder for the test");
    folder_ = pattern;
}

TarnCommandTest::~TarnCommandTest()
{
    std::error_code error;
    fs::remove_all(folder_, error);
}

std::vector<std::string> TarnCommandTest::arguments(std::vector<std::string> arguments) const
{
    arguments.insert(arguments.begin(), {"--store", store().string()});
    return arguments;
}

TarnResult TarnCommandTest::run(std::vector<std::string> given, std::string input) const
{
    TarnProcess process(arguments(std::move(given)));
    process.setVariable("TMPDIR", folder_.string());
    process.setVariable("XDG_DATA_HOME", (folder_ / "data").string());
    process.setVariable("XDG_CACHE_HOME", (folder_ / "cache").string());
    process.setInput(std::move(input));
    return process.finish();
}

nlohmann::json TarnCommandTest::json(std::vector<std::string> given, std::string input) const
{
    given.insert(given.begin(), "--json");
    const TarnResult result = run(std::move(given), std::move(input));
    return nlohmann::json::parse(result.output, nullptr, false);
}

std::string TarnCommandTest::output(std::vector<std::string> given, std::string input) const
{
    const TarnResult result = run(std::move(given), std::move(input));
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    return result.output;
}

std::string TarnCommandTest::note(std::string text) const
{
    return json({"new"}, std::move(text)).at("uniqueIdentifier");
}

fs::path TarnCommandTest::file(const std::string& name, std::string_view contents) const
{
    const fs::path path = folder_ / name;
    fs::create_directories(path.parent_path());
    std::ofstream stream(path, std::ios::binary);
    stream.write(contents.data(), static_cast<std::streamsize>(contents.size()));
    return path;
}

void TarnCommandTest::damage(const std::string& sql) const
{
    sqlite3* connection = nullptr;
    ASSERT_EQ(sqlite3_open(database().c_str(), &connection), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(connection);
    sqlite3_close(connection);
}

std::string TarnCommandTest::stored(const std::string& sql) const
{
    std::string value;
    const auto take = [](void* result, int count, char** values, char**) {
        if (count > 0 && values[0])
            *static_cast<std::string*>(result) = values[0];
        return 0;
    };
    sqlite3* connection = nullptr;
    EXPECT_EQ(sqlite3_open(database().c_str(), &connection), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(connection, sql.c_str(), take, &value, nullptr), SQLITE_OK) << sqlite3_errmsg(connection);
    sqlite3_close(connection);
    return value;
}

std::vector<std::string> keysOf(const nlohmann::ordered_json& object)
{
    std::vector<std::string> keys;
    for (const auto& [key, value] : object.items())
        keys.push_back(key);
    return keys;
}

std::vector<std::string> titlesOf(const nlohmann::json& document)
{
    std::vector<std::string> titles;
    for (const auto& note : document.at("notes"))
        titles.push_back(note.at("title"));
    return titles;
}

} // namespace tarn::test
