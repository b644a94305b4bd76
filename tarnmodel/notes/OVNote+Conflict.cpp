#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/notes/ConflictStamp.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"

namespace tarn {

std::vector<OVNote*> OVNote::conflictedNotesForUniqueIdentifier(
    std::string_view uniqueIdentifier, NSManagedObjectContext& context)
{
    NSFetchRequest request(entityInManagedObjectContext(context));
    request.predicate = NSPredicate::predicateWithFormat("conflictUniqueIdentifier BEGINSWITH %@", uniqueIdentifier);
    request.sortDescriptors = {{"conflictUniqueIdentifier", false}};
    return fetchRecords<OVNote>(request, context).value_or(std::vector<OVNote*>());
}

std::vector<OVNote*> OVNote::conflictedNotes() const
{
    return conflictedNotesForUniqueIdentifier(conflictedRootUUID(), managedObjectContext());
}

bool OVNote::hasConflictedNotes() const
{
    return conflictUniqueIdentifier().has_value();
}

bool OVNote::isConflictRoot() const
{
    return hasConflictedNotes() && conflictedRootUUID() == uniqueIdentifier();
}

std::string OVNote::conflictedRootUUID() const
{
    const auto member = conflictUniqueIdentifier();
    if (!member)
        return uniqueIdentifier().value_or("");
    return member->substr(0, member->find('/'));
}

std::string OVNote::conflictedUUIDFromRootUUID(std::string_view rootUUID) const
{
    return std::string(rootUUID) + '/' + secondsTextOfConflictStamp(nextConflictStamp());
}

void OVNote::setConflictUUID(std::optional<std::string_view> conflictUUID)
{
    setConflictUniqueIdentifier(conflictUUID);
    setConflictUniqueIdentifierDate(now());
}

void OVNote::markAsConflictedFromNote(OVNote& note)
{
    if (&note == this)
        return;
    const std::string root = note.conflictedRootUUID();
    if (hasConflictedNotes() && conflictedRootUUID() != root)
        unmarkAsConflicted(); // or the group that it was in might be left with one note
    std::vector<OVNote*> group = conflictedNotesForUniqueIdentifier(root, managedObjectContext());
    if (group.empty())
        group.push_back(&note);
    // Last, so that it gets the latest stamp, also when it was a member before.
    std::erase(group, this);
    group.push_back(this);
    for (OVNote* member : group)
        member->setConflictUUID(conflictedUUIDFromRootUUID(root));
}

void OVNote::unmarkAsConflicted()
{
    std::vector<OVNote*> others = conflictedNotes();
    std::erase(others, this);
    setConflictUUID(std::nullopt);
    if (others.size() == 1) {
        others.front()->setConflictUUID(std::nullopt);
        return;
    }
    if (others.empty())
        return;
    const std::string root = others.front()->uniqueIdentifier().value_or("");
    for (OVNote* member : others)
        member->setConflictUUID(conflictedUUIDFromRootUUID(root));
}

} // namespace tarn
