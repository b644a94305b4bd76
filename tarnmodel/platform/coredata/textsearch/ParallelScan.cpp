#include "tarnmodel/platform/coredata/textsearch/ParallelScan.h"

#include "tarnmodel/platform/coredata/sqlite/ConnectionPool.h"
#include "tarnmodel/platform/coredata/sqlite/TransactionGuards.h"

#include <exception>
#include <limits>
#include <system_error>
#include <thread>
#include <utility>

namespace tarn {

namespace {

/// With fewer rows the second thread would come too late.
constexpr std::uint64_t kWorthTwoThreads = 2000;

/// What a SELECT of one column gives.
std::vector<std::int64_t> columnOf(SQLiteConnection& connection, const SQLText& select)
{
    std::vector<std::int64_t> values;
    SQLiteStatement statement = connection.prepare(select.sql);
    bindAll(statement, select.bindings);
    while (statement.step())
        values.push_back(statement.integer(0));
    return values;
}

/// Reads on a thread of its own; `result` gives the column, or throws what went wrong.
class ReadingThread {
public:
    ReadingThread(SQLiteConnection& connection, const SQLText& select)
        : thread_([this, &connection, &select] {
              try {
                  values_ = columnOf(connection, select);
              } catch (...) {
                  failure_ = std::current_exception();
              }
          })
    { }
    ~ReadingThread()
    {
        if (thread_.joinable())
            thread_.join();
    }
    ReadingThread(const ReadingThread&) = delete;
    ReadingThread& operator=(const ReadingThread&) = delete;

    std::vector<std::int64_t> result()
    {
        thread_.join();
        if (failure_)
            std::rethrow_exception(failure_);
        return std::move(values_);
    }

private:
    std::vector<std::int64_t> values_;
    std::exception_ptr failure_;
    std::thread thread_; // last: it writes to the others
};

/// What both halves give, those of the lower keys first.
struct Halves {
    std::vector<std::int64_t> lower;
    std::vector<std::int64_t> upper;
};

template <typename SelectInRange>
std::optional<Halves> readInHalves(
    ConnectionPool& pool, SQLiteConnection& first, const StoreFetch& fetch, SelectInRange&& selectInRange)
{
    if (first.isWriting() || std::thread::hardware_concurrency() < 2)
        return std::nullopt;
    const std::string table = quotedIdentifier(fetch.entity->rootEntity().name());
    const std::int64_t lowest = first.integerOf("SELECT min(\"pk\") FROM " + table);
    const std::int64_t highest = first.integerOf("SELECT max(\"pk\") FROM " + table);
    const auto span = static_cast<std::uint64_t>(highest) - static_cast<std::uint64_t>(lowest);
    if (span < kWorthTwoThreads)
        return std::nullopt;
    const auto access = pool.readAtOnce();
    if (!access)
        return std::nullopt;
    const ReadTransaction pass(access->connection(), ReadTransaction::Wait::Never); // ends after the thread
    if (!pass.isOpen())
        return std::nullopt;

    const auto middle = static_cast<std::int64_t>(static_cast<std::uint64_t>(lowest) + span / 2);
    const GeneratedSelect upper = selectInRange(KeyRange{middle + 1, std::numeric_limits<std::int64_t>::max()});
    const GeneratedSelect lower = selectInRange(KeyRange{std::numeric_limits<std::int64_t>::min(), middle});
    if (upper.remainder)
        return std::nullopt;
    try {
        ReadingThread thread(access->connection(), upper.text);
        Halves halves;
        halves.lower = columnOf(first, lower.text);
        halves.upper = thread.result();
        return halves;
    } catch (const std::system_error&) {
        return std::nullopt; // no thread to be had
    }
}

} // namespace

std::optional<std::size_t> countOnTwoThreads(
    ConnectionPool& pool, SQLiteConnection& first, const SQLGenerator& generator, const StoreFetch& fetch)
{
    const auto halves
        = readInHalves(pool, first, fetch, [&](KeyRange range) { return generator.countInRange(fetch, range); });
    if (!halves)
        return std::nullopt;
    return static_cast<std::size_t>(halves->lower.front() + halves->upper.front());
}

std::optional<std::vector<std::int64_t>> keysOnTwoThreads(
    ConnectionPool& pool, SQLiteConnection& first, const SQLGenerator& generator, const StoreFetch& fetch)
{
    auto halves = readInHalves(pool, first, fetch, [&](KeyRange range) { return generator.keysInRange(fetch, range); });
    if (!halves)
        return std::nullopt;
    halves->lower.insert(halves->lower.end(), halves->upper.begin(), halves->upper.end());
    return std::move(halves->lower);
}

std::vector<std::int64_t> keysOnOneThread(
    SQLiteConnection& connection, const SQLGenerator& generator, const StoreFetch& fetch)
{
    constexpr KeyRange kAll{std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()};
    return columnOf(connection, generator.keysInRange(fetch, kAll).text);
}

} // namespace tarn
