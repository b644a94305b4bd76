#include "tarnmodel/platform/coredata/sqlite/ConnectionPool.h"

#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"

#include <sys/stat.h>

namespace tarn {

namespace {

constexpr int kMostReaders = 4;

} // namespace

// Access --------------------------------------------------------------------------------------------------------------

ReadAccess::ReadAccess(ConnectionPool& pool, SQLiteConnection& connection, std::unique_ptr<SQLiteConnection> onLoan)
    : pool_(&pool), connection_(&connection), onLoan_(std::move(onLoan))
{ }

ReadAccess::ReadAccess(ReadAccess&& other) noexcept
    : pool_(other.pool_), connection_(other.connection_), onLoan_(std::move(other.onLoan_))
{ }

ReadAccess::~ReadAccess()
{
    if (onLoan_)
        pool_->takeBack(std::move(onLoan_));
}

// Pool ----------------------------------------------------------------------------------------------------------------

ConnectionPool::ConnectionPool(const std::filesystem::path& file, const SQLiteConnectionOptions& options)
    : file_(file.empty() ? file : std::filesystem::absolute(file)), options_(options)
{
    do {
        writer_ = std::make_unique<SQLiteConnection>(file_, options);
        identity_ = identityOfFile();
    } while (identity_ && writer_->hasMovedFile());
}

std::optional<ConnectionPool::FileIdentity> ConnectionPool::identityOfFile() const
{
    struct stat status { };
    if (stat(file_.c_str(), &status) != 0)
        return std::nullopt;
    return FileIdentity{static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino)};
}

void ConnectionPool::checkFileIsTheSame() const
{
    if (identityOfFile() != identity_)
        throw StoreFailure(StoreErrorReplaced, "the store was replaced; open it again");
}

ReadAccess ConnectionPool::read()
{
    checkFileIsTheSame();
    if (turn_.isMine())
        return {*this, *writer_, nullptr};
    std::unique_lock lock(mutex_);
    returned_.wait(lock, [this] { return !idle_.empty() || readerCount_ < kMostReaders; });
    return lend();
}

std::optional<ReadAccess> ConnectionPool::readAtOnce()
{
    checkFileIsTheSame();
    const std::scoped_lock lock(mutex_);
    if (idle_.empty() && readerCount_ >= kMostReaders)
        return std::nullopt;
    return lend();
}

/// With the mutex held.
ReadAccess ConnectionPool::lend()
{
    std::unique_ptr<SQLiteConnection> connection;
    if (!idle_.empty()) {
        connection = std::move(idle_.back());
        idle_.pop_back();
    } else {
        SQLiteConnectionOptions options = options_;
        options.create = false;
        options.queryOnly = true;
        options.pragmas.erase("journal_mode"); // the writing connection has set it
        connection = std::make_unique<SQLiteConnection>(file_, options);
        checkFileIsTheSame(); // or this would be the only one that reads the new file
        ++readerCount_;
    }
    SQLiteConnection& lent = *connection;
    return {*this, lent, std::move(connection)};
}

void ConnectionPool::takeBack(std::unique_ptr<SQLiteConnection> connection) noexcept
{
    if (connection->hasMetCommit())
        ++commitsMet_;
    {
        std::scoped_lock lock(mutex_);
        idle_.push_back(std::move(connection));
    }
    returned_.notify_one();
}

} // namespace tarn
