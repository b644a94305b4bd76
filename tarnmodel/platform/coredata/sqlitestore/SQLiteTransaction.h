#pragma once

#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteRowWriter.h"

namespace tarn {

class SQLiteStore;

enum class WritingEnd : std::uint8_t { Committed, RolledBack };

/// The write transaction of a SQLite store; holds the turn to write and the file's lock from its making.
class SQLiteTransaction final : public StoreTransaction {
public:
    /// Throws a `StoreFailure` when the lock cannot be had.
    explicit SQLiteTransaction(SQLiteStore& store);
    ~SQLiteTransaction() override;
    SQLiteTransaction(const SQLiteTransaction&) = delete;
    SQLiteTransaction& operator=(const SQLiteTransaction&) = delete;

    std::uint64_t stateNumber() const override { return stateNumber_; }
    bool insertRow(const StoreRow& row, NSError* error) override;
    RowWriteResult updateRow(const StoreRow& row, PropertyMask changed, NSError* error) override;
    RowWriteResult deleteRow(
        const NSEntityDescription& entity, std::int64_t key, std::int64_t version, NSError* error) override;
    bool changeJoins(std::span<const JoinChange> changes, NSError* error) override;
    bool commit(NSError* error) override;

private:
    void requireOpen() const;
    bool wasCommittedAllTheSame(const NSError& failure);
    void finish(WritingEnd end) noexcept;

    SQLiteStore& store_;
    SQLiteConnection& connection_;
    SQLiteRowWriter writer_;
    std::uint64_t stateNumber_;
    bool finished_ = false;
};

} // namespace tarn
