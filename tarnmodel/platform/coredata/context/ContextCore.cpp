#include "tarnmodel/platform/coredata/context/ContextCore.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/context/merging/RemoteMerge.h"
#include "tarnmodel/platform/coredata/context/merging/StoreCatchUp.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <any>
#include <exception>
#include <functional>
#include <string>
#include <utility>

namespace tarn {

namespace {

/// Keys reserved at once when identifiers are asked for outside a save.
constexpr std::int64_t keyBlockSize = 64;

/// False when there is no memory to ask the queue with.
bool waitFor(Queue& queue, const std::function<void()>& work) noexcept
{
    try {
        queue.sync(work);
        return true;
    } catch (const std::exception& exception) {
        logMessage(std::string("A context ended without waiting for its queue: ") + exception.what());
        return false;
    }
}

} // namespace

ContextCore::ContextCore(NSManagedObjectContext& owner, NSManagedObjectContext::ConcurrencyType type)
    : privateQueue_(type == NSManagedObjectContext::ConcurrencyType::PrivateQueue
            ? SerialQueue::make("NSManagedObjectContext")
            : nullptr),
      records(owner, *this, privateQueue_ ? *privateQueue_ : MainQueue::main()), relationships(records),
      faulting(records, relationships), otherWriters(records, *this), observedValues(records, faulting)
{ }

ContextCore::~ContextCore()
{
    const auto end = [this] {
        tellOfDroppedChanges();
        if (children)
            children->close();
    };
    // The end of a pass, or a child's save, may be under way on the queue.
    if (!privateQueue_ || !waitFor(*privateQueue_, end))
        end();
    queue().cancelAtEndOfPass(this);
    queue().cancelAtEndOfPass(&otherWriters);
    if (!privateQueue_)
        MainQueue::main().cancelInEachPass(this);
}

void ContextCore::followStore()
{
    otherWriters.begin();
    if (!privateQueue_)
        MainQueue::main().runInEachPass(this, [this] { otherWriters.lookAtEndOfPass(); });
}

RowStore* ContextCore::storeIfAny() const
{
    if (parentStore)
        return parentStore.get();
    return coordinator ? coordinator->rowStore() : nullptr;
}

RowStore& ContextCore::store() const
{
    RowStore* const found = storeIfAny();
    if (!found)
        throw NSException(NSInternalInconsistencyException, "The context has no persistent store");
    return *found;
}

std::shared_ptr<RowStore> ContextCore::sharedStore() const
{
    return parentStore ? parentStore : std::shared_ptr<RowStore>(coordinator, &store());
}

std::shared_ptr<Queue> ContextCore::sharedQueue() const
{
    return privateQueue_ ? privateQueue_ : std::shared_ptr<Queue>(std::shared_ptr<void>(), &queue());
}

void ContextCore::publish()
{
    // Nobody else holds it once the last child is gone.
    if (children && children.use_count() > 1)
        children->publish();
    else
        children.reset();
}

void ContextCore::takeRemoteChanges(const RemoteChanges& changes)
{
    RemoteMerge(records, faulting, relationships, conflictHandler).take(changes);
}

bool ContextCore::catchUp(const StoreTransaction& transaction, NSError* error)
{
    if (knownState == transaction.stateNumber())
        return true;
    if (!StoreCatchUp(records, relationships, mergePolicy, conflictHandler).run(error))
        return false;
    knownState = transaction.stateNumber();
    return true;
}

// Records -------------------------------------------------------------------------------------------------------------

const PropertyValues& ContextCore::defaultValues(const NSEntityDescription& entity)
{
    const auto [position, isNew] = defaults_.try_emplace(&entity, entity);
    if (isNew)
        for (const NSAttributeDescription* attribute : entity.attributes())
            if (!attribute->defaultValue().isNil())
                position->second.setAttributeValue(attribute->index(), attribute->defaultValue());
    return position->second;
}

NSManagedObject& ContextCore::insert(const NSEntityDescription& entity)
{
    assertOnQueue();
    NSManagedObject& object = records.registry.add(
        RecordAccess::make(records.context, NSManagedObjectID::makeTemporary(store().identity(), entity)));
    RecordAccess::fill(object, defaultValues(entity), 0);
    RecordAccess::markInserted(object, nextOrder_++);
    records.tracker.noteInserted(object);
    records.pendingIndex.touch(object, ~PropertyMask{0});
    scheduleProcessing();
    object.awakeFromInsert();
    return object;
}

NSManagedObjectID ContextCore::localID(const NSManagedObjectID& objectID) const
{
    const RowStore* const ownStore = storeIfAny();
    if (!objectID || !ownStore || &objectID.store() != &ownStore->identity())
        return {};
    const NSManagedObjectModel& model = coordinator->managedObjectModel();
    if (&objectID.entity().model() == &model)
        return objectID;
    // Another coordinator on the same store may have read the model for itself.
    const NSEntityDescription* entity = model.entityNamed(objectID.entity().name());
    return entity ? NSManagedObjectID(objectID.store(), *entity, objectID.key()) : NSManagedObjectID();
}

NSManagedObject* ContextCore::adoptInsertion(
    const NSEntityDescription& entity, std::int64_t key, PropertyValues values, PropertyMask changed)
{
    // Somebody may have asked for it by its identifier: then this is the object that it is from now on.
    NSManagedObject* known = records.registry.find(entity.rootEntity(), key);
    if (known && known->isDeleted())
        return nullptr;
    NSManagedObject& object = known
        ? *known
        : records.registry.add(RecordAccess::make(records.context, NSManagedObjectID(store().identity(), entity, key)));
    RecordAccess::fill(object, std::move(values), 0);
    RecordAccess::markInserted(object, nextOrder_++);
    RecordDetails& details = RecordAccess::details(object);
    details.changed = details.changedInEvent = details.rowChanged = changed;
    records.tracker.noteInserted(object);
    records.pendingIndex.touch(object, ~PropertyMask{0});
    fromChildren_.push_back(&object);
    scheduleProcessing();
    return &object;
}

void ContextCore::noteFromChild(NSManagedObject& object)
{
    if (!object.hasChanges())
        fromChildren_.push_back(&object);
}

void ContextCore::shedFromChildren()
{
    for (NSManagedObject* object : fromChildren_) {
        const RecordDetails* details = RecordAccess::detailsIfAny(*object);
        const bool isWatched = details && !details->observers.empty();
        if (object->isFault() || object->isDeleted() || object->hasChanges() || isWatched)
            continue;
        HeldRecords::unloadSets(*object);
        RecordAccess::markFault(*object);
        records.noteFault(*object);
    }
    fromChildren_.clear();
}

// Deletion ------------------------------------------------------------------------------------------------------------

void ContextCore::remove(NSManagedObject& object, Preparation preparation)
{
    assertOnQueue(&object);
    if (object.isDeleted() || RecordAccess::isBeingDeleted(object))
        return;
    RecordAccess::markBeingDeleted(object);
    if (preparation == Preparation::Needed)
        object.prepareForDeletion();
    if (RecordAccess::isGone(object))
        return;
    std::vector<NSManagedObject*> cascade;
    const bool wasInserted = object.isInserted();
    for (const NSRelationshipDescription* relationship : object.entity().relationships()) {
        if (relationship->deleteRule() == NSDeleteRule::Deny && !wasInserted)
            continue; // the save asks whether somebody is still there
        if (relationship->deleteRule() == NSDeleteRule::Cascade) {
            const auto related = relationships.related(object, *relationship);
            cascade.insert(cascade.end(), related.begin(), related.end());
        }
        relationships.detach(object, *relationship);
    }
    if (RecordAccess::isGone(object))
        return;
    records.tracker.noteDeleted(object);
    records.pendingIndex.touch(object, ~PropertyMask{0});
    RecordAccess::markDeleted(object);
    if (wasInserted)
        records.registry.forget(object);
    scheduleProcessing();
    for (NSManagedObject* dependent : cascade)
        remove(*dependent, preparation);
}

// Events --------------------------------------------------------------------------------------------------------------

void ContextCore::scheduleProcessing()
{
    if (isScheduled_)
        return;
    isScheduled_ = true;
    queue().runAtEndOfPass(this, [this] { processPendingChanges(); });
}

void ContextCore::processPendingChanges()
{
    assertOnQueue();
    isScheduled_ = false;
    if (records.isPosting)
        return;
    otherWriters.tell();
    observedValues.tell();
    if (!records.tracker.hasEvent())
        return;
    publish();
    struct Posting {
        explicit Posting(bool& isPosting) : flag(isPosting) { flag = true; }
        ~Posting() { flag = false; }
        bool& flag;
    };
    const ObjectChanges changes = records.tracker.takeEvent();
    // A record that came and went in one pass was never there.
    if (changes.inserted.empty() && changes.updated.empty() && changes.deleted.empty() && changes.refreshed.empty())
        return;
    const auto endEvent = [this](const std::vector<NSManagedObject*>& objects) {
        for (NSManagedObject* object : objects)
            if (RecordDetails* details = RecordAccess::detailsIfAny(*object);
                details && !records.tracker.isInEvent(*object))
                details->changedInEvent = 0;
    };
    const Posting posting(records.isPosting);
    const RecordsInHand inHand(*this);
    const std::uint64_t resets = resetCount_;
    NSNotificationCenter::defaultCenter().postNotification(
        NSManagedObjectContextObjectsDidChangeNotification, &records.context, std::any(changes));
    if (resets != resetCount_)
        return;
    for (const auto* objects : {&changes.inserted, &changes.updated, &changes.deleted, &changes.refreshed})
        endEvent(*objects);
    if (records.tracker.hasEvent())
        scheduleProcessing();
}

void ContextCore::tellOfDroppedChanges() const
{
    for (const auto& participant : participants)
        participant->didDropChanges();
}

// Taking back ---------------------------------------------------------------------------------------------------------

void ContextCore::cancelInsertion(NSManagedObject& object)
{
    records.tracker.noteGone(object);
    RecordAccess::markGone(object);
    HeldRecords::unloadSets(object);
    records.registry.forget(object);
}

void ContextCore::discardChanges(NSManagedObject& object)
{
    RecordAccess::markUndeleted(object);
    if (RecordDetails* details = RecordAccess::detailsIfAny(object)) {
        if (!details->committed.isEmpty())
            RecordAccess::fill(object, std::move(details->committed), object.rowVersion());
        details->committed = PropertyValues();
        details->changed = details->rowChanged = 0;
    }
    HeldRecords::unloadSets(object);
    records.tracker.noteRefreshed(object);
}

void ContextCore::rollback()
{
    assertOnQueue();
    const auto inserted = records.tracker.insertedObjects();
    const auto updated = records.tracker.updatedObjects();
    const auto deleted = records.tracker.deletedObjects();
    for (NSManagedObject* object : updated)
        discardChanges(*object);
    for (NSManagedObject* object : deleted) {
        discardChanges(*object);
        // What others changed of it was left alone while it waited for its deletion.
        if (relationships.holdsMerged())
            readAgain(*object);
    }
    for (NSManagedObject* object : inserted)
        cancelInsertion(*object);
    records.tracker.clearPending();
    records.pendingIndex.clear();
    relationships.settleMerged({});
    fromChildren_.clear();
    publish();
    tellOfDroppedChanges();
    if (records.tracker.hasEvent())
        scheduleProcessing();
}

void ContextCore::reset()
{
    assertOnQueue();
    records.tracker.clear();
    records.pendingIndex.clear();
    fromChildren_.clear();
    publish();
    otherWriters.reset();
    observedValues.reset();
    records.forgetFaults();
    relationships.clear();
    tellOfDroppedChanges();
    ++resetCount_;
    if (inHand_ == 0) {
        records.registry.clear();
        return;
    }
    for (NSManagedObject* object : records.registry.objects())
        RecordAccess::markGone(*object);
    dropped_.push_back(std::exchange(records.registry, ObjectRegistry()));
}

// Identifiers ---------------------------------------------------------------------------------------------------------

void ContextCore::readdress(NSManagedObject& object, const NSManagedObjectID& objectID)
{
    const std::int64_t former = object.objectID().key();
    // Who asked for this key before it was given asked for nothing.
    if (NSManagedObject* early = records.registry.find(*objectID.root(), objectID.key()); early && early != &object)
        records.noteGone(*early);
    records.registry.forget(object);
    RecordAccess::setObjectID(object, objectID);
    records.registry.remember(object);
    if (former < 0)
        records.registry.addFormerKey(former, object);
    relationships.followKey(object, former);
}

bool ContextCore::takeKey(const NSEntityDescription& root, std::int64_t& key, NSError* error)
{
    // A block that was reserved inside a transaction goes with it when that is rolled back, so there it is one at a
    // time.
    if (exclusiveTransaction || isSaving_)
        return store().reserveKeys(root, 1, key, error);
    KeyBlock& block = keyBlocks_[&root];
    if (block.next == block.end) {
        if (!store().reserveKeys(root, keyBlockSize, block.next, error))
            return false;
        block.end = block.next + keyBlockSize;
    }
    key = block.next++;
    return true;
}

bool ContextCore::obtainPermanentIDs(std::span<NSManagedObject* const> objects, NSError* error)
{
    assertOnQueue();
    for (NSManagedObject* object : objects) {
        const NSManagedObjectID id = object->objectID();
        if (!id.isTemporaryID() || object->isDeleted())
            continue;
        std::int64_t key = 0;
        if (!takeKey(id.entity().rootEntity(), key, error))
            return false;
        readdress(*object, NSManagedObjectID(id.store(), id.entity(), key));
    }
    return true;
}

} // namespace tarn
