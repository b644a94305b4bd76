#include "platform/coredata/SQLiteTransaction.h"

#include "platform/coredata/SQLiteStore.h"
#include "platform/coredata/StoreFailure.h"

namespace tarn {

SQLiteTransaction::SQLiteTransaction(SQLiteStore& store)
    : store_(store), connection_(store.pool_->writer()), writer_(store.schema_, connection_)
{
    store_.beginWriting();
    writer_.setDerivedValues(store_.derivedValues_);
}

SQLiteTransaction::~SQLiteTransaction()
{
    if (finished_)
        return;
    connection_.rollBack();
    finish(WritingEnd::RolledBack);
}

void SQLiteTransaction::finish(WritingEnd end) noexcept
{
    finished_ = true;
    if (end == WritingEnd::RolledBack)
        store_.keepReservedKeys();
    store_.endWriting(end);
}

void SQLiteTransaction::requireOpen() const
{
    // After some failures (a full disk, for one) SQLite rolls back by itself; what came next would stand alone.
    if (finished_ || !connection_.isInTransaction())
        throw StoreFailure(StoreErrorGeneric, "The transaction is over.");
}

bool SQLiteTransaction::insertRow(const StoreRow& row, NSError* error)
{
    return reportingFailure(error, [&] {
        requireOpen();
        writer_.insert(row);
    });
}

RowWriteResult SQLiteTransaction::updateRow(const StoreRow& row, PropertyMask changed, NSError* error)
{
    RowWriteResult result = RowWriteResult::Failed;
    reportingFailure(error, [&] {
        requireOpen();
        result = writer_.update(row, changed);
    });
    return result;
}

RowWriteResult SQLiteTransaction::deleteRow(
    const NSEntityDescription& entity, std::int64_t key, std::int64_t version, NSError* error)
{
    RowWriteResult result = RowWriteResult::Failed;
    reportingFailure(error, [&] {
        requireOpen();
        result = writer_.remove(entity, key, version);
    });
    return result;
}

bool SQLiteTransaction::changeJoins(std::span<const JoinChange> changes, NSError* error)
{
    return reportingFailure(error, [&] {
        requireOpen();
        writer_.changeJoins(changes);
    });
}

bool SQLiteTransaction::commit(NSError* error)
{
    if (finished_) {
        assignError(error, NSError(TarnStoreErrorDomain, StoreErrorGeneric, "The transaction is over."));
        return false;
    }
    const bool committed = reportingFailure(error, [&] {
        requireOpen();
        writer_.clearMissingTargets();
        if (writer_.hasWrittenSignatures())
            store_.fillSomeSignatures(connection_);
        connection_.execute("COMMIT"); // waits for readers by the busy handler
    });
    if (!committed)
        connection_.rollBack();
    finish(committed ? WritingEnd::Committed : WritingEnd::RolledBack);
    return committed;
}

} // namespace tarn
