#include "tarnmodel/platform/coredata/context/ContextCore.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/context/RecordAccess.h"
#include "tarnmodel/platform/coredata/context/StoreCatchUp.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <any>
#include <utility>

namespace tarn {

namespace {

/// Keys reserved at once when identifiers are asked for outside a save.
constexpr std::int64_t keyBlockSize = 64;

} // namespace

ContextCore::ContextCore(NSManagedObjectContext& owner, NSManagedObjectContext::ConcurrencyType type)
    : context(owner), faulting(*this), relationships(*this), otherWriters(*this), observedValues(*this),
      privateQueue_(type == NSManagedObjectContext::ConcurrencyType::PrivateQueue
              ? SerialQueue::make("NSManagedObjectContext")
              : nullptr),
      queue_(privateQueue_ ? privateQueue_.get() : &MainQueue::main())
{ }

ContextCore::~ContextCore()
{
    // A child's save may be under way on the queue.
    if (children && privateQueue_)
        privateQueue_->sync([this] { children->close(); });
    else if (children)
        children->close();
    queue_->cancelAtEndOfPass(this);
    queue_->cancelAtEndOfPass(&otherWriters);
    if (!privateQueue_)
        MainQueue::main().cancelInEachPass(this);
}

void ContextCore::followStore()
{
    otherWriters.begin();
    if (!privateQueue_)
        MainQueue::main().runInEachPass(this, [this] { otherWriters.lookAtEndOfPass(); });
}

RowStore& ContextCore::store() const
{
    if (parentStore)
        return *parentStore;
    if (!coordinator || !coordinator->rowStore())
        throw NSException(NSInternalInconsistencyException, "The context has no persistent store");
    return *coordinator->rowStore();
}

std::shared_ptr<RowStore> ContextCore::sharedStore() const
{
    return parentStore ? parentStore : std::shared_ptr<RowStore>(coordinator, &store());
}

std::shared_ptr<Queue> ContextCore::sharedQueue() const
{
    return privateQueue_ ? privateQueue_ : std::shared_ptr<Queue>(std::shared_ptr<void>(), queue_);
}

void ContextCore::publish()
{
    // Nobody else holds it once the last child is gone.
    if (children && children.use_count() > 1)
        children->publish();
    else
        children.reset();
}

bool ContextCore::catchUp(const StoreTransaction& transaction, NSError* error)
{
    if (knownState == transaction.stateNumber())
        return true;
    if (!StoreCatchUp(*this).run(error))
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
    NSManagedObject& object
        = registry.add(RecordAccess::make(context, NSManagedObjectID::makeTemporary(store().identity(), entity)));
    RecordAccess::fill(object, defaultValues(entity), 0);
    RecordAccess::markInserted(object, nextOrder_++);
    tracker.noteInserted(object);
    pendingIndex.touch(object, ~PropertyMask{0});
    scheduleProcessing();
    object.awakeFromInsert();
    return object;
}

NSManagedObjectID ContextCore::localID(const NSManagedObjectID& objectID) const
{
    const bool hasStore = parentStore || (coordinator && coordinator->rowStore());
    if (!objectID || !hasStore || &objectID.store() != &store().identity())
        return {};
    const NSManagedObjectModel& model = coordinator->managedObjectModel();
    if (&objectID.entity().model() == &model)
        return objectID;
    // Another coordinator on the same store may have read the model for itself.
    const NSEntityDescription* entity = model.entityNamed(objectID.entity().name());
    return entity ? NSManagedObjectID(objectID.store(), *entity, objectID.key()) : NSManagedObjectID();
}

NSManagedObject& ContextCore::recordOrFault(const NSEntityDescription& entity, std::int64_t key)
{
    if (NSManagedObject* known = registry.find(entity.rootEntity(), key))
        return *known;
    NSManagedObject& object
        = registry.add(RecordAccess::make(context, NSManagedObjectID(store().identity(), entity, key)));
    RecordAccess::markFault(object);
    faulting.noteFault(object);
    return object;
}

NSManagedObject* ContextCore::adoptInsertion(
    const NSEntityDescription& entity, std::int64_t key, PropertyValues values, PropertyMask changed)
{
    // Somebody may have asked for it by its identifier: then this is the object that it is from now on.
    NSManagedObject* known = registry.find(entity.rootEntity(), key);
    if (known && known->isDeleted())
        return nullptr;
    NSManagedObject& object = known
        ? *known
        : registry.add(RecordAccess::make(context, NSManagedObjectID(store().identity(), entity, key)));
    RecordAccess::fill(object, std::move(values), 0);
    RecordAccess::markInserted(object, nextOrder_++);
    RecordDetails& details = RecordAccess::details(object);
    details.changed = details.changedInEvent = details.rowChanged = changed;
    tracker.noteInserted(object);
    pendingIndex.touch(object, ~PropertyMask{0});
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
        relationships.unload(*object);
        RecordAccess::markFault(*object);
        faulting.noteFault(*object);
    }
    fromChildren_.clear();
}

bool ContextCore::beginWrite(NSManagedObject& object)
{
    assertOnQueue(&object);
    if (object.isDeleted())
        return false;
    if (object.isFault())
        faulting.fire(object);
    if (RecordAccess::isGone(object))
        return false;
    RecordDetails& details = RecordAccess::details(object);
    if (!object.isInserted() && details.changed == 0)
        details.committed = RecordAccess::values(object);
    return true;
}

