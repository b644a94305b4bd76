#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"
#include "tarnmodel/tags/TagLookupInternal.h"
#include "tarnmodel/tags/TagPredicates.h"

namespace tarn {

OVNoteTag* OVNoteTag::addNewTagWithName(std::string_view name, NSManagedObjectContext& context)
{
    const std::string title = CVKHashtag::sanitizeTagName(name);
    if (title.empty())
        return nullptr;
    OVNoteTag* tag = insertInManagedObjectContext(context);
    tag->setTitle(title);
    tag->setIsRootValue(CVKHashtag::componentsForForTagName(title).size() == 1);
    return tag;
}

OVNoteTag* OVNoteTag::getOrCreateTagWithName(std::string_view name, NSManagedObjectContext& context)
{
    return findOrCreateTag(name, context).value_or(nullptr);
}

std::vector<OVNoteTag*> OVNoteTag::getOrCreateTagWithNames(
    std::span<const std::string> names, NSManagedObjectContext& context)
{
    return findOrCreateTags(names, context).value_or(std::vector<OVNoteTag*>());
}

void OVNoteTag::deleteAllUnusedTagsInManagedObjectContext(NSManagedObjectContext& context)
{
    for (OVNoteTag* tag : tagsMatching(predicateForUnusedTags(), {}, context))
        context.deleteObject(*tag);
}

// Made twice ----------------------------------------------------------------------------------------------------------

void OVNoteTag::deriveFromOthers()
{
    const auto ownTitle = title();
    if (!isInserted() || !ownTitle)
        return;
    const auto first = lookUpTag(*ownTitle, managedObjectContext());
    if (first && *first && *first != this && !(*first)->isInserted())
        giveWayTo(**first);
}

void OVNoteTag::giveWayTo(OVNoteTag& tag)
{
    for (OVNote* note : notesSet().allObjects())
        tag.notesSet().addObject(*note);
    const std::vector<OVNote*> pinnedHere = pinnedNotesSet().allObjects();
    for (OVNote* note : pinnedHere)
        tag.pinnedNotesSet().addObject(*note);
    if (!pinnedHere.empty())
        tag.setPinnedNotesDate(pinnedNotesDate());
    managedObjectContext().deleteObject(*this);
}

} // namespace tarn
