#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/tags/TagLookupInternal.h"

namespace tarn {

namespace {

const std::vector<NSSortDescriptor>& standardTagOrder()
{
    static const std::vector<NSSortDescriptor> order{{"title", true, SortComparison::LocalizedStandard}};
    return order;
}

constexpr std::string_view hasActiveNotes
    = "SUBQUERY(notes, $note, $note.trashed == NO AND $note.archived == NO).@count > 0";

} // namespace

std::vector<OVNoteTag*> OVNoteTag::tagsMatching(const std::optional<NSPredicate>& predicate,
    const std::vector<NSSortDescriptor>& sortDescriptors, NSManagedObjectContext& context)
{
    NSFetchRequest request(entityInManagedObjectContext(context));
    request.predicate = predicate;
    request.sortDescriptors = sortDescriptors;
    return fetchRecords<OVNoteTag>(request, context).value_or(std::vector<OVNoteTag*>());
}

std::vector<OVNoteTag*> OVNoteTag::notesTagsInManagedObjectContext(
    NSManagedObjectContext& context, const std::optional<NSPredicate>& predicate)
{
    return tagsMatching(predicate, standardTagOrder(), context);
}

NSPredicate OVNoteTag::rootTagsPredicate()
{
    return NSPredicate::predicateWithFormat("isRoot == YES AND " + std::string(hasActiveNotes));
}

std::vector<OVNoteTag*> OVNoteTag::rootTagsInManagedObjectContext(NSManagedObjectContext& context)
{
    return notesTagsInManagedObjectContext(context, rootTagsPredicate());
}

std::vector<OVNoteTag*> OVNoteTag::populatedNotesTagsInManagedObjectContext(NSManagedObjectContext& context)
{
    return notesTagsInManagedObjectContext(context, NSPredicate::predicateWithFormat(hasActiveNotes));
}

std::vector<OVNoteTag*> OVNoteTag::notesTagsWithUniqueIdentifiers(
    const std::vector<std::string>& uniqueIdentifiers, NSManagedObjectContext& context)
{
    const Value::Array identifiers(uniqueIdentifiers.begin(), uniqueIdentifiers.end());
    return notesTagsInManagedObjectContext(
        context, NSPredicate::predicateWithFormat("uniqueIdentifier in %@", identifiers));
}

OVNoteTag* OVNoteTag::tagWithName(std::string_view name, NSManagedObjectContext& context)
{
    return lookUpTag(name, context).value_or(nullptr);
}

// The notes of a tag ------------------------------------------------------------------------------------------------

NSPredicate OVNoteTag::untrashedNotesPredicate() const
{
    return untrashedNotesPredicateIncludingNotesFromChildTags(true);
}

NSPredicate OVNoteTag::untrashedNotesPredicateIncludingNotesFromChildTags(bool includesNotesFromChildTags) const
{
    if (includesNotesFromChildTags)
        return NSPredicate::predicateWithFormat("%@ IN tags AND trashed == NO AND archived == NO", this);
    return NSPredicate::predicateWithFormat("%@ IN tags AND trashed == NO AND archived == NO AND "
                                            "SUBQUERY(tags, $tag, $tag.title BEGINSWITH[cd] %@).@count == 0",
        this, title().value_or("") + "/");
}

std::optional<std::size_t> OVNoteTag::untrashedNotesCount() const
{
    NSManagedObjectContext& context = managedObjectContext();
    NSFetchRequest request(OVNote::entityInManagedObjectContext(context));
    request.predicate = NSPredicate::predicateWithFormat("trashed == NO AND archived == NO AND ANY tags == %@", this);
    NSError error;
    const auto count = context.count(request, &error);
    if (!count)
        logFetchFailure(error);
    return count;
}

std::vector<OVNote*> OVNoteTag::activeNotesWithSortDescriptors(
    const std::vector<NSSortDescriptor>& sortDescriptors) const
{
    NSManagedObjectContext& context = managedObjectContext();
    NSFetchRequest request(OVNote::entityInManagedObjectContext(context));
    request.predicate = untrashedNotesPredicate();
    request.sortDescriptors = sortDescriptors;
    return fetchRecords<OVNote>(request, context).value_or(std::vector<OVNote*>());
}

} // namespace tarn
