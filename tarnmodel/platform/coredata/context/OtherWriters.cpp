#include "tarnmodel/platform/coredata/context/OtherWriters.h"

#include "tarnmodel/platform/coredata/context/records/HeldRecords.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <algorithm>
#include <bit>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace tarn {

namespace {

/// Ends of relationships that are compared with the store one by one; records with further ones are read again.
constexpr std::size_t kMostComparedEnds = 1000;

using Keys = std::vector<std::int64_t>;

/// To-ones without a column of their own that were read and are as they were read.
PropertyMask readInverseToOnes(const NSManagedObject& record)
{
    const NSEntityDescription& entity = record.entity();
    return entity.inverseColumnMask() & ~entity.toManyMask() & RecordAccess::values(record).loadedMask()
        & ~RecordAccess::changed(record);
}

bool holdsEndsWithoutColumn(const NSManagedObject& record)
{
    const RecordDetails* details = RecordAccess::detailsIfAny(record);
    const auto isLoaded = [](const auto& set) { return set->isLoaded(); };
    return readInverseToOnes(record) != 0
        || (details && std::any_of(details->toManySets.begin(), details->toManySets.end(), isLoaded));
}

/// The members that the store had when the set was read.
Keys storedMembers(ToManySet& set)
{
    std::unordered_set<const NSManagedObject*> added(set.added().begin(), set.added().end());
    Keys keys;
    for (const NSManagedObject* member : set.members())
        if (!added.contains(member))
            keys.push_back(member->objectID().key());
    for (const NSManagedObject* member : set.removed())
        keys.push_back(member->objectID().key());
    std::sort(keys.begin(), keys.end());
    return keys;
}

Keys keysOf(const std::vector<RelatedKey>& related)
{
    Keys keys;
    for (const RelatedKey& one : related)
        keys.push_back(one.key);
    return keys;
}

} // namespace

void OtherWriters::begin()
{
    RowStore* const store = host_.storeIfAny();
    seenVersion_ = store ? store->dataVersion().value_or(0) : 0;
}

// When to look --------------------------------------------------------------------------------------------------------

bool OtherWriters::hasMoved()
{
    const std::uint64_t commits = records_.store().commitsMet();
    const auto version = records_.store().dataVersion();
    if (!version)
        return false; // somebody writes at this moment: the next look asks again
    seenCommits_ = commits;
    if (version == seenVersion_)
        return false;
    seenVersion_ = version;
    hasNotice_ = true;
    return true;
}

void OtherWriters::lookAfterFetch()
{
    if (!seenVersion_ || isLooking_ || host_.isSaving() || records_.store().commitsMet() == seenCommits_)
        return;
    if (hasMoved())
        catchUp({.unsaved = true, .handedOut = true});
}

void OtherWriters::lookUnderLock()
{
    if (seenVersion_ && !host_.isSaving() && (hasMoved() || isBehind_))
        catchUp({.unsaved = true});
}

void OtherWriters::lookAtEndOfPass()
{
    forgetTextsRead();
    const bool isFree
        = seenVersion_ && !isLooking_ && !host_.isSaving() && !host_.isExclusive() && host_.storeIfAny() != nullptr;
    if (isFree && (hasMoved() || isBehind_))
        catchUp({});
}

void OtherWriters::noteTextRead(const NSManagedObject& record)
{
    if (seenVersion_ && RecordAccess::markHandedOut(record))
        handedOut_.push_back(&record);
}

void OtherWriters::forgetTextsRead()
{
    for (const NSManagedObject* record : std::exchange(handedOut_, {}))
        RecordAccess::unmarkHandedOut(*record);
}

void OtherWriters::tell()
{
    if (std::exchange(hasNotice_, false))
        NSNotificationCenter::defaultCenter().postNotification(
            NSManagedObjectContextStoreDidChangeElsewhereNotification, &records_.context);
}

// What is new ---------------------------------------------------------------------------------------------------------

