#pragma once

#include "platform/coredata/NSManagedObjectContext.h"
#include "platform/coredata/NSPersistentStore.h"

#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tarn {

class ContextCore;

/// Brings one context up to date with what another context or process has saved. On the context's queue.
class RemoteMerge {
public:
    explicit RemoteMerge(ContextCore& core) : core_(core) { }

    void run(const RemoteChanges& changes);

private:
    using Keys = std::vector<std::int64_t>;
    using KeysByRoot = std::unordered_map<const NSEntityDescription*, Keys>;

    /// Permanent keys of this store, in this context's model.
    KeysByRoot keysOf(const std::vector<NSManagedObjectID>& objectIDs) const;
    /// Without the keys that this context does not know.
    KeysByRoot knownKeys(KeysByRoot keys) const;
    void takeRows(const KeysByRoot& keys, bool areInserted);
    void takeRow(StoreRow row, bool isInserted);
    void take(NSManagedObject& record, StoreRow row);
    void remove(const NSEntityDescription& root, std::int64_t key);
    void dropReferencesToGone();

    ContextCore& core_;
    std::unordered_map<const NSEntityDescription*, std::unordered_set<std::int64_t>> gone_; ///< by root entity
};

} // namespace tarn