void ContextCore::noteChange(NSManagedObject& object, PropertyIndex index, bool inRow)
{
    RecordDetails& details = RecordAccess::details(object);
    const PropertyMask bit = propertyBit(index);
    const bool isFirstChange = details.changed == 0;
    const bool isNews = isFirstChange || details.changedInEvent == 0 || isPosting_;
    details.changed |= bit;
    details.changedInEvent |= bit;
    if (inRow)
        details.rowChanged |= bit;
    if (isNews)
        tracker.noteUpdated(object);
    pendingIndex.touch(object, isFirstChange ? ~PropertyMask{0} : bit);
    scheduleProcessing();
    if (const NSPropertyDescription& property = object.entity().property(index); property.isRelationship())
        RecordAccess::tellObservers(object, property.name());
}

void ContextCore::noteGone(NSManagedObject& object)
{
    tracker.forgetPending(object);
    tracker.noteGone(object);
    RecordAccess::markGone(object);
    relationships.unload(object);
    registry.forget(object);
    pendingIndex.touch(object, ~PropertyMask{0});
    scheduleProcessing();
}

void ContextCore::noteAppeared(NSManagedObject& object)
{
    tracker.noteAppeared(object);
    scheduleProcessing();
}

void ContextCore::settleMergedRelationships(const std::vector<NSManagedObject*>& deleted)
{
    if (!std::exchange(holdsMergedRelationships, false))
        return;
    KeysOfEntities gone;
    for (const NSManagedObject* record : deleted)
        gone[&record->entity().rootEntity()].insert(record->objectID().key());
    if (!gone.empty())
        relationships.dropReferences(gone);
    for (NSManagedObject* record : registry.objects())
        relationships.forgetEndsWithoutColumn(*record);
}

void ContextCore::noteRefreshed(NSManagedObject& object)
{
    tracker.noteRefreshed(object);
    scheduleProcessing();
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
    tracker.noteDeleted(object);
    pendingIndex.touch(object, ~PropertyMask{0});
    RecordAccess::markDeleted(object);
    if (wasInserted)
        registry.forget(object);
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
    queue_->runAtEndOfPass(this, [this] { processPendingChanges(); });
}

void ContextCore::processPendingChanges()
{
    assertOnQueue();
    isScheduled_ = false;
    if (isPosting_)
        return;
    otherWriters.tell();
    observedValues.tell();
    if (!tracker.hasEvent())
        return;
    publish();
    struct Posting {
        explicit Posting(bool& isPosting) : flag(isPosting) { flag = true; }
        ~Posting() { flag = false; }
        bool& flag;
    };
    const ObjectChanges changes = tracker.takeEvent();
    // A record that came and went in one pass was never there.
    if (changes.inserted.empty() && changes.updated.empty() && changes.deleted.empty() && changes.refreshed.empty())
        return;
    const auto endEvent = [this](const std::vector<NSManagedObject*>& objects) {
        for (NSManagedObject* object : objects)
            if (RecordDetails* details = RecordAccess::detailsIfAny(*object); details && !tracker.isInEvent(*object))
                details->changedInEvent = 0;
    };
    const Posting posting(isPosting_);
    const RecordsInHand inHand(*this);
    const std::uint64_t resets = resetCount_;
    NSNotificationCenter::defaultCenter().postNotification(
        NSManagedObjectContextObjectsDidChangeNotification, &context, std::any(changes));
    if (resets != resetCount_)
        return;
    for (const auto* objects : {&changes.inserted, &changes.updated, &changes.deleted, &changes.refreshed})
        endEvent(*objects);
    if (tracker.hasEvent())
        scheduleProcessing();
}

// Taking back ---------------------------------------------------------------------------------------------------------

void ContextCore::cancelInsertion(NSManagedObject& object)
{
    tracker.noteGone(object);
    RecordAccess::markGone(object);
    relationships.unload(object);
    registry.forget(object);
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
    relationships.unload(object);
    tracker.noteRefreshed(object);
}

void ContextCore::rollback()
{
    assertOnQueue();
    const auto inserted = tracker.insertedObjects();
    const auto updated = tracker.updatedObjects();
    const auto deleted = tracker.deletedObjects();
    for (NSManagedObject* object : updated)
        discardChanges(*object);
    for (NSManagedObject* object : deleted) {
        discardChanges(*object);
        // What others changed of it was left alone while it waited for its deletion.
        if (holdsMergedRelationships)
            readAgain(*object);
    }
    for (NSManagedObject* object : inserted)
        cancelInsertion(*object);
    tracker.clearPending();
    pendingIndex.clear();
    settleMergedRelationships({});
    fromChildren_.clear();
    publish();
    if (tracker.hasEvent())
        scheduleProcessing();
}

void ContextCore::reset()
{
    assertOnQueue();
    tracker.clear();
    pendingIndex.clear();
    fromChildren_.clear();
    publish();
    otherWriters.reset();
    observedValues.reset();
    faulting.clear();
    relationships.clear();
    ++resetCount_;
    if (inHand_ == 0) {
        registry.clear();
        return;
    }
    for (NSManagedObject* object : registry.objects())
        RecordAccess::markGone(*object);
    dropped_.push_back(std::exchange(registry, ObjectRegistry()));
}

// Identifiers ---------------------------------------------------------------------------------------------------------

void ContextCore::readdress(NSManagedObject& object, const NSManagedObjectID& objectID)
{
    const std::int64_t former = object.objectID().key();
    // Who asked for this key before it was given asked for nothing.
    if (NSManagedObject* early = registry.find(*objectID.root(), objectID.key()); early && early != &object)
        noteGone(*early);
    registry.forget(object);
    RecordAccess::setObjectID(object, objectID);
    registry.remember(object);
    if (former < 0)
        registry.addFormerKey(former, object);
    relationships.followKey(object, former);
}

bool ContextCore::takeKey(const NSEntityDescription& root, std::int64_t& key, NSError* error)
{
    // A block that was reserved inside a transaction goes with it when that is rolled back, so there it is one at a
    // time.
    if (exclusiveTransaction || isSaving)
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
