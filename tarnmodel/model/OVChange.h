#pragma once

#include "tarnmodel/model/_OVChange.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class NSPredicate;

/// One save, as the change log remembers it: a token, an order, and what was saved.
///
/// The log knows records by entity name and unique identifier alone, so it holds across devices and rebuilt stores.
/// Orders are given without a lock: let one context of a store record its saves. Failed fetches are logged and read as
/// nothing; no operation acts on what it could not read. Confined to its context's queue.
///
///     auto willSave = NSNotificationCenter::defaultCenter().addObserver(NSManagedObjectContextWillSaveNotification,
///         &context, [&](const NSNotification&) { OVChange::updateChangesInInManagedObjectContext(context); });
class OVChange : public _OVChange {
public:
    using _OVChange::_OVChange;

    /// Entity names of the record classes that enter the log, in the order in which it walks them.
    static std::span<const std::string_view> syncableClasses();
    /// Whether the record is of one of these classes, or of one derived from it, and has a unique identifier.
    static bool isObjectSyncable(const NSManagedObject& record);

    // Recording (tarnmodel/sync/OVChange.cpp) ------------------------------------------------------------------------
    /// The change with the greatest order; null when the log is empty.
    static OVChange* latestChangeInManagedObjectContext(NSManagedObjectContext& context);
    /// The change that the token names; null when the log does not hold it (any more).
    static OVChange* changeWithToken(std::string_view token, NSManagedObjectContext& context);
    /// A new change without items: its order is that of the latest and one, or 0. Null, and nothing is made, when the
    /// latest change could not be read.
    static OVChange* createChangeInManagedObjectContext(NSManagedObjectContext& context);
    /// A new change with one item for each syncable record. Null, and nothing is made, when there is none, or when
    /// `createChangeInManagedObjectContext` gives none.
    static OVChange* newChangeForNewOrUpdatedObjects(std::span<NSManagedObject* const> newOrUpdatedObjects,
        std::span<NSManagedObject* const> deletedObjects, NSManagedObjectContext& context);
    /// Records what the context is about to save as one change, which the same save writes. Call while it posts
    /// will-save.
    static void updateChangesInInManagedObjectContext(NSManagedObjectContext& context);

    /// Adds a new item for each syncable record.
    void addChangeItemForObjects(std::span<NSManagedObject* const> objects);
    /// Deletes the items of this change that name one of the records: what has been dealt with.
    void removeChangeItemsWithUniqueIdentifiers(std::span<const std::string> uniqueIdentifiers);

    // Shortening the log (tarnmodel/sync/OVChange+Baseline.cpp) ------------------------------------------------------
    /// Folds the whole log into one new change of order 0 with all items that name a record; other tokens are unknown
    /// from then on. With `shouldCreateInitialBaseline` an empty log begins with every stored record. Null, and
    /// nothing has changed, when the log could not be read.
    static OVChange* baselineChangesInManagedObjectContext(
        NSManagedObjectContext& context, bool shouldCreateInitialBaseline);
    /// New items, one for each stored syncable record, that belong to no change yet. A class whose fetch fails is
    /// left out.
    static std::vector<OVChangeItem*> initialBaselineChangesInManagedObjectContext(NSManagedObjectContext& context);
    /// Deletes every change with its items.
    static void deleteAllChangesInManagedObjectContext(NSManagedObjectContext& context);
    /// Deletes the changes of a lower order with their items; none when `change` is null.
    static void deleteChangesBeforeChange(const OVChange* change, NSManagedObjectContext& context);

    // Reading the log (tarnmodel/sync/OVChange+Queries.cpp) ----------------------------------------------------------
    // A deletion wins over updates within the range asked for: the record is then named by `deletedUIDs` alone.
    // `deletedUIDs` is replaced unless it is null. A null `change` stands before the first one.

    /// The items of all changes after `change`.
    static std::vector<OVChangeItem*> changeItemsSinceChange(const OVChange* change, NSManagedObjectContext& context);
    /// The records that the items of one change name, class by class.
    static std::vector<NSManagedObject*> objectsUpdatedForChange(
        const OVChange& change, std::vector<std::string>* deletedUIDs, NSManagedObjectContext& context);
    /// The same, of one class.
    static std::vector<NSManagedObject*> objectsUpdatedForChange(const OVChange& change,
        std::vector<std::string>* deletedUIDs, const NSEntityDescription& entityClass, NSManagedObjectContext& context);
    /// The records of all syncable classes that were saved after `change`. `deletedUIDs` may name one more than once.
    static std::vector<NSManagedObject*> objectsUpdatedSinceChange(
        const OVChange* change, std::vector<std::string>* deletedUIDs, NSManagedObjectContext& context);
    /// The same, of one class.
    static std::vector<NSManagedObject*> objectsUpdatesSinceChange(const OVChange* change,
        std::vector<std::string>* deletedUIDs, const NSEntityDescription& entityClass, NSManagedObjectContext& context);
    /// The records of a class that the items found by `predicate` name.
    static std::vector<NSManagedObject*> objectsUpdatesForChangeItemPredicate(const NSPredicate& predicate,
        std::vector<std::string>* deletedUIDs, const NSEntityDescription& entityClass, NSManagedObjectContext& context);
    /// The records of a class with these unique identifiers; all of the class without a list.
    static std::vector<NSManagedObject*> objectsWithUniqueIdentifiers(
        const std::optional<std::vector<std::string>>& uniqueIdentifiers, const NSEntityDescription& entityClass,
        NSManagedObjectContext& context);
};

} // namespace tarn
