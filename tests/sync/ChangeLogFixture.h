#pragma once

#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVChangeItem.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tests/support/StoreFixture.h"

namespace tarn {

/// A store whose context records its saves once `recordSaves` was called.
class ChangeLogFixture : public StoreFixture {
protected:
    void recordSaves()
    {
        willSave_ = NSNotificationCenter::defaultCenter().addObserver(NSManagedObjectContextWillSaveNotification,
            &context(), [this](const NSNotification&) { OVChange::updateChangesInInManagedObjectContext(context()); });
    }
    /// Saves and closes; the new context records too.
    void reopenAndRecord()
    {
        reopen();
        recordSaves();
    }

    OVChange* latest() { return OVChange::latestChangeInManagedObjectContext(context()); }
    std::size_t countOfChanges() { return all<OVChange>().size(); }

    /// A change of this order, without token and items.
    OVChange& changeOfOrder(std::int64_t order)
    {
        OVChange* change = OVChange::insertInManagedObjectContext(context());
        change->setOrderValue(order);
        return *change;
    }
    OVChangeItem& item(OVChange& change, std::optional<std::string_view> entity, std::optional<std::string_view> uid,
        bool deleted = false)
    {
        OVChangeItem* item = OVChangeItem::insertInManagedObjectContext(context());
        item->setItemEntity(entity);
        item->setUniqueIdentifier(uid);
        item->setItemDeletedValue(deleted);
        item->setChange(&change);
        return *item;
    }

    /// "OVNote a", "OVNote b deleted": what items say; records without identifier are "-".
    static std::vector<std::string> textsOf(const std::vector<OVChangeItem*>& items)
    {
        std::vector<std::string> texts;
        for (const OVChangeItem* item : items)
            texts.push_back(item->itemEntity().value_or("-") + " " + item->uniqueIdentifier().value_or("-")
                + (item->itemDeletedValue() ? " deleted" : ""));
        return texts;
    }
    static std::vector<std::string> textsOf(const OVChange& change) { return textsOf(change.itemsSet().allObjects()); }

    OVNote& noteWithIdentifier(std::optional<std::string_view> uniqueIdentifier)
    {
        OVNote& made = noteTitled(uniqueIdentifier.value_or("nameless"));
        made.setUniqueIdentifier(uniqueIdentifier);
        return made;
    }

private:
    NSNotificationSubscription willSave_;
};

} // namespace tarn
