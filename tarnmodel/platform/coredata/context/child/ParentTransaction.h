#pragma once

#include "tarnmodel/platform/coredata/context/child/ParentHandle.h"
#include "tarnmodel/platform/coredata/context/records/RelationshipMaintenance.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <functional>
#include <map>
#include <utility>
#include <vector>

namespace tarn {

/// The save of a child context: gathers what is written, and makes it unsaved changes of the parent at the commit.
class ParentTransaction final : public StoreTransaction {
public:
    ParentTransaction(RowStore& store, std::shared_ptr<ParentHandle> parent)
        : store_(store), parent_(std::move(parent)), stateNumber_(store_.stateNumber())
    { }

    std::uint64_t stateNumber() const override { return stateNumber_; }
    bool insertRow(const StoreRow& row, NSError* error) override;
    RowWriteResult updateRow(const StoreRow& row, PropertyMask changed, NSError* error) override;
    RowWriteResult deleteRow(
        const NSEntityDescription& entity, std::int64_t key, std::int64_t version, NSError* error) override;
    bool changeJoins(std::span<const JoinChange> changes, NSError* error) override;
    std::int64_t versionAfterCommit(
        const NSEntityDescription& entity, std::int64_t key, std::int64_t written) const override;
    bool isExclusive() const override { return false; }
    void whenTakenByContext(std::function<void(NSManagedObjectContext&)> tell) override
    {
        whenTaken_ = std::move(tell);
    }
    bool commit(NSError* error) override;

private:
    struct Update {
        StoreRow row;
        PropertyMask changed = 0;
    };
    struct Deletion {
        const NSEntityDescription* entity = nullptr;
        std::int64_t key = 0;
    };
    /// The row as it is now; Gone or Failed when there is none.
    RowWriteResult readVersion(
        const NSEntityDescription& entity, std::int64_t key, std::int64_t& version, NSError* error);
    bool rowsAreAsRead(ContextCore& parent, NSError* error) const;
    void noteVersions();
    bool readRecords(ContextCore& parent, NSError* error) const;
    void readOtherEnds(ContextCore& parent) const;
    bool isInserted(const NSEntityDescription& entity, std::int64_t key) const;
    /// The parent's record of the key as it is before this save; null when it is deleted, or inserted only now.
    NSManagedObject* formerRecord(const ContextCore& parent, const NSEntityDescription& entity, std::int64_t key) const;
    void apply(ContextCore& parent) const;
    static void insert(ContextCore& parent, const StoreRow& row);
    static void update(ContextCore& parent, const StoreRow& row, PropertyMask changed);
    static void relate(ContextCore& parent, NSManagedObject& record, const StoreRow& row, PropertyMask changed);
    static void join(ContextCore& parent, const JoinChange& change);
    static void remove(ContextCore& parent, const Deletion& deletion);

    RowStore& store_;
    std::shared_ptr<ParentHandle> parent_;
    std::vector<StoreRow> insertions_;
    KeysOfEntities insertedKeys_;
    std::vector<Update> updates_;
    std::vector<JoinChange> joins_;
    std::vector<Deletion> deletions_;
    std::uint64_t stateNumber_;
    std::function<void(NSManagedObjectContext&)> whenTaken_;
    std::map<std::pair<const NSEntityDescription*, std::int64_t>, std::int64_t> versions_; ///< by root entity and key
};

} // namespace tarn
