#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/diagnosis/RecordReadingInternal.h"
#include "tarnmodel/diagnosis/TagRepairInternal.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <algorithm>
#include <set>

namespace tarn {

namespace {

/// What people set for the tag that goes and not for the one that stays.
void takeSettings(OVNoteTag& tag, const OVNoteTag& other)
{
    if (!tag.tagcon() && other.tagcon())
        tag.setTagcon(other.tagcon());
    // Every tag has a sorting; one that somebody chose has a date.
    if (!tag.sortingDate() && other.sortingDate())
        tag.setSorting(other.sorting());
    if (!tag.sortingDirectionDate() && other.sortingDirectionDate())
        tag.setSortingDirection(other.sortingDirection());
    if (tag.isRootValue() && other.isPinned() && !tag.isPinned())
        tag.pin();
}

} // namespace

bool hasUsableTitle(const OVNoteTag& tag)
{
    const std::string title = tag.title().value_or("");
    return !title.empty() && CVKHashtag::sanitizeTagName(title) == title;
}

bool hasParentTags(const OVNote& note)
{
    const std::vector<OVNoteTag*> tags = note.tagsSet().allObjects();
    std::set<std::string> keys;
    for (const OVNoteTag* tag : tags)
        keys.insert(tag->normalizedTitle());
    return std::ranges::all_of(tags, [&keys](const OVNoteTag* tag) {
        const auto above = tag->normalizedFatherTagName();
        return !above || keys.contains(*above);
    });
}

std::size_t TagRepair::run()
{
    mendTitles();
    completeProtectedNotes();
    return mended_;
}

void TagRepair::mendTitles()
{
    std::vector<OVNoteTag*> tags = readRecords<OVNoteTag>(context_);
    // Tags in order keep their records, whatever has to be united with them.
    const auto isInOrder = [](const OVNoteTag* tag) { return hasUsableTitle(*tag); };
    std::stable_partition(tags.begin(), tags.end(), isInOrder);
    for (OVNoteTag* tag : tags)
        mend(*tag);
}

void TagRepair::mend(OVNoteTag& tag)
{
    const std::string title = CVKHashtag::sanitizeTagName(tag.title().value_or(""));
    if (title.empty()) {
        context_.deleteObject(tag);
        ++mended_;
        return;
    }
    const auto [present, isNew] = tags_.try_emplace(fold(title), &tag);
    if (!isNew) {
        unite(*present->second, tag);
        ++mended_;
    } else if (tag.title() != title) {
        tag.setTitle(title);
        tag.setIsRootValue(CVKHashtag::componentsForForTagName(title).size() == 1);
        ++mended_;
    }
}

/// The notes are given over as they are: those that can be read are derived anew, protected ones cannot be.
void TagRepair::unite(OVNoteTag& tag, OVNoteTag& other)
{
    for (OVNote* note : other.notesSet().allObjects())
        tag.notesSet().addObject(*note);
    const std::vector<OVNote*> pinned = other.pinnedNotesSet().allObjects();
    for (OVNote* note : pinned)
        tag.pinnedNotesSet().addObject(*note);
    if (!pinned.empty())
        tag.setPinnedNotesDate(now());
    takeSettings(tag, other);
    context_.deleteObject(other);
}

void TagRepair::completeProtectedNotes()
{
    const auto isProtectedAndTagged = NSPredicate::predicateWithFormat("encrypted == YES AND tags.@count > 0");
    for (OVNote* note : readRecords<OVNote>(context_, isProtectedAndTagged)) {
        if (hasParentTags(*note))
            continue;
        for (const OVNoteTag* tag : note->tagsSet().allObjects()) {
            std::vector<std::string> path = tag->tagComponents();
            for (path.pop_back(); !path.empty(); path.pop_back()) {
                const std::string name = CVKHashtag::tagNameFromComponents(path);
                if (OVNoteTag* above = OVNoteTag::getOrCreateTagWithName(name, context_))
                    note->tagsSet().addObject(*above);
            }
        }
        ++mended_;
    }
}

} // namespace tarn
