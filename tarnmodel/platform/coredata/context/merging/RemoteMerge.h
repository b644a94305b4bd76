#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/context/merging/MergeConflicts.h"
#include "tarnmodel/platform/coredata/context/records/RelationshipMaintenance.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <unordered_map>
#include <vector>

namespace tarn {

class Faulting;

/// Brings one context up to date with what another context or process has saved. On the context's queue.
class RemoteMerge {
public:
    RemoteMerge(HeldRecords& records, Faulting& faulting, RelationshipMaintenance& relationships,
        const MergeConflictHandler& handler)
        : records_(records), faulting_(faulting), relationships_(relationships),
          conflicts_(records, relationships, handler, MergeSide::Context)
    { }

    /// Observers hear of it when changes are processed next.
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

    HeldRecords& records_;
    Faulting& faulting_;
    RelationshipMaintenance& relationships_;
    MergeConflicts conflicts_;
    KeysOfEntities gone_;
};

} // namespace tarn
