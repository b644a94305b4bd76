#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <string>
#include <vector>

namespace tarn {

/// The file as another program sees it: the SQLite library and nothing of ours.
class OtherProgram {
public:
    explicit OtherProgram(const std::filesystem::path& file)
    {
        EXPECT_EQ(sqlite3_open_v2(file.c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK);
        sqlite3_busy_timeout(handle_, 10'000);
    }
    ~OtherProgram() { sqlite3_close(handle_); }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    /// Runs the statement; the columns of its rows, joined by "|".
    std::vector<std::string> run(const std::string& sql) const
    {
        std::vector<std::string> rows;
        const auto collect = [](void* rowsPointer, int count, char** values, char**) {
            std::string row;
            for (int i = 0; i < count; ++i)
                row += std::string(i ? "|" : "") + (values[i] ? values[i] : "NULL");
            static_cast<std::vector<std::string>*>(rowsPointer)->push_back(row);
            return 0;
        };
        char* message = nullptr;
        EXPECT_EQ(sqlite3_exec(handle_, sql.c_str(), collect, &rows, &message), SQLITE_OK)
            << sql << ": " << (message ? message : "");
        sqlite3_free(message);
        return rows;
    }

    /// Why the statement is refused, without waiting for anybody; empty when it is not.
    std::string refusalOf(const std::string& sql) const
    {
        sqlite3_busy_timeout(handle_, 0);
        char* message = nullptr;
        sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, &message);
        const std::string refusal = message ? message : "";
        sqlite3_free(message);
        sqlite3_busy_timeout(handle_, 10'000);
        return refusal;
    }

private:
    sqlite3* handle_ = nullptr;
};

} // namespace tarn
