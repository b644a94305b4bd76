#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/notes/NoteFilter.h"
#include "tarnmodel/notes/NotePredicates.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"

#include <algorithm>

namespace tarn {

namespace {

using Strings = std::vector<std::string>;
using SortDescriptors = std::vector<NSSortDescriptor>;

std::vector<OVNote*> fetchNotes(const std::optional<NSPredicate>& predicate, const SortDescriptors& sortDescriptors,
    NSManagedObjectContext& context, std::size_t fetchLimit = 0)
{
    NSFetchRequest request(OVNote::entityInManagedObjectContext(context));
    request.predicate = predicate;
    request.sortDescriptors = sortDescriptors;
    request.fetchLimit = fetchLimit;
    return fetchRecords<OVNote>(request, context).value_or(std::vector<OVNote*>());
}

std::vector<OVNote*> fetchNotes(NoteFilter filter, NSManagedObjectContext& context)
{
    return fetchNotes(predicateForNoteFilter(filter), {}, context);
}

OVNote* firstOf(const std::vector<OVNote*>& notes)
{
    return notes.empty() ? nullptr : notes.front();
}

Value::Array boxed(const Strings& strings)
{
    return {strings.begin(), strings.end()};
}

} // namespace

const SortDescriptors& OVNote::standardSortDescriptors()
{
    static const SortDescriptors order{{"pinned", false}, {"modificationDate", false}};
    return order;
}

// Lists -------------------------------------------------------------------------------------------------------------

std::vector<OVNote*> OVNote::notesInManagedObjectContext(
    NSManagedObjectContext& context, const std::optional<NSPredicate>& predicate)
{
    return fetchNotes(predicate, {}, context);
}

std::vector<OVNote*> OVNote::allNotesInManagedObjectContext(NSManagedObjectContext& context)
{
    return fetchNotes(NoteFilter::All, context);
}

std::vector<OVNote*> OVNote::allUntrashedNotesInManagedObjectContext(NSManagedObjectContext& context)
{
    return fetchNotes(NoteFilter::Untrashed, context);
}

std::vector<OVNote*> OVNote::allTrashedNotesInManagedObjectContext(NSManagedObjectContext& context)
{
    return fetchNotes(NoteFilter::Trashed, context);
}

std::vector<OVNote*> OVNote::allArchivedNotesInManagedObjectContext(NSManagedObjectContext& context)
{
    return fetchNotes(NoteFilter::Archived, context);
}

std::vector<OVNote*> OVNote::allConflictedNotesInManagedObjectContext(NSManagedObjectContext& context)
{
    return fetchNotes(NoteFilter::Conflicted, context);
}

std::vector<OVNote*> OVNote::allEncryptedNotesInManagedObjectContext(NSManagedObjectContext& context)
{
    return fetchNotes(NoteFilter::Encrypted, context);
}

std::vector<OVNote*> OVNote::watchNotesInManagedObjectContext(NSManagedObjectContext& context)
{
    constexpr std::size_t maximumCount = 15;
    const auto readable = NSPredicate::predicateWithFormat(
        "trashed == NO AND encrypted == NO AND archived == NO AND "
        "((title != nil AND title != '') OR (subtitle != nil AND subtitle != '')) AND "
        "(SUBQUERY(files, $file, $file.encrypted == YES).@count == 0)");
    return fetchNotes(readable, standardSortDescriptors(), context, maximumCount);
}

// By tag and identifier ---------------------------------------------------------------------------------------------

std::vector<OVNote*> OVNote::notesForTags(const std::vector<OVNoteTag*>& tags, NSManagedObjectContext& context)
{
    const Value::Array values(tags.begin(), tags.end());
    return fetchNotes(NSPredicate::predicateWithFormat("ANY tags in %@", values), {}, context);
}

std::vector<OVNote*> OVNote::notesWithUniqueIdentifiers(
    const Strings& uniqueIdentifiers, NSManagedObjectContext& context)
{
    return notesWithUUIDs(uniqueIdentifiers, {}, context);
}

std::vector<OVNote*> OVNote::notesWithUUIDs(
    const Strings& uniqueIdentifiers, const SortDescriptors& sortDescritors, NSManagedObjectContext& context)
{
    const auto named = NSPredicate::predicateWithFormat("uniqueIdentifier in %@", boxed(uniqueIdentifiers));
    return fetchNotes(named, sortDescritors, context);
}

OVNote* OVNote::noteWithUniqueIdentifier(std::string_view uniqueIdentifier, NSManagedObjectContext& context)
{
    const auto named = NSPredicate::predicateWithFormat("uniqueIdentifier == %@", uniqueIdentifier);
    const std::vector<OVNote*> notes = fetchNotes(named, {}, context);
    return notes.empty() ? nullptr : notes.back();
}

void OVNote::deleteNotesWithUniqueIdentifiers(const Strings& uniqueIdentifiers, NSManagedObjectContext& context)
{
    const auto named = NSPredicate::predicateWithFormat("uniqueIdentifier IN %@", boxed(uniqueIdentifiers));
    for (OVNote* note : fetchNotes(named, {}, context))
        context.deleteObject(*note);
}

// By title ----------------------------------------------------------------------------------------------------------

std::vector<OVNote*> OVNote::notesWithTitle(std::string_view title, NSManagedObjectContext& context)
{
    return fetchNotes(
        NSPredicate::predicateWithFormat("title ==[cd] %@", title), OVNote::standardSortDescriptors(), context);
}

OVNote* OVNote::noteWithTitle(std::string_view title, NSManagedObjectContext& context)
{
    return firstOf(notesWithTitle(title, context));
}

std::vector<OVNote*> OVNote::notesWithTitleOrUUID(std::string_view titleOrUUID, NSManagedObjectContext& context)
{
    const auto named
        = NSPredicate::predicateWithFormat("title ==[cd] %@ OR uniqueIdentifier== %@", titleOrUUID, titleOrUUID);
    return fetchNotes(named, standardSortDescriptors(), context);
}

OVNote* OVNote::noteWithTitleOrUUID(std::string_view titleOrUUID, NSManagedObjectContext& context)
{
    return firstOf(notesWithTitleOrUUID(titleOrUUID, context));
}

std::vector<OVNote*> OVNote::notesWithTitlesOrUUIDs(const Strings& titlesOrUUIDs, NSManagedObjectContext& context)
{
    return notesWithTitlesOrUUIDs(titlesOrUUIDs, standardSortDescriptors(), context);
}

std::vector<OVNote*> OVNote::notesWithTitlesOrUUIDs(
    const Strings& titlesOrUUIDs, const SortDescriptors& sortDescritors, NSManagedObjectContext& context)
{
    return fetchNotes(predicateForTitlesOrUUIDs(titlesOrUUIDs), sortDescritors, context);
}

OVNote* OVNote::untrashedNoteWithTitle(std::string_view title, NSManagedObjectContext& context)
{
    const auto named = NSPredicate::predicateWithFormat("title ==[cd] %@ AND trashed == NO", title);
    return firstOf(fetchNotes(named, standardSortDescriptors(), context));
}

OVNote* OVNote::untrashedNoteWithTitleOrUUID(std::string_view titleOrUUID, NSManagedObjectContext& context)
{
    const auto named = NSPredicate::predicateWithFormat(
        "(title ==[cd] %@ OR uniqueIdentifier == %@) AND trashed == NO", titleOrUUID, titleOrUUID);
    return firstOf(fetchNotes(named, standardSortDescriptors(), context));
}

// Protection --------------------------------------------------------------------------------------------------------

bool OVNote::anyNoteHasEncryption(const std::vector<OVNote*>& notes)
{
    return std::any_of(notes.begin(), notes.end(), [](const OVNote* note) { return note->hasEncryption(); });
}

} // namespace tarn
