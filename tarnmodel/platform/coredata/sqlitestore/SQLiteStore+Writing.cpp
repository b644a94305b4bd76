#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteStoreFile.h"
#include "tarnmodel/platform/coredata/sqlite/SearchTables.h"
#include "tarnmodel/platform/coredata/sqlitestore/SQLiteStore.h"
#include "tarnmodel/platform/coredata/sqlitestore/SQLiteTransaction.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

namespace tarn {

void SQLiteStore::beginWriting()
{
    if (readOnly_)
        throw StoreFailure(StoreErrorReadOnly, "The store is read-only.");
    pool_->checkFileIsTheSame();
    if (!pool_->turn().take(pool_->patience()))
        throw StoreFailure(
            StoreErrorBusy, pool_->turn().isMine() ? "This thread has a transaction already." : "The store is in use.");
    try {
        writing_.emplace(pool_->writer(), WriteTransaction::Lock::Immediate);
        // Another process may have swapped the file while this one waited for the lock.
        pool_->checkFileIsTheSame();
        reservedKeys_.keep(pool_->writer());
        followDerivedValues(pool_->writer());
    } catch (...) {
        endWriting(WritingEnd::RolledBack);
        throw;
    }
}

void SQLiteStore::endWriting(WritingEnd end) noexcept
{
    writing_.reset();
    // What followed the derived values was taken back with the rest.
    if (end == WritingEnd::RolledBack)
        writerVersion_ = -1;
    else
        reservedKeys_.clear();
    pool_->turn().giveBack();
}

std::unique_ptr<StoreTransaction> SQLiteStore::beginTransaction(NSError* error)
{
    std::unique_ptr<StoreTransaction> transaction;
    reportingFailure(error, [&] { transaction = std::make_unique<SQLiteTransaction>(*this); });
    return transaction;
}

void SQLiteStore::write(const std::function<void(SQLiteConnection&)>& work)
{
    SQLiteConnection& connection = pool_->writer();
    if (pool_->turn().isMine()) {
        work(connection);
        return;
    }
    beginWriting();
    try {
        work(connection);
        writing_->commit();
    } catch (...) {
        endWriting(WritingEnd::RolledBack);
        throw;
    }
    endWriting(WritingEnd::Committed);
}

/// Takes back all that the transaction wrote but the keys that it reserved: these are out in the world, in identifiers
/// of records. The lock is held until they are safe, or another process could take them in between. Where they cannot
/// be written, the next transaction tries again.
void SQLiteStore::rollBack() noexcept
{
    const auto keepKeys = [&] {
        reservedKeys_.keep(pool_->writer());
        writing_->commit();
        reservedKeys_.clear();
    };
    const auto takeBack = [&] {
        writing_->startAgain();
        keepKeys();
    };
    if (!reservedKeys_.isEmpty() && writing_->isOpen() && reportingFailure(nullptr, takeBack))
        return;
    writing_.reset();
    // After some failures SQLite has given up the lock by itself.
    const auto beginAgain = [&] {
        writing_.emplace(pool_->writer(), WriteTransaction::Lock::Immediate);
        keepKeys();
    };
    if (!reservedKeys_.isEmpty() && !reportingFailure(nullptr, beginAgain))
        writing_.reset();
}

bool SQLiteStore::reserveKeys(const NSEntityDescription& root, std::size_t count, std::int64_t& first, NSError* error)
{
    const NSEntityDescription& top = root.rootEntity();
    return reportingFailure(error, [&] {
        const bool joinsTransaction = pool_->turn().isMine();
        write([&](SQLiteConnection& connection) { first = takeKeys(connection, schema_.table(top).name, top, count); });
        if (joinsTransaction)
            reservedKeys_.note(top, first + static_cast<std::int64_t>(count));
    });
}

// Derived values ------------------------------------------------------------------------------------------------------

/// Folded values and signatures are made by the newest version that writes to the store: whoever is newer makes those
/// of others stale, whoever is older leaves its own stale. At the beginning of a transaction that writes.
void SQLiteStore::followDerivedValues(SQLiteConnection& connection)
{
    const std::int64_t version = connection.integerOf("PRAGMA data_version");
    dataVersion_ = static_cast<std::uint64_t>(version);
    if (version == writerVersion_)
        return;
    if (!holdsAll(connection, schema_.laterStatements())) {
        addVersionTriggers(connection, schema_);
        if (!hasSearchTables(connection, schema_))
            addSearchTables(connection, schema_);
    }
    const int stored = foldingVersionOf(readStoreMetadata(connection));
    if (stored < foldingVersion()) {
        foldAgain(connection, schema_);
        forgetSignatures(connection, schema_);
    }
    const bool isOlder = stored > foldingVersion();
    derivedValues_ = isOlder ? DerivedValues::LeftStale : DerivedValues::Written;
    usesShadows_ = !isOlder;
    writerVersion_ = version;
}

/// What other programs have made stale is made good a little at a time, in transactions that write texts anyway.
void SQLiteStore::fillSomeSignatures(SQLiteConnection& connection)
{
    constexpr std::size_t kSome = 32;
    for (const auto& mirror : searchIndex_.mirrors()) {
        if (derivedValues_ == DerivedValues::Written)
            rewriteSignatures(connection, mirror->table(), mirror->takeStaleKeys(kSome));
        trimChanges(connection, mirror->table());
    }
}

} // namespace tarn
