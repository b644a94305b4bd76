#pragma once

#include "tarnmodel/platform/coredata/IdentifiedObject.h"
#include "tarnmodel/platform/coredata/NSManagedObjectID.h"
#include "tarnmodel/platform/coredata/PropertyValues.h"
#include "tarnmodel/platform/foundation/values/Value.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class ContextCore;
class KeyValueObservation;
class KeyValueObserver;
class Lifeline;
class NSManagedObjectContext;
class RecordMerge;
class ToManySet;
struct RecordDetails;

/// What a record object is made from; only contexts make one.
class NSManagedObjectSeed {
private:
    friend class NSManagedObject;
    friend class RecordAccess;
    NSManagedObjectSeed(NSManagedObjectContext& context, const NSManagedObjectID& objectID)
        : context_(&context), objectID_(objectID)
    { }
    NSManagedObjectContext* context_;
    NSManagedObjectID objectID_;
};

/// One record: the values of an entity's properties, tracked by its context.
///
/// Owned by its context; the address holds until the context is reset or destroyed. A deleted record answers
/// `isDeleted()`: it is out of all relationships at once, and its attributes read as nil once the deletion is saved.
/// Confined to the context's queue.
class NSManagedObject : public IdentifiedObject {
public:
    /// For contexts and the constructors of record classes.
    explicit NSManagedObject(const NSManagedObjectSeed& seed);
    ~NSManagedObject() override;
    NSManagedObject(const NSManagedObject&) = delete;
    NSManagedObject& operator=(const NSManagedObject&) = delete;

    /// The context that owns it.
    NSManagedObjectContext& managedObjectContext() const noexcept { return *context_; }
    /// What kind of record it is; owned by the context's model.
    const NSEntityDescription& entity() const noexcept { return objectID_.entity(); }
    /// Which record it is: temporary until it is saved, or a permanent one is asked for.
    NSManagedObjectID objectID() const noexcept { return objectID_; }
    NSManagedObjectID identifyingObjectID() const final { return objectID_; }

    // State -----------------------------------------------------------------------------------------------------------
    bool isInserted() const noexcept { return (flags_ & (Inserted | Deleted)) == Inserted; } ///< not saved yet
    bool isUpdated() const noexcept;                                 ///< saved before, with unsaved changes
    bool isDeleted() const noexcept { return flags_ & Deleted; }     ///< deleted, saved or not
    bool isFault() const noexcept { return flags_ & Fault; }         ///< values not read yet
    bool hasChanges() const noexcept;                                ///< inserted, updated or deleted, not saved
    std::uint32_t insertionOrder() const noexcept { return order_; } ///< among the inserted records of its context
    std::int64_t rowVersion() const noexcept
    {
        return rowVersion_;
    } ///< of the row that its values were read from; 0 before the first save
    /// Names and present values of what changed since the last save; a to-many as an array.
    std::map<std::string, Value> changedValues() const;
    /// The same since changes were last processed.
    std::map<std::string, Value> changedValuesForCurrentEvent() const;
    /// Names only; no relationship is loaded for it.
    std::set<std::string> changedKeys() const;
    /// The same since changes were last processed.
    std::set<std::string> changedKeysForCurrentEvent() const;
    /// The values of the last save or fetch, of attributes and to-ones.
    std::map<std::string, Value> committedValuesForKeys(const std::vector<std::string>& keys) const;

    // Key-value coding ------------------------------------------------------------------------------------------------
    /// Through the accessors of the record's class, guarded ones included. Raises `NSUndefinedKeyException` for an
    /// unknown key.
    virtual Value valueForKey(std::string_view key) const;
    virtual void setValueForKey(std::string_view key, const Value& value);
    Value storedValueForKey(std::string_view key) const override;
    /// Stores without telling observers; use between `willChangeValueForKey` and `didChangeValueForKey`.
    void setPrimitiveValueForKey(std::string_view key, const Value& value);

    /// Expires when this object ends: with its context, or when that is reset. `WeakReference<OVNote>` refers to a
    /// record with it, and does not keep it; the type is in "WeakReference.h". On the context's queue.
    Lifeline lifeline() const;

    // Key-value observation -------------------------------------------------------------------------------------------
    /// Calls `observer` after every write of the key, also when the value stays the same; "xValue" hears of "x".
    /// Also after a merge, a refresh or a rollback that brought another value (of a to-many: that may have brought
    /// other members), once all values are there; what a fetch brings is told when changes are processed next.
    /// The types are in "KeyValueObservation.h".
    [[nodiscard]] KeyValueObservation addObserver(std::string_view key, KeyValueObserver observer);
    /// The keys whose change means that `key` changed too.
    virtual std::set<std::string> keysAffectingValueForKey(std::string_view key) const;
    /// Stand around writes of primitive values: the first remembers the value before, the second tells observers. Both
    /// raise `NSUndefinedKeyException` for an unknown key.
    void willChangeValueForKey(std::string_view key);
    void didChangeValueForKey(std::string_view key);
    /// Fires the fault before a read.
    void willAccessValueForKey(std::string_view key) const;
    /// Stands behind a read; does nothing but raise `NSUndefinedKeyException` for an unknown key.
    void didAccessValueForKey(std::string_view key) const;

