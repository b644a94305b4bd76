#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <optional>
#include <span>
#include <unordered_set>
#include <vector>

namespace tarn {

class ContextCore;

/// One fetch of a context: the store's answer, corrected by what is pending.
///
/// The store answers for records whose unsaved changes cannot matter; the others (inserted, deleted, changed in a
/// property that predicate or order read, or reached by them over a changed record) are judged in memory by the same
/// predicate. The sort and the limit hold for the merged result.
class PendingFetch {
public:
    PendingFetch(ContextCore& core, const NSFetchRequest& request);

    std::optional<std::vector<NSManagedObject*>> objects(NSError* error);
    std::optional<std::size_t> count(NSError* error);
    std::optional<std::vector<DictionaryResult>> dictionaries(NSError* error);
    /// How the store answers its part.
    std::string explain();

private:
    void collectRelevantProperties();
    void noteKeyPath(const std::vector<std::string>& keys);
    void reachBack(std::span<const NSRelationshipDescription* const> path, NSManagedObject& record);
    bool isOfEntity(const NSManagedObject& record) const;
    bool isAffected(const NSManagedObject& record) const;
    bool hasPending() const;
    std::vector<NSManagedObject*> matchingInMemory();
    std::vector<NSManagedObject*> candidates();
    StoreFetch storeFetch(RowContents contents) const;
    std::optional<std::vector<NSManagedObject*>> mergedObjects(RowContents contents, NSError* error);
    std::vector<NSManagedObject*> merged(
        std::vector<NSManagedObject*> stored, std::vector<NSManagedObject*> pending) const;

    ContextCore& core_;
    const NSFetchRequest& request_;
    const NSEntityDescription& root_;
    PropertyMask relevant_ = 0; ///< properties of the fetched records that predicate and order read
    std::unordered_set<const NSManagedObject*>
        reached_; ///< stored records whose answer depends on a changed record elsewhere
};

} // namespace tarn
