#pragma once

#include "tarnmodel/platform/coredata/memory/InMemoryStore.h"

#include <vector>

namespace tarn {

/// The write transaction of a store in memory. Made by the holder of the turn, which it gives back at its end.
class InMemoryTransaction final : public StoreTransaction {
public:
    explicit InMemoryTransaction(InMemoryStore& store);
    ~InMemoryTransaction() override;
    InMemoryTransaction(const InMemoryTransaction&) = delete;
    InMemoryTransaction& operator=(const InMemoryTransaction&) = delete;

    std::uint64_t stateNumber() const override { return stateNumber_; }
    bool insertRow(const StoreRow& row, NSError* error) override;
    RowWriteResult updateRow(const StoreRow& row, PropertyMask changed, NSError* error) override;
    RowWriteResult deleteRow(
        const NSEntityDescription& entity, std::int64_t key, std::int64_t version, NSError* error) override;
    bool changeJoins(std::span<const JoinChange> changes, NSError* error) override;
    bool commit(NSError* error) override;

private:
    void finish();
    InMemoryState& state() { return *store_.working_; }
    void checkUnique(const StoreRow& row);

    InMemoryStore& store_;
    std::uint64_t stateNumber_;
    std::vector<NSManagedObjectID> written_;
    bool finished_ = false;
};

} // namespace tarn
