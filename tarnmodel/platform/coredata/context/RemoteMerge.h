#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/context/MergeConflicts.h"
#include "tarnmodel/platform/coredata/context/RelationshipMaintenance.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <unordered_map>
#include <vector>

namespace tarn {

class ContextCore;

/// Brings one context up to date with what another context or process has saved. On the context's queue.
class RemoteMerge {
public:
    explicit RemoteMerge(ContextCore& core) : core_(core), conflicts_(core, MergeSide::Context) { }

    /// Observers hear of it before this returns.
    void run(const RemoteChanges& changes);
    /// The same, and observers hear of it when changes are processed next.
    void take(const RemoteChanges& changes);

private:
    using Keys = std::vector<std::int64_t>;
    using KeysByRoot = std::unordered_map<const NSEntityDescription*, Keys>;

    /// Permanent keys of this store, in this context's model.
    KeysByRoot keysOf(const std::vector<NSManagedObjectID>& objectIDs) const;
    /// Without the keys that this context does not know.
    KeysByRoot knownKeys(KeysByRoot keys) const;
    /// Without the keys of records that have the row's version; of these, members that were read are forgotten.
    KeysByRoot movedKeys(KeysByRoot keys);
    void takeRows(const KeysByRoot& keys, bool areInserted);
    void takeRow(StoreRow row, bool isInserted);
    void take(NSManagedObject& record, StoreRow row);
    void remove(const NSEntityDescription& root, std::int64_t key);

    ContextCore& core_;
    MergeConflicts conflicts_;
    KeysOfEntities gone_;
};

} // namespace tarn
