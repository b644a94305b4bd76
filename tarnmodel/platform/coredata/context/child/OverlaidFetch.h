#pragma once

#include "tarnmodel/platform/coredata/context/child/OverlaidRows.h"

#include <set>
#include <span>
#include <vector>

namespace tarn {

/// A fetch over a store with what a context has pending over it.
///
/// The store answers for all rows whose answer cannot depend on what is pending; the others are judged in memory.
class OverlaidFetch {
public:
    OverlaidFetch(RowStore& base, const UnsavedSnapshot& snapshot, const StoreFetch& fetch);

    /// Throws a `StoreFailure`.
    std::vector<StoreRow> rows();
    std::size_t count();

private:
    void noteKeyPath(const std::vector<std::string>& keys);
    void reachBack(std::span<const NSRelationshipDescription* const> path, std::int64_t key);
    bool isOfEntity(const NSEntityDescription& entity) const;
    template <typename Ask> void askStore(Ask&& ask) const;
    std::vector<StoreRow> judgedRows();
    std::vector<StoreRow> merged(std::vector<StoreRow> stored, std::vector<StoreRow> judged) const;

    RowStore& base_;
    const UnsavedSnapshot& snapshot_;
    const StoreFetch& fetch_;
    OverlaidRows overlaid_;
    std::set<std::int64_t> unsure_; ///< keys that the store is not asked for
};

} // namespace tarn
