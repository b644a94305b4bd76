#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/RecordMerge.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <functional>
#include <vector>

namespace tarn {

class HeldRecords;
class RelationshipMaintenance;

using MergeConflictHandler = std::function<void(const MergeConflict&)>;

/// One merge of what others saved into a context: joins rows with unsaved changes, property by property, and tells of
/// what gave way.
///
/// A property that one side changed goes to that side; one that both changed to the preferred side, and properties of a
/// group together. Records hear of what was decided about them, and may derive anew, only when all rows are in; who
/// lost what is told after that.
class MergeConflicts {
public:
    /// `handler`: hears of what was lost; may be empty.
    MergeConflicts(HeldRecords& records, RelationshipMaintenance& relationships, const MergeConflictHandler& handler,
        MergeSide preferred)
        : records_(records), relationships_(relationships), handler_(handler), preferred_(preferred)
    { }

    /// Afterwards the record holds the merged values over the row's version, and only what differs from the row counts
    /// as changed. The row is whole.
    void mergeRow(NSManagedObject& record, StoreRow row);
    /// Another writer deleted a record that has unsaved changes; before these are let go.
    void noteDeletedElsewhere(NSManagedObject& record);
    /// Another writer changed a record that is deleted here. The row is whole.
    void noteDeletedHere(NSManagedObject& record, const StoreRow& row);

    /// Lets records derive anew what follows from values that were decided.
    void awakeRecords();
    /// Tells the log and the conflict handler what was lost. The handler may change records.
    void tell();

private:
    void decide(RecordMerge& merge, PropertyMask ours, PropertyMask theirs) const;
    void forgetGivenWay(const RecordMerge& merge);
    void note(MergeConflict::Cause cause, NSManagedObject& record, MergeSide loser, PropertyMask lost,
        const PropertyValues& losing, const PropertyValues& former);
    void addFormerValues(MergeConflict& conflict, PropertyMask mask, const PropertyValues& former) const;

    HeldRecords& records_;
    RelationshipMaintenance& relationships_;
    const MergeConflictHandler& handler_;
    MergeSide preferred_;
    std::vector<RecordMerge> merges_;
    std::vector<MergeConflict> conflicts_;
};

} // namespace tarn
