#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVChangeItem.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/sync/ChangeLogFetchInternal.h"

namespace tarn {

std::optional<OVChange*> fetchLatestChange(NSManagedObjectContext& context)
{
    NSFetchRequest request(OVChange::entityInManagedObjectContext(context));
    request.sortDescriptors = {{"order", false}};
    request.fetchLimit = 1;
    const auto changes = fetchRecords<OVChange>(request, context);
    if (!changes)
        return std::nullopt;
    return changes->empty() ? nullptr : changes->front();
}

std::optional<std::vector<OVChangeItem*>> fetchChangeItems(
    const std::optional<NSPredicate>& predicate, NSManagedObjectContext& context)
{
    NSFetchRequest request(OVChangeItem::entityInManagedObjectContext(context));
    request.predicate = predicate;
    request.propertiesToFetch = {"itemDeleted", "itemEntity", "uniqueIdentifier"};
    return fetchRecords<OVChangeItem>(request, context);
}

} // namespace tarn
