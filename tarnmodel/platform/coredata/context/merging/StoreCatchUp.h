#pragma once

#include "tarnmodel/platform/coredata/context/merging/MergeConflicts.h"
#include "tarnmodel/platform/coredata/context/records/RelationshipMaintenance.h"

#include <unordered_map>
#include <vector>

namespace tarn {

/// Brings a context in step with all that others have saved: what it holds is read again where its row has moved, under
/// its unsaved changes.
///
/// Under the lock of a save, so that what is written follows from what is stored. Costs a look at the version of each
/// record that the context holds.
class StoreCatchUp {
public:
    /// The policy decides where both sides changed a property; with `NSMergePolicy::Error` that fails.
    StoreCatchUp(HeldRecords& records, RelationshipMaintenance& relationships, NSMergePolicy policy,
        const MergeConflictHandler& handler);

    /// False and an error when the store cannot be read, or when two sides changed a record and the policy takes
    /// neither; then nothing was changed.
    bool run(NSError* error);

private:
    struct Records {
        std::vector<NSManagedObject*> clean;   ///< their rows have moved
        std::vector<NSManagedObject*> changed; ///< the same, with unsaved changes
        std::vector<NSManagedObject*> deleted; ///< the same, to be deleted
        std::vector<NSManagedObject*> gone;
    };
    using RecordsByRoot = std::unordered_map<const NSEntityDescription*, Records>;
    using Rows = std::unordered_map<std::int64_t, StoreRow>;

    bool findWhatMoved(NSError* error);
    bool allowedByPolicy(NSError* error) const;
    bool readRows(NSError* error);
    bool readInto(Rows& rows, const NSEntityDescription& root, const std::vector<NSManagedObject*>& records,
        RowContents contents, NSError* error) const;
    void takeRows(Records& records, Rows& rows);
    void letGo(const RecordsByRoot& records);
    bool detachFromDeleted(NSError* error);
    void detach(NSManagedObject& deleted, const NSRelationshipDescription& relationship, const RelatedKey& stored);

    HeldRecords& records_;
    RelationshipMaintenance& relationships_;
    NSMergePolicy policy_;
    MergeConflicts conflicts_;
    RecordsByRoot moved_;
    std::unordered_map<const NSEntityDescription*, Rows> rows_;
};

} // namespace tarn
