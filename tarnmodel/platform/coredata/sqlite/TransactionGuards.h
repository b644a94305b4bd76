#pragma once

#include <cstdint>

namespace tarn {

class SQLiteConnection;

/// A read transaction for a scope: nobody commits in it. Inside another transaction it is that one.
class ReadTransaction {
public:
    enum class Wait : std::uint8_t { ForLocks, Never };
    /// Throws a `StoreFailure` when the lock cannot be had; with `Never` the transaction is then not open instead.
    explicit ReadTransaction(SQLiteConnection& connection, Wait wait = Wait::ForLocks);
    ~ReadTransaction();
    ReadTransaction(const ReadTransaction&) = delete;
    ReadTransaction& operator=(const ReadTransaction&) = delete;

    bool isOpen() const noexcept { return isOpen_; }

private:
    SQLiteConnection& connection_;
    bool isOwn_;
    bool isOpen_ = true;
};

/// A write transaction for a scope: everything of it or, without `commit`, nothing.
///
/// What fails throws a `StoreFailure`. SQLite ends a transaction by itself after some failures (a full disk, for one).
class WriteTransaction {
public:
    enum class Lock : std::uint8_t {
        Immediate, ///< others may read
        Exclusive,
    };
    WriteTransaction(SQLiteConnection& connection, Lock lock);
    ~WriteTransaction();
    WriteTransaction(const WriteTransaction&) = delete;
    WriteTransaction& operator=(const WriteTransaction&) = delete;

    /// False once it was committed, or when SQLite has ended it.
    bool isOpen() const noexcept;
    /// Waits for readers. After a failure the transaction may be open still.
    void commit();
    /// Takes everything back and keeps the lock.
    void startAgain();

private:
    SQLiteConnection& connection_;
    bool isCommitted_ = false;
};

} // namespace tarn
