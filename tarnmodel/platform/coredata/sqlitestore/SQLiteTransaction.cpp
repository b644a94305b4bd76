#include "tarnmodel/platform/coredata/sqlitestore/SQLiteTransaction.h"

#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlitestore/SQLiteStore.h"
#include "tarnmodel/platform/foundation/system/Log.h"

namespace tarn {

SQLiteTransaction::SQLiteTransaction(SQLiteStore& store)
    : store_(store), connection_(store.pool_->writer()), writer_(store.schema_, connection_)
{
    store_.beginWriting();
    stateNumber_ = store_.stateNumber();
    writer_.setDerivedValues(store_.derivedValues_);
}

SQLiteTransaction::~SQLiteTransaction()
{
    if (finished_)
        return;
    store_.rollBack();
    finish(WritingEnd::RolledBack);
}

void SQLiteTransaction::finish(WritingEnd end) noexcept
{
    finished_ = true;
    if (end == WritingEnd::Committed)
        stateNumber_ = ++store_.commits_ + (stateNumber_ >> 32 << 32);
    store_.endWriting(end);
}

void SQLiteTransaction::requireOpen() const
{
    if (finished_)
        throw StoreFailure(StoreErrorGeneric, "The transaction is over.");
    // After some failures (a full disk, for one) SQLite rolls back by itself; what came next would stand alone. When a
    // failure was not this transaction's own (will-save observers read and take keys), it is told here.
    if (!connection_.isInTransaction())
        throw StoreFailure(connection_.failureOutsideOfTransaction().value_or(
            NSError(TarnStoreErrorDomain, StoreErrorGeneric, "The transaction is over.")));
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
    NSError failure;
    bool committed = reportingFailure(&failure, [&] {
        requireOpen();
        writer_.clearMissingTargets();
        if (writer_.hasWrittenSignatures())
            store_.fillSomeSignatures(connection_);
        store_.writing_->commit();
    });
    if (!committed) {
        store_.rollBack();
        committed = wasCommittedAllTheSame(failure);
    }
    if (!committed)
        assignError(error, failure);
    finish(committed ? WritingEnd::Committed : WritingEnd::RolledBack);
    return committed;
}

/// The commit is the removal of the journal. When the folder cannot be synced after it SQLite reports a failure, but
/// the save is there; a caller that tried again would write it twice.
bool SQLiteTransaction::wasCommittedAllTheSame(const NSError& failure)
{
    if (failure.code() != StoreErrorIO)
        return false;
    bool isThere = false;
    reportingFailure(nullptr, [&] { isThere = writer_.findsInsertedRows(); });
    if (isThere)
        logMessage("A save is in the store, but a power failure may still undo it: " + failure.localizedDescription());
    return isThere;
}

} // namespace tarn
