#pragma once

#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

namespace tarn {

class ContextCore;

/// What a context has not saved, row by row, as it stood at one moment: what its children read besides the store.
///
/// Immutable, and so read by any thread. All keys are permanent.
class UnsavedSnapshot {
public:
    struct Entry {
        /// As a store hands it out. The version is another one whenever the record changed.
        StoreRow row;
        PropertyMask changed = 0; ///< all of an inserted record
        bool isInserted = false;
        bool isDeleted = false;
    };
    using EntryPointer = std::shared_ptr<const Entry>;
    using Entries = std::map<std::int64_t, EntryPointer>; ///< by key
    /// A member more or less in a many-to-many relationship.
    struct JoinDelta {
        RelatedKey member;
        bool isAdded = true;
    };

    /// The records that are pending in the context. Inserted ones get permanent identifiers; where that fails it is
    /// logged, and children do not see them. On the context's queue.
    static std::shared_ptr<const UnsavedSnapshot> ofContext(ContextCore& core, const UnsavedSnapshot* previous);

    bool isEmpty() const noexcept { return entries_.empty(); }
    std::uint64_t generation() const noexcept { return generation_; }
    const Entries& entriesOfRoot(const NSEntityDescription& root) const;
    /// Null when the record is not pending.
    const Entry* entry(const NSEntityDescription& root, std::int64_t key) const;
    /// Pending records whose to-one `column` names the target.
    std::vector<RelatedKey> holders(const NSRelationshipDescription& column, std::int64_t target) const;
    const std::vector<JoinDelta>& joinDeltas(const NSRelationshipDescription& relationship, std::int64_t key) const;

private:
    using End = std::pair<const NSRelationshipDescription*, std::int64_t>;

    void takeRecord(const ContextCore& core, const NSManagedObject& record, const UnsavedSnapshot* previous);
    void takeJoins(const NSManagedObject& record);
    void indexToOnes(const Entry& entry);

    std::uint64_t generation_ = 0;
    std::unordered_map<const NSEntityDescription*, Entries> entries_; ///< by root entity
    std::map<End, std::vector<RelatedKey>> holders_;
    std::map<End, std::vector<JoinDelta>> joins_;
};

} // namespace tarn
