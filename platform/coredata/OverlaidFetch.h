#pragma once

#include "platform/coredata/OverlaidRows.h"

#include <set>
#include <vector>

namespace tarn {

/// A fetch over a store with what a context has pending over it.
///
/// The store answers for all rows whose answer cannot depend on what is pending; the others are judged in memory.
class OverlaidFetch {
public:
    OverlaidFetch(NSPersistentStore& base, const PendingSnapshot& snapshot, const StoreFetch& fetch);

    /// Throws a `StoreFailure`.
    std::vector<StoreRow> rows();

private:
    void noteKeyPath(const std::vector<std::string>& keys);
    void reachBack(const std::vector<const NSRelationshipDescription*>& path, std::int64_t key);
    bool isOfEntity(const NSEntityDescription& entity) const;
    std::vector<StoreRow> storedRows();
    std::vector<StoreRow> judgedRows();

    NSPersistentStore& base_;
    const PendingSnapshot& snapshot_;
    const StoreFetch& fetch_;
    OverlaidRows overlaid_;
    std::set<std::int64_t> unsure_; ///< keys that the store is not asked for
};

} // namespace tarn
