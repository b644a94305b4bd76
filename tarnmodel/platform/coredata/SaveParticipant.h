#pragma once

namespace tarn {

class NSError;
class NSManagedObjectContext;

/// What lies outside the store and goes along with a context's unsaved changes: files on disk, for example.
///
/// A context owns its participants (`NSManagedObjectContext::addSaveParticipant`) and calls them on its queue, in the
/// order in which they came. One that was moved to a parent belongs to that.
class SaveParticipant {
public:
    SaveParticipant() = default;
    virtual ~SaveParticipant();
    SaveParticipant(const SaveParticipant&) = delete;
    SaveParticipant& operator=(const SaveParticipant&) = delete;

    /// The context's changes are about to be written to the store: whatever they refer to has to be there for good. At
    /// the beginning of a save, before the store is locked, and once more before it is committed. False and an error
    /// when that cannot be; the save fails.
    virtual bool prepareForSave(NSError* error) = 0;
    /// The changes are in the store, or there were none left to be written. Records may be fetched, but not changed.
    virtual void didSave(NSManagedObjectContext& context) = 0;
    /// The changes are unsaved changes of this parent now; called on the parent's queue, while the child waits.
    virtual void didSaveIntoParent(NSManagedObjectContext& parent) = 0;
    /// The changes were dropped: by a rollback, a reset, or the end of the context. Records are not to be used.
    virtual void didDropChanges() = 0;
};

} // namespace tarn
