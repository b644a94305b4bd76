#include "tarnmodel/platform/coredata/context/ContextCore.h"

#include "tarnmodel/platform/coredata/context/merging/MergeConflicts.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <bit>
#include <utility>

namespace tarn {

void ContextCore::refresh(NSManagedObject& object, bool mergeChanges)
{
    assertOnQueue(&object);
    if (object.isInserted() || object.isDeleted())
        return;
    if (!mergeChanges && object.hasChanges()) {
        relationships.takeBack(object);
        discardChanges(object);
        records.pendingIndex.touch(object, ~PropertyMask{0});
    }
    // Below unsaved changes of others it may say what nobody saved.
    if (records.tracker.mayHaveChanges())
        relationships.noteMerged();
    for (NSManagedObject* holder : relationships.holdersOf(object))
        readAgain(*holder);
    readAgain(object);
}

void ContextCore::refreshAll()
{
    assertOnQueue();
    const auto objects = records.registry.objects();
    for (NSManagedObject* object : objects)
        relationships.forgetStoredMembers(*object);
    for (NSManagedObject* object : objects)
        refresh(*object, true);
}

void ContextCore::readAgain(NSManagedObject& object)
{
    if (object.isInserted() || object.isDeleted())
        return;
    if (object.hasChanges())
        return readBelowChanges(object);
    relationships.forgetOtherEnds(object);
    relationships.forgetStoredMembers(object);
    if (object.isFault())
        return;
    RecordAccess::markFault(object);
    records.noteFault(object);
    records.noteRefreshed(object);
}

void ContextCore::readBelowChanges(NSManagedObject& object)
{
    const auto read = [&](RowContents contents, std::vector<StoreRow>& rows) {
        const std::int64_t key = object.objectID().key();
        NSError error;
        rows.clear();
        const bool isRead
            = store().rowsForKeys(object.entity().rootEntity(), std::span(&key, 1), contents, rows, &error);
        if (!isRead)
            logMessage("Error while refreshing\n" + error.localizedDescription());
        return isRead;
    };
    std::vector<StoreRow> rows;
    if (!read(RowContents::Row, rows))
        return;
    MergeConflicts conflicts(records, relationships, conflictHandler, MergeSide::Context);
    const bool hasMoved = !rows.empty() && rows.front().version != object.rowVersion();
    if (hasMoved && !read(RowContents::WholeRow, rows))
        return;
    if (rows.empty()) {
        conflicts.noteDeletedElsewhere(object);
        records.noteGone(object);
        relationships.dropReferences({{&object.entity().rootEntity(), {object.objectID().key()}}});
        conflicts.tell();
        return;
    }
    relationships.forgetOtherEnds(object);
    if (hasMoved)
        conflicts.mergeRow(object, std::move(rows.front()));
    relationships.forgetEndsWithoutColumn(object);
    records.noteRefreshed(object);
    conflicts.awakeRecords();
    conflicts.tell();
}

} // namespace tarn
