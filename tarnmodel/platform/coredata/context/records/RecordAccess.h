#pragma once

#include "tarnmodel/platform/coredata/context/records/RecordDetails.h"

#include <memory>

namespace tarn {

/// The inside of a record, for the rooms of the object store only.
class RecordAccess {
public:
    static std::unique_ptr<NSManagedObject> make(NSManagedObjectContext& context, const NSManagedObjectID& objectID);

    /// Raises `NSUndefinedKeyException` for an unknown key.
    static const NSPropertyDescription& propertyForKey(const NSManagedObject& object, std::string_view key);
    static PropertyValues& values(const NSManagedObject& object) { return object.values_; }
    static RecordDetails& details(const NSManagedObject& object)
    {
        if (!object.details_)
            object.details_ = new RecordDetails;
        return *object.details_;
    }
    /// Null when the record has none.
    static RecordDetails* detailsIfAny(const NSManagedObject& object) { return object.details_; }
    static PropertyMask changed(const NSManagedObject& object)
    {
        return object.details_ ? object.details_->changed : 0;
    }

    static bool isGone(const NSManagedObject& object) { return object.flags_ & NSManagedObject::Gone; }
    static bool isBeingDeleted(const NSManagedObject& object) { return object.flags_ & NSManagedObject::BeingDeleted; }
    /// Whether a text of it was read in this pass of the queue.
    static bool isHandedOut(const NSManagedObject& object) { return object.flags_ & NSManagedObject::HandedOut; }
    /// Whether it is news.
    static bool markHandedOut(const NSManagedObject& object)
    {
        const bool isNew = !isHandedOut(object);
        object.flags_ |= NSManagedObject::HandedOut;
        return isNew;
    }
    static void unmarkHandedOut(const NSManagedObject& object)
    {
        object.flags_ &= ~std::uint32_t{NSManagedObject::HandedOut};
    }
    static void markInserted(NSManagedObject& object, std::uint32_t order)
    {
        object.flags_ |= NSManagedObject::Inserted;
        object.order_ = order;
    }
    static void markSaved(NSManagedObject& object, std::int64_t version)
    {
        object.flags_ &= ~std::uint32_t{NSManagedObject::Inserted};
        object.rowVersion_ = version;
    }
    static void markBeingDeleted(NSManagedObject& object) { object.flags_ |= NSManagedObject::BeingDeleted; }
    static void markDeleted(NSManagedObject& object)
    {
        object.flags_ &= ~std::uint32_t{NSManagedObject::BeingDeleted};
        object.flags_ |= NSManagedObject::Deleted;
    }
    static void markUndeleted(NSManagedObject& object)
    {
        object.flags_ &= ~std::uint32_t{NSManagedObject::BeingDeleted | NSManagedObject::Deleted};
    }
    /// Deleted for good: nothing of it is left to read.
    static void markGone(NSManagedObject& object);
    static void markFault(const NSManagedObject& object)
    {
        keepForObservers(object);
        object.flags_ |= NSManagedObject::Fault;
        object.values_ = PropertyValues();
    }
    static void fill(const NSManagedObject& object, PropertyValues values, std::int64_t version)
    {
        keepForObservers(object);
        auto& record = const_cast<NSManagedObject&>(object);
        record.values_ = std::move(values);
        record.rowVersion_ = version;
        record.flags_ &= ~std::uint32_t{NSManagedObject::Fault};
    }
    /// Before values are replaced other than by a setter: observers hear when changes are processed next.
    static void keepForObservers(const NSManagedObject& object)
    {
        if (object.details_ && !object.details_->observers.empty())
            keepObserved(object);
    }
    /// What a record held, before it is filled anew.
    static PropertyValues takeValues(const NSManagedObject& object)
    {
        keepForObservers(object);
        return std::move(object.values_);
    }
    /// Whether somebody observes the key, or one that depends on it.
    static bool isObserved(const NSManagedObject& object, const std::string& key);
    static void tellObservers(NSManagedObject& object, std::string_view key) { object.tellObservers(key); }
    static void setObjectID(NSManagedObject& object, const NSManagedObjectID& objectID) { object.objectID_ = objectID; }
    static std::uint32_t order(const NSManagedObject& object) { return object.order_; }
    static void setOrder(const NSManagedObject& object, std::uint32_t order)
    {
        const_cast<NSManagedObject&>(object).order_ = order;
    }

private:
    static void keepObserved(const NSManagedObject& object);
};

} // namespace tarn
