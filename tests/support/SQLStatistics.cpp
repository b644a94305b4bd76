#include "tests/support/SQLStatistics.h"

#include <sqlite3.h>

#include <utility>

namespace tarn {

SQLStatistics* SQLStatistics::current_ = nullptr;

namespace {

using EntryPoint = void (*)();

std::int64_t takenPages(sqlite3* database)
{
    std::int64_t pages = 0;
    for (const int kind : {SQLITE_DBSTATUS_CACHE_HIT, SQLITE_DBSTATUS_CACHE_MISS}) {
        int count = 0;
        int highest = 0;
        sqlite3_db_status(database, kind, &count, &highest, 1);
        pages += count;
    }
    return pages;
}

} // namespace

SQLStatistics::SQLStatistics()
{
    current_ = this;
    sqlite3_auto_extension(reinterpret_cast<EntryPoint>(&watch));
}

SQLStatistics::~SQLStatistics()
{
    sqlite3_cancel_auto_extension(reinterpret_cast<EntryPoint>(&watch));
    current_ = nullptr;
}

SQLStatistics::Counts SQLStatistics::take()
{
    const std::scoped_lock lock(mutex_);
    return std::exchange(counts_, {});
}

int SQLStatistics::watch(sqlite3* database, char**, const void*)
{
    const unsigned events = SQLITE_TRACE_STMT | SQLITE_TRACE_ROW | SQLITE_TRACE_PROFILE;
    return sqlite3_trace_v2(database, events, &note, nullptr);
}

int SQLStatistics::note(unsigned event, void*, void* subject, void* detail)
{
    SQLStatistics* statistics = current_;
    if (!statistics)
        return 0;
    auto* statement = static_cast<sqlite3_stmt*>(subject);
    const std::scoped_lock lock(statistics->mutex_);
    Counts& counts = statistics->counts_;
    if (event == SQLITE_TRACE_STMT) {
        ++counts.statements;
        counts.texts.emplace_back(static_cast<const char*>(detail));
    } else if (event == SQLITE_TRACE_ROW) {
        ++counts.rows;
    } else {
        counts.scannedRows += sqlite3_stmt_status(statement, SQLITE_STMTSTATUS_FULLSCAN_STEP, 1);
        counts.steps += sqlite3_stmt_status(statement, SQLITE_STMTSTATUS_VM_STEP, 1);
        counts.pages += takenPages(sqlite3_db_handle(statement));
    }
    return 0;
}

} // namespace tarn
