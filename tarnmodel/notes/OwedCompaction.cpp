#include "tarnmodel/notes/OwedCompaction.h"

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStore.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"

#include <memory>
#include <string>

namespace tarn {

OwedCompaction::OwedCompaction(NSManagedObjectContext& context) : context_(context) { }

OwedCompaction& OwedCompaction::ofContext(NSManagedObjectContext& context)
{
    for (SaveParticipant* participant : context.saveParticipants())
        if (auto* own = dynamic_cast<OwedCompaction*>(participant))
            return *own;
    std::unique_ptr<OwedCompaction> added(new OwedCompaction(context));
    OwedCompaction& made = *added;
    context.addSaveParticipant(std::move(added));
    return made;
}

void OwedCompaction::begin(NSManagedObjectContext& context)
{
    ofContext(context).isOwed_ = true;
}

/// Under the lock of the save it is written with it. Only a context on a store is asked.
bool OwedCompaction::prepareForSave(NSError* error)
{
    if (!isOwed_)
        return true;
    NSPersistentStore* const store = context_.persistentStoreCoordinator().persistentStore();
    if (store && !store->file().empty()) {
        NSError failure;
        const auto metadata = store->metadata(&failure);
        if (metadata.empty()) {
            assignError(error, failure);
            return false;
        }
        if (!metadata.contains(std::string(StoreCompactionKey))
            && !store->setMetadataValue(StoreCompactionKey, StoreCompactionOwed, error))
            return false;
    }
    return true;
}

void OwedCompaction::didSave(NSManagedObjectContext&)
{
    isOwed_ = false;
}

void OwedCompaction::didSaveIntoParent(NSManagedObjectContext& parent)
{
    if (isOwed_)
        begin(parent);
    isOwed_ = false;
}

void OwedCompaction::didDropChanges()
{
    isOwed_ = false;
}

} // namespace tarn
