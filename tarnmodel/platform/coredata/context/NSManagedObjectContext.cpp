#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/context/ContextCore.h"
#include "tarnmodel/platform/coredata/context/SavePlan.h"
#include "tarnmodel/platform/coredata/context/merging/RemoteMerge.h"
#include "tarnmodel/platform/coredata/context/reading/PendingFetch.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

namespace tarn {

NSManagedObjectContext::NSManagedObjectContext(ConcurrencyType type) : core_(std::make_unique<ContextCore>(*this, type))
{ }

NSManagedObjectContext::~NSManagedObjectContext() = default;

void NSManagedObjectContext::setPersistentStoreCoordinator(std::shared_ptr<NSPersistentStoreCoordinator> coordinator)
{
    core_->coordinator = std::move(coordinator);
    // Empty, it knows what is stored.
    if (core_->coordinator && core_->coordinator->rowStore())
        core_->knownState = core_->store().stateNumber();
    core_->followStore();
}

NSManagedObjectContext* NSManagedObjectContext::parentContext() const noexcept
{
    return core_->parentContext;
}

NSPersistentStoreCoordinator& NSManagedObjectContext::persistentStoreCoordinator() const
{
    if (!core_->coordinator)
        throw NSException(NSInternalInconsistencyException, "The context has no persistent store coordinator");
    return *core_->coordinator;
}

const NSManagedObjectModel& NSManagedObjectContext::managedObjectModel() const
{
    return persistentStoreCoordinator().managedObjectModel();
}

void NSManagedObjectContext::setMergePolicy(NSMergePolicy policy) noexcept
{
    core_->mergePolicy = policy;
}
NSMergePolicy NSManagedObjectContext::mergePolicy() const noexcept
{
    return core_->mergePolicy;
}
void NSManagedObjectContext::setMergeConflictHandler(std::function<void(const MergeConflict&)> handler)
{
    core_->conflictHandler = std::move(handler);
}

// Records -------------------------------------------------------------------------------------------------------------

NSManagedObject& NSManagedObjectContext::insertObject(const NSEntityDescription& entity)
{
    return core_->insert(entity);
}

NSManagedObject& NSManagedObjectContext::insertObject(std::string_view entityName)
{
    const NSEntityDescription* entity = managedObjectModel().entityNamed(entityName);
    if (!entity)
        throw NSException(NSInvalidArgumentException, "The model has no entity \"" + std::string(entityName) + "\"");
    return core_->insert(*entity);
}

void NSManagedObjectContext::deleteObject(NSManagedObject& object)
{
    if (&object.managedObjectContext() != this)
        throw NSException(NSInvalidArgumentException, "A context deletes only records of its own");
    core_->remove(object);
}

NSManagedObject* NSManagedObjectContext::objectRegisteredForID(const NSManagedObjectID& objectID) const
{
    core_->assertOnQueue();
    const NSManagedObjectID id = core_->localID(objectID);
    NSManagedObject* known = id ? core_->records.registry.find(*id.root(), id.key()) : nullptr;
    return known && known->entity().isKindOfEntity(id.entity()) ? known : nullptr;
}

NSManagedObject* NSManagedObjectContext::existingObjectWithID(const NSManagedObjectID& objectID, NSError* error)
{
    core_->assertOnQueue();
    if (NSManagedObject* known = objectRegisteredForID(objectID)) {
        if (known->isFault() && !core_->faulting.fill(*known, error))
            return nullptr;
        return known->isDeleted() ? nullptr : known;
    }
    const NSManagedObjectID id = core_->localID(objectID);
    if (!id || id.isTemporaryID())
        return nullptr;
    const std::int64_t key = id.key();
    std::vector<StoreRow> rows;
    if (!core_->store().rowsForKeys(*id.root(), std::span(&key, 1), RowContents::Row, rows, error) || rows.empty()
        || !rows.front().entity->isKindOfEntity(id.entity()))
        return nullptr;
    return &core_->faulting.adopt(std::move(rows.front()));
}

NSManagedObject* NSManagedObjectContext::objectWithID(const NSManagedObjectID& objectID)
{
    core_->assertOnQueue();
    if (NSManagedObject* known = objectRegisteredForID(objectID))
        return known->isDeleted() ? nullptr : known;
    const NSManagedObjectID id = core_->localID(objectID);
    if (!id || id.isTemporaryID())
        return nullptr;
    // Which class a record of a family is of, only its row tells.
    if (!id.entity().rootEntity().subentities().empty())
        return existingObjectWithID(id);
    return &core_->records.recordOrFault(id.entity(), id.key());
}

std::vector<NSManagedObject*> NSManagedObjectContext::registeredObjects() const
{
    core_->assertOnQueue();
    return core_->records.registry.objects();
}

// Queries -------------------------------------------------------------------------------------------------------------

std::string NSManagedObjectContext::explain(const NSFetchRequest& request)
{
    core_->assertOnQueue();
    return PendingFetch(core_->records, core_->faulting, core_->relationships, request).explain();
}

std::optional<std::vector<NSManagedObject*>> NSManagedObjectContext::fetch(
    const NSFetchRequest& request, NSError* error)
{
    core_->assertOnQueue();
    auto found = PendingFetch(core_->records, core_->faulting, core_->relationships, request).objects(error);
    if (found)
        core_->otherWriters.lookAfterFetch();
    return found;
}

std::vector<NSManagedObject*> NSManagedObjectContext::executeFetchRequest(const NSFetchRequest& request, NSError* error)
{
    return fetch(request, error).value_or(std::vector<NSManagedObject*>());
}

std::optional<std::size_t> NSManagedObjectContext::count(const NSFetchRequest& request, NSError* error)
{
    core_->assertOnQueue();
    const auto counted = PendingFetch(core_->records, core_->faulting, core_->relationships, request).count(error);
    if (counted)
        core_->otherWriters.lookAfterFetch();
    return counted;
}

std::size_t NSManagedObjectContext::countForFetchRequest(const NSFetchRequest& request, NSError* error)
{
    return count(request, error).value_or(0);
}

std::optional<std::vector<DictionaryResult>> NSManagedObjectContext::executeDictionaryFetchRequest(
    const NSFetchRequest& request, NSError* error)
{
    core_->assertOnQueue();
    auto found = PendingFetch(core_->records, core_->faulting, core_->relationships, request).dictionaries(error);
    if (found)
        core_->otherWriters.lookAfterFetch();
    return found;
}

// Changes -------------------------------------------------------------------------------------------------------------

bool NSManagedObjectContext::hasChanges() const
{
    core_->assertOnQueue();
    return core_->records.tracker.hasChanges();
}
std::vector<NSManagedObject*> NSManagedObjectContext::insertedObjects() const
{
    core_->assertOnQueue();
    return core_->records.tracker.insertedObjects();
}
std::vector<NSManagedObject*> NSManagedObjectContext::updatedObjects() const
{
    core_->assertOnQueue();
    return core_->records.tracker.updatedObjects();
}
std::vector<NSManagedObject*> NSManagedObjectContext::deletedObjects() const
{
    core_->assertOnQueue();
    return core_->records.tracker.deletedObjects();
}

bool NSManagedObjectContext::obtainPermanentIDsForObjects(std::span<NSManagedObject* const> objects, NSError* error)
{
    return core_->obtainPermanentIDs(objects, error);
}

bool NSManagedObjectContext::save(NSError* error)
{
    core_->assertOnQueue();
    if (core_->exclusiveTransaction)
        return true;
    return SavePlan(*core_).run(nullptr, error);
}

void NSManagedObjectContext::rollback()
{
    core_->rollback();
    core_->observedValues.tell();
}

bool NSManagedObjectContext::performExclusive(const std::function<void()>& block, NSError* error)
{
    core_->assertOnQueue();
    if (core_->exclusiveTransaction) {
        block();
        return true;
    }
    core_->exclusiveTransaction = core_->store().beginTransaction(error);
    if (!core_->exclusiveTransaction)
        return false;
    try {
        if (!core_->catchUp(*core_->exclusiveTransaction, error)) {
            core_->exclusiveTransaction.reset();
            return false;
        }
        core_->otherWriters.lookUnderLock();
        block();
    } catch (...) {
        core_->exclusiveTransaction.reset();
        core_->rollback();
        throw;
    }
    return SavePlan(*core_).run(std::move(core_->exclusiveTransaction), error);
}

void NSManagedObjectContext::addSaveParticipant(std::unique_ptr<SaveParticipant> participant)
{
    core_->assertOnQueue();
    core_->participants.push_back(std::move(participant));
}

std::vector<SaveParticipant*> NSManagedObjectContext::saveParticipants() const
{
    std::vector<SaveParticipant*> participants;
    for (const auto& participant : core_->participants)
        participants.push_back(participant.get());
    return participants;
}

void NSManagedObjectContext::processPendingChanges()
{
    core_->processPendingChanges();
}

void NSManagedObjectContext::mergeChangesFromRemoteContextSave(
    const RemoteChanges& changes, std::span<NSManagedObjectContext* const> contexts)
{
    for (NSManagedObjectContext* context : contexts)
        context->performBlockAndWait([&] {
            context->core().takeRemoteChanges(changes);
            context->core().processPendingChanges();
        });
}

void NSManagedObjectContext::refreshObject(NSManagedObject& object, bool mergeChanges)
{
    core_->refresh(object, mergeChanges);
    core_->observedValues.tell();
}

void NSManagedObjectContext::refreshAllObjects()
{
    core_->refreshAll();
    core_->observedValues.tell();
}

void NSManagedObjectContext::reset()
{
    core_->reset();
}

// Queue ---------------------------------------------------------------------------------------------------------------

Queue& NSManagedObjectContext::queue() const noexcept
{
    return core_->queue();
}
void NSManagedObjectContext::performBlock(std::function<void()> block)
{
    core_->queue().async(std::move(block));
}
void NSManagedObjectContext::performBlockAndWait(const std::function<void()>& block)
{
    core_->queue().sync(block);
}

} // namespace tarn
