#include "tarnmodel/platform/coredata/sqlite/TransactionGuards.h"

#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"

#include <sqlite3.h>

#include <optional>

namespace tarn {

namespace {

void rollBack(SQLiteConnection& connection) noexcept
{
    // SQLite has rolled back by itself after some failures; a second ROLLBACK is then an error without meaning.
    if (connection.isInTransaction())
        sqlite3_exec(connection.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

} // namespace

ReadTransaction::ReadTransaction(SQLiteConnection& connection, Wait wait)
    : connection_(connection), isOwn_(!connection.isInTransaction())
{
    if (!isOwn_)
        return;
    std::optional<SQLiteConnection::WithoutWaiting> impatience;
    if (wait == Wait::Never)
        impatience.emplace(connection_);
    try {
        connection_.execute("BEGIN");
        connection_.integerOf("PRAGMA data_version"); // takes the lock
    } catch (const StoreFailure&) {
        rollBack(connection_);
        if (wait == Wait::ForLocks)
            throw;
        isOpen_ = false;
    }
}

ReadTransaction::~ReadTransaction()
{
    if (isOwn_)
        rollBack(connection_); // there is nothing to keep
}

WriteTransaction::WriteTransaction(SQLiteConnection& connection, Lock lock) : connection_(connection)
{
    connection_.execute(lock == Lock::Immediate ? "BEGIN IMMEDIATE" : "BEGIN EXCLUSIVE");
    try {
        connection_.execute("SAVEPOINT \"start\"");
    } catch (...) {
        rollBack(connection_);
        throw;
    }
}

WriteTransaction::~WriteTransaction()
{
    if (!isCommitted_)
        rollBack(connection_);
}

bool WriteTransaction::isOpen() const noexcept
{
    return !isCommitted_ && connection_.isInTransaction();
}

void WriteTransaction::commit()
{
    connection_.execute("COMMIT");
    isCommitted_ = true;
}

void WriteTransaction::startAgain()
{
    connection_.execute("ROLLBACK TO \"start\"");
}

} // namespace tarn
