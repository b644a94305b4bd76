#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVChangeItem.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/model/Syncable.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/sync/ChangeLogFetchInternal.h"

#include <iterator>

namespace tarn {
namespace {

using ChangeItems = std::vector<OVChangeItem*>;

/// One new item for each record of the entity that has an identifier.
ChangeItems newItemsForEntity(const NSEntityDescription& entity, NSManagedObjectContext& context)
{
    NSFetchRequest request(entity);
    request.propertiesToFetch = {"uniqueIdentifier"};
    NSError error;
    const auto rows = context.executeDictionaryFetchRequest(request, &error);
    if (!rows) {
        logFetchFailure(error);
        return {};
    }
    ChangeItems items;
    for (const DictionaryResult& row : *rows) {
        const auto found = row.find("uniqueIdentifier");
        if (found == row.end() || found->second.isNil())
            continue;
        OVChangeItem* item = OVChangeItem::insertInManagedObjectContext(context);
        item->setUniqueIdentifier(found->second.asString());
        item->setItemEntity(entity.name());
        items.push_back(item);
    }
    return items;
}

/// What the baseline starts from; none when the log could not be read.
std::optional<ChangeItems> itemsOfBaseline(NSManagedObjectContext& context, bool shouldCreateInitialBaseline)
{
    if (shouldCreateInitialBaseline) {
        const auto latest = fetchLatestChange(context);
        if (!latest)
            return std::nullopt;
        if (!*latest)
            return OVChange::initialBaselineChangesInManagedObjectContext(context);
    }
    return fetchChangeItems(std::nullopt, context);
}

/// The items that name a record; the others are deleted.
ChangeItems withoutNamelessItems(const ChangeItems& items, NSManagedObjectContext& context)
{
    ChangeItems kept;
    kept.reserve(items.size());
    for (OVChangeItem* item : items) {
        if (item->uniqueIdentifier())
            kept.push_back(item);
        else
            context.deleteObject(*item);
    }
    return kept;
}

void deleteChanges(const NSFetchRequest& request, NSManagedObjectContext& context)
{
    for (OVChange* change : fetchRecords<OVChange>(request, context).value_or(std::vector<OVChange*>()))
        context.deleteObject(*change);
}

} // namespace

OVChange* OVChange::baselineChangesInManagedObjectContext(
    NSManagedObjectContext& context, bool shouldCreateInitialBaseline)
{
    const auto items = itemsOfBaseline(context, shouldCreateInitialBaseline);
    if (!items)
        return nullptr;
    OVChange* baseline = createChangeInManagedObjectContext(context);
    if (!baseline)
        return nullptr;
    baseline->itemsSet().setObjects(withoutNamelessItems(*items, context));
    deleteChangesBeforeChange(baseline, context);
    baseline->setOrderValue(0);
    return baseline;
}

std::vector<OVChangeItem*> OVChange::initialBaselineChangesInManagedObjectContext(NSManagedObjectContext& context)
{
    ChangeItems items;
    for (const std::string_view name : tarn::syncableClasses) {
        if (const NSEntityDescription* entity = context.managedObjectModel().entityNamed(name)) {
            const ChangeItems ofEntity = newItemsForEntity(*entity, context);
            items.insert(items.end(), ofEntity.begin(), ofEntity.end());
        }
    }
    return items;
}

void OVChange::deleteAllChangesInManagedObjectContext(NSManagedObjectContext& context)
{
    NSFetchRequest request(entityInManagedObjectContext(context));
    request.includesPropertyValues = false;
    deleteChanges(request, context);
}

void OVChange::deleteChangesBeforeChange(const OVChange* change, NSManagedObjectContext& context)
{
    if (!change)
        return;
    NSFetchRequest request(entityInManagedObjectContext(context));
    request.predicate = NSPredicate::predicateWithFormat("order < %@", change->orderValue());
    deleteChanges(request, context);
}

} // namespace tarn
