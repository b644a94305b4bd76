#include "tests/support/GoldenStore.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <fstream>
#include <iterator>
#include <string>

namespace tarn {

void makeGoldenStore(const std::filesystem::path& file, std::string_view version)
{
    const std::filesystem::path dump
        = std::filesystem::path(TARN_TEST_CASES) / "golden-stores" / (std::string(version) + ".sql");
    std::ifstream stream(dump, std::ios::binary);
    const std::string sql{std::istreambuf_iterator<char>(stream), {}};
    EXPECT_FALSE(sql.empty()) << dump;
    EXPECT_FALSE(std::filesystem::exists(file)) << file;

    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
    EXPECT_EQ(sqlite3_close(database), SQLITE_OK);
}

} // namespace tarn
