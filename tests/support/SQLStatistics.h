#pragma once

#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

struct sqlite3;

namespace tarn {

/// Counts what SQLite does on every connection that is opened while it lives. One at a time; make it before the store.
class SQLStatistics {
public:
    struct Counts {
        std::int64_t statements = 0;
        std::int64_t rows = 0;          ///< that statements gave
        std::int64_t scannedRows = 0;   ///< that were stepped over without the help of an index
        std::int64_t steps = 0;         ///< of SQLite's machine
        std::int64_t pages = 0;         ///< that were looked at, in memory or not; a long text has several
        std::vector<std::string> texts; ///< of the statements, in order
    };

    SQLStatistics();
    ~SQLStatistics();
    SQLStatistics(const SQLStatistics&) = delete;
    SQLStatistics& operator=(const SQLStatistics&) = delete;

    /// What was done since the last time.
    Counts take();

private:
    static int watch(sqlite3* database, char** message, const void* routines);
    static int note(unsigned event, void* context, void* subject, void* detail);

    static SQLStatistics* current_;
    std::mutex mutex_;
    Counts counts_;
};

} // namespace tarn
