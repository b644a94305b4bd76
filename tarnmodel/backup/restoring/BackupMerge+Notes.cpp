#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/backup/restoring/BackupMerge.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/sync/TolVectorClock.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tarn {

namespace {

/// What a note keeps to itself in a conflict: of which note it is a version.
constexpr std::array<std::string_view, 2> kConflictKeys{"conflictUniqueIdentifier", "conflictUniqueIdentifierDate"};
constexpr std::array<std::string_view, 3> kKeysOfItsOwn{
    "uniqueIdentifier", "conflictUniqueIdentifier", "conflictUniqueIdentifierDate"};

std::optional<TolVectorClock> clockOf(const Value& stored)
{
    return TolVectorClock::initWithData(
        stored.kind() == Value::Kind::Data ? std::optional(stored.asData()) : std::nullopt);
}

bool hasSameText(const BackupRecord& record, const OVNote& note)
{
    return note.storedValueForKey("text") == record.attribute("text")
        && note.storedValueForKey("encryptedData") == record.attribute("encryptedData");
}

} // namespace

void BackupMerge::mergeNotes(const Page& page)
{
    const Existing existing = existingRecords("OVNote", page);
    for (const BackupRecord& record : page)
        mergeNote(record, static_cast<OVNote*>(existingRecord(existing, record)));
}

void BackupMerge::mergeNote(const BackupRecord& record, OVNote* existing)
{
    Fate fate = existing ? fateOf(record, *existing) : Fate::Inserted;
    OVNote* note = existing;
    if (fate == Fate::Inserted) {
        note = static_cast<OVNote*>(&insertRecord(record));
        setRelationships(record, *note);
    } else if (fate == Fate::Replaced) {
        setStoredAttributes(record, *note, kConflictKeys);
        setRelationships(record, *note);
        // Nobody can derive the links of a protected text: those of the backup take their place.
        if (note->encryptedValue())
            for (OVNoteBackLink* link : note->linkingToSet().allObjects())
                context_.deleteObject(*link);
    } else if (fate == Fate::Conflict) {
        keepAsCopy(record, *existing);
        return;
    }
    const bool isKept = fate == Fate::Same || fate == Fate::Newer;
    ++(isKept ? restoration_.kept : restoration_.restored);
    if (fate == Fate::Newer && note->permanentlyDeletedValue() && !record.attribute("permanentlyDeleted").isNil()
        && !record.attribute("permanentlyDeleted").asBool())
        tell(record, "it was deleted for good since; its tombstone stays");
    afterSave_.emplace_back([this, fate, note, number = record.number] {
        notes_[number] = {fate, note->objectID(), note->objectID()};
        if (fate == Fate::Inserted || fate == Fate::Replaced || (fate == Fate::Same && isResumed_))
            toDerive_.push_back(note->objectID());
    });
}

BackupMerge::Fate BackupMerge::fateOf(const BackupRecord& record, const OVNote& existing) const
{
    if (hasStoredAttributes(existing, record))
        return Fate::Same;
    const auto theirs = clockOf(record.attribute("vectorClock"));
    const auto ours = clockOf(existing.storedValueForKey("vectorClock"));
    const auto order = theirs && ours ? theirs->compare(*ours) : TolVectorClock::Concurrent;
    if (order == TolVectorClock::Follows)
        return Fate::Replaced;
    if (order == TolVectorClock::Precedes)
        return Fate::Newer;
    // Two texts of one clock were written where no edits are counted.
    if (hasSameText(record, existing))
        return order == TolVectorClock::Equal ? Fate::Same : Fate::Newer;
    return Fate::Conflict;
}

/// The copy that an earlier restore made, whether it was edited since or not.
OVNote* BackupMerge::earlierCopy(const BackupRecord& record, const OVNote& existing) const
{
    const auto theirs = clockOf(record.attribute("vectorClock"));
    for (OVNote* version : existing.hasConflictedNotes() ? existing.conflictedNotes() : std::vector<OVNote*>()) {
        const auto clock = clockOf(version->storedValueForKey("vectorClock"));
        if (version == &existing)
            continue;
        if (hasSameText(record, *version))
            return version;
        if (theirs && clock && !theirs->clockValues().empty() && clock->compare(*theirs) == TolVectorClock::Follows)
            return version;
    }
    return nullptr;
}

void BackupMerge::keepAsCopy(const BackupRecord& record, OVNote& existing)
{
    OVNote* copy = earlierCopy(record, existing);
    const bool isNew = copy == nullptr;
    if (isNew) {
        copy = OVNote::insertInManagedObjectContext(context_);
        setStoredAttributes(record, *copy, kKeysOfItsOwn);
        setRelationships(record, *copy);
        copy->markAsConflictedFromNote(existing);
        ++restoration_.conflicts;
    }
    ++(isNew ? restoration_.restored : restoration_.kept);
    afterSave_.emplace_back([this, isNew, copy, &existing, number = record.number] {
        notes_[number] = {Fate::Conflict, copy->objectID(), existing.objectID()};
        if (isNew || isResumed_)
            toDerive_.push_back(copy->objectID());
    });
}

void BackupMerge::setRelationships(const BackupRecord& record, OVNote& note)
{
    const auto tagsOf = [&](std::string_view name) {
        std::vector<OVNoteTag*> tags;
        const auto found = record.related.find(name);
        if (found != record.related.end())
            for (const std::int64_t number : found->second)
                if (auto* tag = static_cast<OVNoteTag*>(recordFor(tags_, number)))
                    tags.push_back(tag);
        return tags;
    };
    note.tagsSet().setObjects(tagsOf("tags"));
    note.pinnedInTagsSet().setObjects(tagsOf("pinnedInTags"));
    note.setPassword(static_cast<OVPassword*>(recordFor(passwords_, record.toOne("password"))));
    tellWhereLocked(record);
}

} // namespace tarn
