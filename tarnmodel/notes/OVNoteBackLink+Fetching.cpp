#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"

namespace tarn {

namespace {

NSFetchRequest requestFor(const std::optional<NSPredicate>& predicate, NSManagedObjectContext& context)
{
    NSFetchRequest request(OVNoteBackLink::entityInManagedObjectContext(context));
    request.predicate = predicate;
    return request;
}

/// A failure is not logged.
std::vector<OVNoteBackLink*> quietlyFetched(const NSPredicate& predicate, NSManagedObjectContext& context)
{
    std::vector<OVNoteBackLink*> links;
    for (NSManagedObject* record : context.executeFetchRequest(requestFor(predicate, context)))
        links.push_back(static_cast<OVNoteBackLink*>(record));
    return links;
}

} // namespace

std::vector<OVNoteBackLink*> OVNoteBackLink::backlinksInManagedObjectContext(
    NSManagedObjectContext& context, const std::optional<NSPredicate>& predicate)
{
    return fetchRecords<OVNoteBackLink>(requestFor(predicate, context), context)
        .value_or(std::vector<OVNoteBackLink*>());
}

std::vector<OVNoteBackLink*> OVNoteBackLink::backlinksForTitle(
    std::string_view title, bool onlyEmpty, NSManagedObjectContext& context)
{
    const std::string_view format
        = onlyEmpty ? "(linkingTo == nil || linkingTo.trashed == YES) && title ==[cd] %@" : "title ==[cd] %@";
    return quietlyFetched(NSPredicate::predicateWithFormat(format, title), context);
}

std::vector<OVNoteBackLink*> OVNoteBackLink::backlinksForUUIDs(
    const std::vector<std::string>& uniqueIdentifiers, NSManagedObjectContext& context)
{
    const Value::Array identifiers(uniqueIdentifiers.begin(), uniqueIdentifiers.end());
    return quietlyFetched(NSPredicate::predicateWithFormat("uniqueIdentifier in %@", identifiers), context);
}

} // namespace tarn
