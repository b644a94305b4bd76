#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteCaches.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/notes/EditGuard.h"
#include "tarnmodel/notes/OVNoteCacheLoan.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"
#include "tarnmodel/tags/TagLookupInternal.h"

#include <map>

namespace tarn {

namespace {

using TagsBySuffix = std::map<std::string, OVNoteTag*, std::less<>>;

/// What stands behind the name of the tag above: "/b" of "A/b" below "a".
std::optional<std::string> suffixBehind(std::string_view parentTitle, const OVNoteTag& tag)
{
    const std::string title = tag.title().value_or("");
    const auto parent = rangeOfFolded(title, fold(parentTitle));
    if (!parent)
        return std::nullopt;
    return title.substr(parent->location + parent->length);
}

TagsBySuffix tagsBySuffix(std::string_view parentTitle, const std::vector<OVNoteTag*>& tags)
{
    TagsBySuffix map;
    for (OVNoteTag* tag : tags) {
        if (auto suffix = suffixBehind(parentTitle, *tag))
            map.insert_or_assign(std::move(*suffix), tag);
    }
    return map;
}

void rewriteNotes(const std::vector<OVNote*>& notes, const std::string& name, const std::string& newName)
{
    OVNote::TagsCache tags;
    OVNote::NotesCache linkTargets;
    for (OVNote* note : notes) {
        if (note->isDeleted())
            continue;
        const CVKAST document = CVKHashtag::renameTagName(name, newName, note->text().value_or(""));
        const OVNoteCacheLoan loan(*note, tags, linkTargets);
        note->updateNoteWithAST(document, false);
    }
}

} // namespace

OVNoteTag* OVNoteTag::renameTagWithTagNamed(std::string_view newName)
{
    return rename(newName, nullptr);
}

OVNoteTag* OVNoteTag::renameTagWithTagNamed(std::string_view newName, const std::vector<OVNote*>& notes)
{
    return rename(newName, &notes);
}

OVNoteTag* OVNoteTag::rename(std::string_view newName, const std::vector<OVNote*>* notes)
{
    const std::string oldTitle = title().value_or("");
    const std::string newTitle = CVKHashtag::sanitizeTagName(newName);
    if (newName == oldTitle || newTitle.empty())
        return nullptr;
    NSManagedObjectContext& context = managedObjectContext();
    const std::vector<OVNoteTag*> oldDescendants = childsAndSubChildsTagsWithSortDescriptors();
    const auto existing = lookUpTag(newTitle, context);
    if (!existing)
        return nullptr;
    const auto held = EditGuard::holdUnlocked(context);
    const std::vector<OVNote*> renamed = notes ? *notes : notesSet().allObjects();
    EditGuard::requireRewritable(
        renamed, [&](const std::string& text) { return CVKHashtag::renameTagName(oldTitle, newTitle, text); });

    rewriteNotes(renamed, oldTitle, newTitle);
    OVNoteTag* newTag = lookUpTag(newTitle, context).value_or(nullptr);
    if (!newTag)
        return nullptr;
    if (!*existing)
        moveSettingsTo(*newTag);
    if (newTag == this)
        setTitle(newTitle);
    else
        movePinnedNotesTo(*newTag);
    newTag->takeIconsOfSubTags(oldDescendants, oldTitle);
    return newTag;
}

void OVNoteTag::moveSettingsTo(OVNoteTag& tag) const
{
    tag.setTagcon(tagcon());
    tag.setSorting(sorting());
    tag.setSortingDate(sortingDate());
    tag.setSortingDirection(sortingDirection());
    tag.setSortingDirectionDate(sortingDirectionDate());
    if (!tag.isRootValue()) {
        tag.unpin();
        return;
    }
    tag.setPinned(pinned());
    tag.setPinnedDate(pinnedDate());
}

void OVNoteTag::movePinnedNotesTo(OVNoteTag& tag)
{
    for (OVNote* note : pinnedNotesSet().allObjects())
        tag.pinnedNotesSet().addObject(*note);
    tag.setPinnedNotesDate(now());
    pinnedNotesSet().removeAllObjects();
    setPinnedNotesDate(now());
}

void OVNoteTag::takeIconsOfSubTags(const std::vector<OVNoteTag*>& oldTags, std::string_view oldTitle)
{
    const TagsBySuffix former = tagsBySuffix(oldTitle, oldTags);
    if (former.empty())
        return;
    const std::string ownTitle = title().value_or("");
    for (OVNoteTag* tag : childsAndSubChildsTagsWithSortDescriptors()) {
        const auto suffix = suffixBehind(ownTitle, *tag);
        const auto found = suffix ? former.find(*suffix) : former.end();
        if (found != former.end())
            tag->setTagcon(found->second->tagcon());
    }
}

} // namespace tarn
