#include "tarnmodel/model/OVNote.h"

#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <algorithm>
#include <unordered_set>

namespace tarn {

// Identity ----------------------------------------------------------------------------------------------------------

bool OVNote::isPersistent() const
{
    return !objectID().isTemporaryID();
}

void OVNote::updateUniqueIdentifier()
{
    setUniqueIdentifier(newUUIDString());
}

// Pins --------------------------------------------------------------------------------------------------------------

void OVNote::pin()
{
    setPinnedValue(true);
    setPinnedDate(now());
}

void OVNote::unpin()
{
    setPinnedValue(false);
    setPinnedDate(now());
}

bool OVNote::isPinned() const
{
    return pinnedValue();
}

void OVNote::pinInTag(OVNoteTag& tag)
{
    pinnedInTagsSet().addObject(tag);
    tag.setPinnedNotesDate(now());
}

void OVNote::unpinInTag(OVNoteTag& tag)
{
    pinnedInTagsSet().removeObject(tag);
    tag.setPinnedNotesDate(now());
}

bool OVNote::isPinnedInTag(const OVNoteTag* tag) const
{
    return tag && pinnedInTagsSet().containsObject(*tag);
}

void OVNote::unpinEverywhere()
{
    if (isPinned())
        unpin();
    for (OVNoteTag* tag : pinnedInTagsSet().allObjects())
        unpinInTag(*tag);
}

// Editing -----------------------------------------------------------------------------------------------------------

void OVNote::makeReadOnly()
{
    setLockedValue(true);
    setLockedDate(now());
}

void OVNote::makeEditable()
{
    setLockedValue(false);
    setLockedDate(now());
}

bool OVNote::isReadOnly() const
{
    return lockedValue();
}

bool OVNote::isStatic() const
{
    return false;
}

bool OVNote::isEditable() const
{
    return !isTrashed() && !isStatic() && !isArchived() && !isReadOnly();
}

unsigned OVNote::completedToDoPercentage() const
{
    const double completed = todoCompletedValue();
    const double total = completed + todoIncompletedValue();
    if (total == 0)
        return 0;
    // In this order, and in floating point: 29 of 100 is 28.
    return static_cast<unsigned>(std::max(0.0, completed / total * 100.0));
}

// Trash and archive -------------------------------------------------------------------------------------------------

void OVNote::setTrashed(std::optional<bool> trashed)
{
    willChangeValueForKey("trashed");
    const bool wasTrashed = isTrashed();
    setPrimitiveTrashed(trashed);
    if (isTrashed() != wasTrashed)
        updateModificationDateOfTags();
    didChangeValueForKey("trashed");
}

void OVNote::setArchived(std::optional<bool> archived)
{
    willChangeValueForKey("archived");
    const bool wasArchived = isArchived();
    setPrimitiveArchived(archived);
    if (isArchived() != wasArchived)
        updateModificationDateOfTags();
    didChangeValueForKey("archived");
}

void OVNote::updateModificationDateOfTags()
{
    for (OVNoteTag* tag : tagsSet().allObjects())
        tag->updateModificationDate();
}

void OVNote::trash()
{
    setTrashedValue(true);
    setTrashedDate(now());
    leaveConflict();
}

void OVNote::restoreFromTrash()
{
    setTrashedValue(false);
    setTrashedDate(now());
}

bool OVNote::isTrashed() const
{
    return trashedValue();
}

void OVNote::archive()
{
    setArchivedValue(true);
    setArchivedDate(now());
    restoreFromTrash();
    leaveConflict();
}

void OVNote::unarchive()
{
    setArchivedValue(false);
    setArchivedDate(now());
}

bool OVNote::isArchived() const
{
    return archivedValue();
}

void OVNote::leaveConflict()
{
    if (hasConflictedNotes())
        unmarkAsConflicted();
}

// Deletion ----------------------------------------------------------------------------------------------------------

void OVNote::permanentlyDelete()
{
    for (OVNoteFile* file : filesSet().allObjects())
        file->permanentlyDelete();
    managedObjectContext().deleteObject(*this);
}

void OVNote::prepareForDeletion()
{
    leaveConflict();
    _OVNote::prepareForDeletion();
}

// Linked notes ------------------------------------------------------------------------------------------------------

namespace {

using LinkEnd = OVNote* (OVNoteBackLink::*)() const;

/// The notes at one end of the links, each once.
std::vector<OVNote*> notesAtEnd(const std::vector<OVNoteBackLink*>& links, LinkEnd end)
{
    std::vector<OVNote*> notes;
    std::unordered_set<const OVNote*> known;
    for (const OVNoteBackLink* link : links) {
        OVNote* note = (link->*end)();
        if (note && known.insert(note).second)
            notes.push_back(note);
    }
    return notes;
}

} // namespace

std::vector<OVNote*> OVNote::linkedNotes() const
{
    return notesAtEnd(linkingToSet().allObjects(), &OVNoteBackLink::linkingTo);
}

std::vector<OVNote*> OVNote::linkedByNotes() const
{
    return notesAtEnd(linkedBySet().allObjects(), &OVNoteBackLink::linkedBy);
}

} // namespace tarn