void OtherWriters::catchUp(Reserve reserve)
{
    isLooking_ = true;
    isInFetch_ = reserve.handedOut;
    isBehind_ = false;
    records_.operations.scheduleProcessing();
    RemoteChanges changes;
    if (const auto found = news(reserve)) {
        for (const NSManagedObject* record : found->moved)
            changes.updated.push_back(record->objectID());
        for (const NSManagedObject* record : found->gone)
            changes.deleted.push_back(record->objectID());
        host_.takeRemoteChanges(changes);
    }
    isLooking_ = false;
    if (isBehind_)
        records_.queue.runAtEndOfPass(this, [this] {
            lookAtEndOfPass();
            host_.processPendingChanges();
        });
}

std::optional<VersionDifferences> OtherWriters::news(Reserve reserve)
{
    std::unordered_map<const NSEntityDescription*, std::vector<NSManagedObject*>> held;
    for (NSManagedObject* record : records_.registry.objects())
        if (!record->isFault() && !record->isDeleted() && !record->isInserted())
            held[&record->entity().rootEntity()].push_back(record);
    VersionDifferences found;
    for (auto& [root, records] : held) {
        NSError error;
        if (!compareVersions(records_.store(), *root, records, found, &error)) {
            noteFailure(error);
            return std::nullopt;
        }
        if (!compareRelationships(records, found))
            return std::nullopt;
    }
    const auto waits = [&](const NSManagedObject* record) {
        const bool isReserved
            = (reserve.unsaved && record->hasChanges()) || (reserve.handedOut && RecordAccess::isHandedOut(*record));
        isBehind_ = isBehind_ || isReserved;
        return isReserved;
    };
    std::erase_if(found.moved, waits);
    // What an edit is about to name must not vanish under it.
    const bool areAllReserved = reserve.unsaved && !found.gone.empty() && records_.tracker.hasChanges();
    isBehind_ = isBehind_ || areAllReserved;
    if (areAllReserved)
        found.gone.clear();
    std::erase_if(found.gone, waits);
    return found;
}

/// Who fetches hears of a store that cannot be read from the fetch that needs it; the look comes again.
void OtherWriters::noteFailure(const NSError& error)
{
    if (isInFetch_)
        isBehind_ = true;
    else
        logMessage("Error while looking for what others saved\n" + error.localizedDescription());
}

/// What changed through joins, or through columns of other rows, leaves the version of a row as it was.
bool OtherWriters::compareRelationships(const std::vector<NSManagedObject*>& records, VersionDifferences& news)
{
    std::unordered_set<const NSManagedObject*> known(news.moved.begin(), news.moved.end());
    known.insert(news.gone.begin(), news.gone.end());
    std::size_t compared = 0;
    for (NSManagedObject* record : records) {
        if (!holdsEndsWithoutColumn(*record) || known.contains(record))
            continue;
        const auto differs = ++compared > kMostComparedEnds ? true : hasOtherMembers(*record);
        if (!differs)
            return false;
        if (*differs)
            news.moved.push_back(record);
    }
    return true;
}

/// None, and a line in the log, when the store cannot be read.
std::optional<bool> OtherWriters::hasOtherMembers(NSManagedObject& record)
{
    std::vector<RelatedKey> related;
    NSError error;
    const auto read = [&](const NSRelationshipDescription& relationship) {
        if (records_.store().relatedKeys(relationship, record.objectID().key(), related, &error))
            return true;
        noteFailure(error);
        return false;
    };
    if (const RecordDetails* details = RecordAccess::detailsIfAny(record)) {
        for (const auto& set : details->toManySets) {
            if (!set->isLoaded())
                continue;
            if (!read(set->relationship()))
                return std::nullopt;
            if (keysOf(related) != storedMembers(*set))
                return true;
        }
    }
    for (PropertyMask rest = readInverseToOnes(record); rest != 0; rest &= rest - 1) {
        const auto index = static_cast<PropertyIndex>(std::countr_zero(rest));
        if (!read(static_cast<const NSRelationshipDescription&>(record.entity().property(index))))
            return std::nullopt;
        const PropertyValues& values = RecordAccess::values(record);
        if (keysOf(related) != (values.isNil(index) ? Keys{} : Keys{values.integer(index)}))
            return true;
    }
    return false;
}

} // namespace tarn