    // Life ------------------------------------------------------------------------------------------------------------
    /// Called once when the record is inserted, with the default values in place.
    virtual void awakeFromInsert() { }
    /// Called before the record is deleted, while it is still in its relationships.
    virtual void prepareForDeletion() { }
    /// Called before the record is saved; what it changes joins the save.
    virtual void willSave() { }
    /// Called when a merge had to choose between values of this record, once all that others saved is here: what
    /// follows from those values may have to be derived again. In a save, before will-save; changes made here join it.
    virtual void awakeFromMerge(RecordMerge& merge);
    /// Called on each record with unsaved changes, in a save before which others saved: what was derived from other
    /// records may not hold any more. After `awakeFromMerge`; changes made here join the save.
    virtual void deriveFromOthers() { }

    // By property index: what generated accessors rest on -----------------------------------------------------------
    // Getters read the stored value (firing the fault). Setters tell observers; primitive ones do not.
    std::optional<bool> booleanAt(PropertyIndex index) const;
    std::optional<std::int64_t> integerAt(PropertyIndex index) const;
    std::optional<double> doubleAt(PropertyIndex index) const;
    std::optional<std::string> stringAt(PropertyIndex index) const;
    std::optional<NSDate> dateAt(PropertyIndex index) const;
    std::optional<NSData> dataAt(PropertyIndex index) const;
    /// A string without a copy; valid until the record changes.
    std::optional<std::string_view> stringViewAt(PropertyIndex index) const;
    /// Write the value, nil for none, and tell observers.
    void setBooleanAt(PropertyIndex index, std::optional<bool> value);
    void setIntegerAt(PropertyIndex index, std::optional<std::int64_t> value);
    void setDoubleAt(PropertyIndex index, std::optional<double> value);
    void setStringAt(PropertyIndex index, std::optional<std::string_view> value);
    void setDateAt(PropertyIndex index, std::optional<NSDate> value);
    void setDataAt(PropertyIndex index, const std::optional<NSData>& value);
    /// Write the value, nil for none, and tell nobody.
    void setPrimitiveBooleanAt(PropertyIndex index, std::optional<bool> value);
    void setPrimitiveIntegerAt(PropertyIndex index, std::optional<std::int64_t> value);
    void setPrimitiveDoubleAt(PropertyIndex index, std::optional<double> value);
    void setPrimitiveStringAt(PropertyIndex index, std::optional<std::string_view> value);
    void setPrimitiveDateAt(PropertyIndex index, std::optional<NSDate> value);
    void setPrimitiveDataAt(PropertyIndex index, const std::optional<NSData>& value);
    /// The record at the other end; null for none.
    NSManagedObject* toOneAt(PropertyIndex index) const;
    /// Changes both ends, and tells observers.
    void setToOneAt(PropertyIndex index, NSManagedObject* target);
    /// The live set behind a to-many relationship: what an `NSManagedObjectSet` is made from.
    ToManySet& toManyAt(PropertyIndex index) const;

private:
    friend class RecordAccess;
    ContextCore& core() const noexcept;
    /// Fires the fault and reads a large attribute; false when the record is gone.
    bool prepareRead(PropertyIndex index) const;
    /// Runs `assign`, which answers whether the value became another one, as a tracked change.
    template <typename Assign> void write(PropertyIndex index, bool tell, Assign&& assign);
    void tellObservers(std::string_view key);
    void putInteger(PropertyIndex index, bool tell, std::optional<std::int64_t> value);
    void putBytes(PropertyIndex index, bool tell, std::optional<std::string_view> value);
    std::map<std::string, Value> valuesOf(PropertyMask mask) const;
    std::set<std::string> namesOf(PropertyMask mask) const;
    enum Flag : std::uint32_t { Inserted = 1, Deleted = 2, Fault = 4, Gone = 8, BeingDeleted = 16, HandedOut = 32 };

    NSManagedObjectContext* context_;
    NSManagedObjectID objectID_;
    mutable PropertyValues values_;
    mutable RecordDetails* details_ = nullptr; ///< owned: changes, to-many sets, observers, which few records have
    std::int64_t rowVersion_ = 0;
    mutable std::uint32_t flags_ = 0;
    std::uint32_t order_ = 0; ///< order of insertion into the context
};

} // namespace tarn
