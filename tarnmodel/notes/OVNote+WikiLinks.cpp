#include "tarnmodel/corvel/CVKWikiLink.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteCaches.h"
#include "tarnmodel/notes/LinkTargets.h"
#include "tarnmodel/notes/TitlePropagation.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <algorithm>
#include <unordered_map>

namespace tarn {

namespace {

/// What reconciling the records of a note's links with its text comes to.
struct LinkChanges {
    std::vector<OVNoteBackLink*> gone;
    std::vector<CVKWikiLink> missing;
};

bool isStillRight(const OVNoteBackLink& record, const CVKWikiLink& link)
{
    const OVNote* target = record.linkingTo();
    if (!target)
        return false;
    const std::string title = fold(record.title().value_or(""));
    return title == fold(link.decodedTitle()) && title == fold(target->title().value_or(""));
}

LinkChanges changesOfLinks(const OVNote& note, std::span<const CVKWikiLink> links)
{
    LinkChanges changes;
    std::unordered_map<std::int64_t, OVNoteBackLink*> records;
    const std::vector<OVNoteBackLink*> present = note.linkingToSet().allObjects();
    for (OVNoteBackLink* record : present) {
        // No two links stand at one place; a second record there is left over from a merge or a copy.
        if (!records.try_emplace(record->locationValue(), record).second)
            changes.gone.push_back(record);
    }
    for (const CVKWikiLink& link : links) {
        const auto found = records.find(static_cast<std::int64_t>(link.offset()));
        if (found != records.end() && isStillRight(*found->second, link))
            records.erase(found);
        else if (!link.decodedTitle().empty())
            changes.missing.push_back(link);
    }
    for (OVNoteBackLink* record : present) {
        const auto left = records.find(record->locationValue());
        if (left != records.end() && left->second == record)
            changes.gone.push_back(record);
    }
    return changes;
}

void forgetWalksOver(const OVNoteBackLink& link)
{
    if (const OVNote* target = link.linkingTo())
        TitlePropagation::forget(*target);
}

} // namespace

void OVNote::setLinkedNotesFromWikiLinks(std::span<const CVKWikiLink> wikiLinks)
{
    NSManagedObjectContext& context = managedObjectContext();
    TitlePropagation::forget(*this);
    const LinkChanges changes = changesOfLinks(*this, wikiLinks);
    LinkTargets targets(context, notesCache_);
    if (!targets.lookUp(changes.missing))
        return;
    for (OVNoteBackLink* record : changes.gone) {
        forgetWalksOver(*record);
        context.deleteObject(*record);
    }
    for (const CVKWikiLink& link : changes.missing) {
        OVNoteBackLink* record = OVNoteBackLink::insertInManagedObjectContext(context);
        record->setTitle(link.decodedTitle());
        record->setLocationValue(static_cast<std::int64_t>(link.offset()));
        record->setLinkingTo(targets.targetOf(link.decodedTitle()));
        record->setLinkedBy(this);
        forgetWalksOver(*record);
    }
}

/// Whether the records of the note's links are those of the text, and lead to the notes that there are now.
bool OVNote::leadsWhereLinksSay(std::span<const CVKWikiLink> wikiLinks) const
{
    const std::vector<OVNoteBackLink*> records = linkingToSet().allObjects();
    std::unordered_map<std::int64_t, const OVNoteBackLink*> byLocation;
    for (const OVNoteBackLink* record : records)
        byLocation.emplace(record->locationValue(), record);
    std::size_t count = 0;
    std::vector<CVKWikiLink> waiting;
    for (const CVKWikiLink& link : wikiLinks) {
        if (link.decodedTitle().empty())
            continue;
        ++count;
        const auto found = byLocation.find(static_cast<std::int64_t>(link.offset()));
        if (found == byLocation.end() || fold(found->second->title().value_or("")) != fold(link.decodedTitle()))
            return false;
        if (!found->second->linkingTo())
            waiting.push_back(link);
        else if (!isStillRight(*found->second, link))
            return false;
    }
    if (count != records.size())
        return false;
    LinkTargets targets(managedObjectContext(), nullptr);
    return !targets.lookUp(waiting) || std::ranges::none_of(waiting, [&](const CVKWikiLink& link) {
        return targets.targetOf(link.decodedTitle()) != nullptr;
    });
}

void OVNote::updateLinkedByNoteForNewTitle(
    std::optional<std::string_view> newTitle, std::optional<std::string_view> oldTitle)
{
    TitlePropagation::titleChanged(*this, newTitle, oldTitle);
}

bool OVNote::canReplaceWikiLinkWithTitle(std::string_view title, VisitedNotes* parentLinkedBy)
{
    VisitedNotes visited;
    return TitleLineGuard::walk(*this, title, parentLinkedBy ? *parentLinkedBy : visited);
}

} // namespace tarn
