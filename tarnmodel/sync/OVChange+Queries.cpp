#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVChangeItem.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/model/Syncable.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/sync/ChangeLogFetchInternal.h"

#include <map>
#include <set>

namespace tarn {
namespace {

using Identifiers = std::set<std::string>;
using Records = std::vector<NSManagedObject*>;

/// Which records a run of items names.
struct NamedRecords {
    std::map<std::string, Identifiers> updated; ///< by entity name
    Identifiers deleted;

    explicit NamedRecords(const std::vector<OVChangeItem*>& items)
    {
        for (const OVChangeItem* item : items) {
            const auto uniqueIdentifier = item->uniqueIdentifier();
            if (!uniqueIdentifier)
                continue;
            if (item->itemDeletedValue())
                deleted.insert(*uniqueIdentifier);
            else
                updated[item->itemEntity().value_or("")].insert(*uniqueIdentifier);
        }
        for (auto& [entity, identifiers] : updated)
            std::erase_if(identifiers, [this](const std::string& identifier) { return deleted.contains(identifier); });
    }
};

NamedRecords recordsNamedByItems(const NSPredicate& predicate, NSManagedObjectContext& context)
{
    return NamedRecords(fetchChangeItems(predicate, context).value_or(std::vector<OVChangeItem*>()));
}

Records fetchNamed(const Identifiers& identifiers, const NSEntityDescription& entity, NSManagedObjectContext& context)
{
    return OVChange::objectsWithUniqueIdentifiers(
        std::vector<std::string>(identifiers.begin(), identifiers.end()), entity, context);
}

void handOut(const Identifiers& deleted, std::vector<std::string>* deletedUIDs)
{
    if (deletedUIDs)
        deletedUIDs->assign(deleted.begin(), deleted.end());
}

void append(Records& records, const Records& more)
{
    records.insert(records.end(), more.begin(), more.end());
}

} // namespace

std::vector<OVChangeItem*> OVChange::changeItemsSinceChange(const OVChange* change, NSManagedObjectContext& context)
{
    const auto predicate = change
        ? std::optional(NSPredicate::predicateWithFormat("change.order > %@", change->orderValue()))
        : std::nullopt;
    return fetchChangeItems(predicate, context).value_or(std::vector<OVChangeItem*>());
}

std::vector<NSManagedObject*> OVChange::objectsUpdatedForChange(
    const OVChange& change, std::vector<std::string>* deletedUIDs, NSManagedObjectContext& context)
{
    const NamedRecords named = recordsNamedByItems(NSPredicate::predicateWithFormat("change = %@", &change), context);
    handOut(named.deleted, deletedUIDs);
    Records records;
    for (const auto& [entityName, identifiers] : named.updated) {
        // A class of a later version of the model has no records here.
        if (const NSEntityDescription* entity = context.managedObjectModel().entityNamed(entityName))
            append(records, fetchNamed(identifiers, *entity, context));
    }
    return records;
}

std::vector<NSManagedObject*> OVChange::objectsUpdatedForChange(const OVChange& change,
    std::vector<std::string>* deletedUIDs, const NSEntityDescription& entityClass, NSManagedObjectContext& context)
{
    const NSPredicate predicate
        = NSPredicate::predicateWithFormat("change = %@ AND itemEntity = %@", &change, entityClass.name());
    return objectsUpdatesForChangeItemPredicate(predicate, deletedUIDs, entityClass, context);
}

std::vector<NSManagedObject*> OVChange::objectsUpdatedSinceChange(
    const OVChange* change, std::vector<std::string>* deletedUIDs, NSManagedObjectContext& context)
{
    Records records;
    std::vector<std::string> deleted;
    for (const std::string_view name : tarn::syncableClasses) {
        const NSEntityDescription* entity = context.managedObjectModel().entityNamed(name);
        if (!entity)
            continue;
        std::vector<std::string> deletedOfClass;
        append(records, objectsUpdatesSinceChange(change, &deletedOfClass, *entity, context));
        deleted.insert(deleted.end(), deletedOfClass.begin(), deletedOfClass.end());
    }
    if (deletedUIDs)
        *deletedUIDs = std::move(deleted);
    return records;
}

std::vector<NSManagedObject*> OVChange::objectsUpdatesSinceChange(const OVChange* change,
    std::vector<std::string>* deletedUIDs, const NSEntityDescription& entityClass, NSManagedObjectContext& context)
{
    const NSPredicate predicate = change ? NSPredicate::predicateWithFormat(
                                      "change.order > %@ AND itemEntity = %@", change->orderValue(), entityClass.name())
                                         : NSPredicate::predicateWithFormat("itemEntity = %@", entityClass.name());
    return objectsUpdatesForChangeItemPredicate(predicate, deletedUIDs, entityClass, context);
}

std::vector<NSManagedObject*> OVChange::objectsUpdatesForChangeItemPredicate(const NSPredicate& predicate,
    std::vector<std::string>* deletedUIDs, const NSEntityDescription& entityClass, NSManagedObjectContext& context)
{
    const NamedRecords named = recordsNamedByItems(predicate, context);
    handOut(named.deleted, deletedUIDs);
    Identifiers updated;
    for (const auto& [entityName, identifiers] : named.updated)
        updated.insert(identifiers.begin(), identifiers.end());
    return fetchNamed(updated, entityClass, context);
}

std::vector<NSManagedObject*> OVChange::objectsWithUniqueIdentifiers(
    const std::optional<std::vector<std::string>>& uniqueIdentifiers, const NSEntityDescription& entityClass,
    NSManagedObjectContext& context)
{
    NSFetchRequest request(entityClass);
    if (uniqueIdentifiers) {
        const Value::Array identifiers(uniqueIdentifiers->begin(), uniqueIdentifiers->end());
        request.predicate = NSPredicate::predicateWithFormat("uniqueIdentifier in %@", Value(identifiers));
    }
    return fetchRecords<NSManagedObject>(request, context).value_or(Records());
}

} // namespace tarn
