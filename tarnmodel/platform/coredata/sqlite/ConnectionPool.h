#pragma once

#include "tarnmodel/platform/coredata/rows/WriterLock.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace tarn {

class ConnectionPool;

/// A connection to read with, for the scope of one operation: a reading one on loan, or the writing one for the thread
/// whose transaction is open.
class ReadAccess {
public:
    ReadAccess(ReadAccess&& other) noexcept;
    ReadAccess& operator=(ReadAccess&&) = delete;
    ~ReadAccess();
    SQLiteConnection& connection() const noexcept { return *connection_; }

private:
    friend class ConnectionPool;
    ReadAccess(ConnectionPool& pool, SQLiteConnection& connection, std::unique_ptr<SQLiteConnection> onLoan);
    ConnectionPool* pool_;
    SQLiteConnection* connection_;
    std::unique_ptr<SQLiteConnection> onLoan_; ///< null for the writing one
};

/// The connections of a store: one that writes, and a few that read. Any thread.
///
/// Closing any descriptor of the file drops the locks of all of them, so nothing else in the process may open it by
/// plain file calls while the pool lives.
class ConnectionPool {
public:
    ConnectionPool(const std::filesystem::path& file, const SQLiteConnectionOptions& options);

    /// For the holder of the turn.
    SQLiteConnection& writer() noexcept { return *writer_; }
    WriterLock& turn() noexcept { return turn_; }
    /// Throws `StoreErrorReplaced` when another file has taken the store's place.
    ReadAccess read();
    /// A reading connection, if one is to be had without waiting.
    std::optional<ReadAccess> readAtOnce();
    void checkFileIsTheSame() const;
    std::chrono::milliseconds patience() const noexcept { return options_.patience; }
    /// Grows when a reading connection comes back that has met a commit.
    std::uint64_t commitsMet() const noexcept { return commitsMet_; }

private:
    friend class ReadAccess;
    struct FileIdentity {
        std::uint64_t device = 0;
        std::uint64_t number = 0;
        friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
    };
    std::optional<FileIdentity> identityOfFile() const;
    ReadAccess lend();
    void takeBack(std::unique_ptr<SQLiteConnection> connection) noexcept;

    std::filesystem::path file_;
    SQLiteConnectionOptions options_;
    std::unique_ptr<SQLiteConnection> writer_;
    WriterLock turn_;
    std::optional<FileIdentity> identity_;
    std::mutex mutex_;
    std::condition_variable returned_;
    std::vector<std::unique_ptr<SQLiteConnection>> idle_;
    int readerCount_ = 0;
    std::atomic<std::uint64_t> commitsMet_ = 0;
};

} // namespace tarn
