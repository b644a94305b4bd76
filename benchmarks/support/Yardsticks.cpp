#include "benchmarks/support/Yardsticks.h"

#include <fcntl.h>
#include <malloc.h>
#include <sqlite3.h>
#include <unistd.h>

#include <random>
#include <stdexcept>

namespace tarn {

namespace {

class Descriptor {
public:
    Descriptor(const std::filesystem::path& file, int flags) : number_(::open(file.c_str(), flags, 0600))
    {
        if (number_ < 0)
            throw std::runtime_error("cannot open " + file.string());
    }
    ~Descriptor() { ::close(number_); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    void write(const std::string& text) const
    {
        if (::write(number_, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
            throw std::runtime_error("short write");
    }
    void sync() const { ::fsync(number_); }

private:
    int number_;
};

class Database {
public:
    explicit Database(const std::filesystem::path& file)
    {
        if (sqlite3_open_v2(file.c_str(), &handle_, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK)
            throw std::runtime_error("cannot open " + file.string());
        // Takes the length of a text without converting it, so that the pages are read and nothing else is done.
        sqlite3_create_function(
            handle_, "byte_length", 1, SQLITE_UTF8, nullptr,
            [](sqlite3_context* context, int, sqlite3_value** values) {
                sqlite3_result_int(context, sqlite3_value_bytes(values[0]));
            },
            nullptr, nullptr);
    }
    ~Database() { sqlite3_close(handle_); }
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    sqlite3_stmt* prepare(const char* sql)
    {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(handle_, sql, -1, &statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(handle_));
        return statement;
    }

private:
    sqlite3* handle_ = nullptr;
};

} // namespace

double secondsToWrite(const std::filesystem::path& folder, const std::vector<std::string>& texts)
{
    const auto file = folder / "yardstick.write";
    const double seconds = medianSeconds(3, [&](int) {
        const Descriptor descriptor(file, O_CREAT | O_TRUNC | O_WRONLY);
        for (const std::string& text : texts)
            descriptor.write(text);
        descriptor.sync();
    });
    std::filesystem::remove(file);
    return seconds;
}

double secondsToCommit(const std::filesystem::path& folder)
{
    const auto file = folder / "yardstick.database";
    const auto journal = folder / "yardstick.journal";
    const std::string page(8192, 'x');
    {
        const Descriptor database(file, O_CREAT | O_TRUNC | O_WRONLY);
        database.write(page);
    }
    const double seconds = medianSeconds(101, [&](int) {
        {
            const Descriptor log(journal, O_CREAT | O_TRUNC | O_WRONLY);
            log.write(page);
            log.sync();
        }
        const Descriptor database(file, O_WRONLY);
        database.write(page);
        database.sync();
        ::unlink(journal.c_str());
        const Descriptor directory(folder, O_RDONLY | O_DIRECTORY);
        directory.sync();
    });
    std::filesystem::remove(file);
    return seconds;
}

double secondsToReadTexts(const std::filesystem::path& database)
{
    Database store(database);
    sqlite3_stmt* statement = store.prepare("SELECT sum(byte_length(text)) FROM \"OVNote_large\"");
    const double seconds = medianSeconds(5, [&](int) {
        while (sqlite3_step(statement) == SQLITE_ROW) { }
        sqlite3_reset(statement);
    });
    sqlite3_finalize(statement);
    return seconds;
}

double secondsForPointLookup(const std::filesystem::path& database)
{
    constexpr int lookups = 10000;
    Database store(database);
    sqlite3_stmt* largest = store.prepare("SELECT max(pk) FROM \"OVNote\"");
    sqlite3_step(largest);
    const std::int64_t count = std::max<std::int64_t>(1, sqlite3_column_int64(largest, 0));
    sqlite3_finalize(largest);
    std::mt19937 random(1);
    sqlite3_stmt* statement = store.prepare("SELECT title FROM \"OVNote\" WHERE pk = ?");
    const double seconds = medianSeconds(5, [&](int) {
        for (int number = 0; number < lookups; ++number) {
            sqlite3_bind_int64(statement, 1, 1 + static_cast<std::int64_t>(random()) % count);
            sqlite3_step(statement);
            sqlite3_reset(statement);
        }
    });
    sqlite3_finalize(statement);
    return seconds / lookups;
}

std::size_t allocatedMemory()
{
    const struct mallinfo2 usage = mallinfo2();
    return usage.uordblks + usage.hblkhd;
}

} // namespace tarn
