#include "platform/coredata/ParallelCount.h"

#include "platform/coredata/ConnectionPool.h"

#include <exception>
#include <limits>
#include <system_error>
#include <thread>

namespace tarn {

namespace {

/// With fewer rows the second thread would come too late.
constexpr std::int64_t kWorthTwoThreads = 2000;

std::int64_t countOf(SQLiteConnection& connection, const SQLText& select)
{
    SQLiteStatement statement = connection.prepare(select.sql);
    bindAll(statement, select.bindings);
    return statement.step() ? statement.integer(0) : 0;
}

/// Counts on a thread of its own; `result` gives the count, or throws what went wrong.
class CountingThread {
public:
    CountingThread(SQLiteConnection& connection, const SQLText& select)
        : thread_([this, &connection, &select] {
              try {
                  count_ = countOf(connection, select);
              } catch (...) {
                  failure_ = std::current_exception();
              }
          })
    { }
    ~CountingThread()
    {
        if (thread_.joinable())
            thread_.join();
    }
    CountingThread(const CountingThread&) = delete;
    CountingThread& operator=(const CountingThread&) = delete;

    std::int64_t result()
    {
        thread_.join();
        if (failure_)
            std::rethrow_exception(failure_);
        return count_;
    }

private:
    std::int64_t count_ = 0;
    std::exception_ptr failure_;
    std::thread thread_; // last: it writes to the others
};

/// Ends the second connection's transaction, after its thread.
class PassToEnd {
public:
    explicit PassToEnd(SQLiteConnection& connection) : connection_(connection) { }
    ~PassToEnd() { connection_.rollBack(); }
    PassToEnd(const PassToEnd&) = delete;
    PassToEnd& operator=(const PassToEnd&) = delete;

private:
    SQLiteConnection& connection_;
};

} // namespace

std::optional<std::size_t> countOnTwoThreads(
    ConnectionPool& pool, SQLiteConnection& first, const SQLGenerator& generator, const StoreFetch& fetch)
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
    if (!access || !access->connection().beginReadingAtOnce())
        return std::nullopt;
    const PassToEnd pass(access->connection());

    const auto middle = static_cast<std::int64_t>(static_cast<std::uint64_t>(lowest) + span / 2);
    const GeneratedSelect upper = generator.countInRange(fetch, {middle + 1, std::numeric_limits<std::int64_t>::max()});
    const GeneratedSelect lower = generator.countInRange(fetch, {std::numeric_limits<std::int64_t>::min(), middle});
    if (upper.remainder)
        return std::nullopt;
    try {
        CountingThread thread(access->connection(), upper.text);
        const std::int64_t count = countOf(first, lower.text);
        return static_cast<std::size_t>(count + thread.result());
    } catch (const std::system_error&) {
        return std::nullopt; // no thread to be had
    }
}

} // namespace tarn
