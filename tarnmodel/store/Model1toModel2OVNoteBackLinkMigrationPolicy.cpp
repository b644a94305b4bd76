#include "tarnmodel/store/Model1toModel2OVNoteBackLinkMigrationPolicy.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/model/InsertionValues.h"
#include "tarnmodel/notes/LinkTargets.h"
#include "tarnmodel/platform/coredata/MigrationRecord.h"
#include "tarnmodel/platform/coredata/NSMigrationManager.h"
#include "tarnmodel/platform/foundation/text/ByteSearch.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <algorithm>
#include <functional>
#include <span>
#include <string_view>
#include <tuple>
#include <vector>

namespace tarn {

namespace {

constexpr std::string_view kNoteMapping = "OVNoteToOVNote";
constexpr std::string_view kStartOfLink = "[[";
// Titles that many links name are short, and soon asked for again.
constexpr std::size_t kMostTargets = 4096;
constexpr std::size_t kLongestKeptTitle = 200;

std::optional<std::string> textOf(const MigrationRecord& record, std::string_view key)
{
    const Value value = record.valueForKey(key);
    return value.isNil() ? std::nullopt : std::optional(value.asString());
}

std::string linkKeyOf(const MigrationRecord& note)
{
    return tarn::linkKeyOf(textOf(note, "title"), textOf(note, "uniqueIdentifier"));
}

/// Which of several notes a link leads to: the first in this order, as `LinkTargets` has it. Nil stands first.
using Rank = std::tuple<std::optional<bool>, std::optional<NSDate>, std::int64_t>;

Rank rankOf(const MigrationRecord& note)
{
    const Value trashed = note.valueForKey("trashed");
    const Value creationDate = note.valueForKey("creationDate");
    return {trashed.isNil() ? std::nullopt : std::optional(trashed.asBool()),
        creationDate.isNil() ? std::nullopt : std::optional(creationDate.asDate()), note.objectID().key()};
}

/// The note that became of a note of the source.
std::optional<NSManagedObjectID> noteMadeOf(const NSManagedObjectID& source, NSMigrationManager& manager)
{
    const auto notes = manager.destinationInstancesForEntityMappingNamed(kNoteMapping, source);
    return notes.empty() ? std::nullopt : std::optional(notes.back());
}

void setRelated(MigrationRecord& link, std::string_view relationship, const std::optional<NSManagedObjectID>& note)
{
    if (note)
        link.setRelatedObjectIDs(relationship, std::span(&*note, 1));
    else
        link.setRelatedObjectIDs(relationship, {});
}

} // namespace

// First pass ----------------------------------------------------------------------------------------------------------

bool Model1toModel2OVNoteBackLinkMigrationPolicy::createDestinationInstancesForSourceInstance(
    const MigrationRecord& source, const NSEntityMapping& mapping, NSMigrationManager& manager, NSError*)
{
    rememberUntitledNote(source);
    const Value text = source.valueForKey("text");
    if (text.isNil() || !containsBytes(text.asString(), kStartOfLink))
        return true;
    const CVKAST document = CVKAST::fromMarkdown(text.asString());
    for (const CVKWikiLink& link : document.textSummary().wikiLinks) {
        if (link.decodedTitle().empty())
            continue;
        MigrationRecord& record = manager.insertDestinationInstance(mapping, mapping.destinationEntityName(), source);
        record.setValueForKey("uniqueIdentifier", newUUIDString());
        record.setValueForKey("modificationDate", now());
        record.setValueForKey("version", currentRecordVersion);
        record.setValueForKey("title", link.decodedTitle());
        record.setValueForKey("location", link.offset());
    }
    return true;
}

void Model1toModel2OVNoteBackLinkMigrationPolicy::rememberUntitledNote(const MigrationRecord& source)
{
    const auto identifier = textOf(source, "uniqueIdentifier");
    if (identifier && textOf(source, "title").value_or("").empty())
        untitledNotes_.emplace(std::hash<std::string>()(*identifier), source.objectID());
}

// Second pass ---------------------------------------------------------------------------------------------------------

bool Model1toModel2OVNoteBackLinkMigrationPolicy::createRelationshipsForDestinationInstance(
    MigrationRecord& destination, const NSEntityMapping& mapping, NSMigrationManager& manager, NSError*)
{
    const NSManagedObjectID source
        = manager.sourceInstanceForEntityMappingNamed(mapping.name(), destination.objectID());
    setRelated(destination, "linkedBy", noteMadeOf(source, manager));
    setRelated(destination, "linkingTo", targetOf(textOf(destination, "title").value_or(""), manager));
    return true;
}

std::optional<NSManagedObjectID> Model1toModel2OVNoteBackLinkMigrationPolicy::targetOf(
    const std::string& title, NSMigrationManager& manager)
{
    const auto known = targets_.find(title);
    if (known != targets_.end())
        return known->second;
    auto target = findTarget(title, fold(title), manager);
    if (targets_.size() == kMostTargets)
        targets_.clear();
    if (title.size() <= kLongestKeptTitle)
        targets_.emplace(title, target);
    return target;
}

std::optional<NSManagedObjectID> Model1toModel2OVNoteBackLinkMigrationPolicy::findTarget(
    const std::string& title, const std::string& key, NSMigrationManager& manager) const
{
    std::vector<NSManagedObjectID> candidates = manager.destinationInstancesWithFoldedValue("OVNote", "title", title);
    const auto [first, last] = untitledNotes_.equal_range(std::hash<std::string>()(title));
    for (auto untitled = first; untitled != last; ++untitled)
        if (const auto note = noteMadeOf(untitled->second, manager))
            candidates.push_back(*note);

    std::optional<NSManagedObjectID> target;
    std::optional<Rank> best;
    for (const NSManagedObjectID& candidate : candidates) {
        const MigrationRecord* note = manager.destinationInstanceWithID(candidate);
        if (!note || linkKeyOf(*note) != key)
            continue;
        const Rank rank = rankOf(*note);
        if (!best || rank < *best) {
            best = rank;
            target = candidate;
        }
    }
    return target;
}

} // namespace tarn
