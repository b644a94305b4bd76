#include "tarnmodel/platform/coredata/NSManagedObject.h"

#include "tarnmodel/platform/coredata/context/ContextCore.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>
#include <cassert>
#include <limits>

namespace tarn {

namespace {

Value arrayOf(const std::vector<NSManagedObject*>& records)
{
    Value::Array values;
    values.reserve(records.size());
    for (const NSManagedObject* record : records)
        values.emplace_back(record);
    return Value(std::move(values));
}

} // namespace

NSManagedObject::NSManagedObject(const NSManagedObjectSeed& seed) : context_(seed.context_), objectID_(seed.objectID_)
{ }

NSManagedObject::~NSManagedObject()
{
    delete details_;
}

void NSManagedObject::awakeFromMerge(RecordMerge&) { }

ContextCore& NSManagedObject::core() const noexcept
{
    return context_->core();
}

// State ---------------------------------------------------------------------------------------------------------------

bool NSManagedObject::isUpdated() const noexcept
{
    return !(flags_ & (Inserted | Deleted)) && details_ && details_->changed != 0;
}

bool NSManagedObject::hasChanges() const noexcept
{
    if (flags_ & Deleted)
        return !(flags_ & (Gone | Inserted));
    return (flags_ & Inserted) || (details_ && details_->changed != 0);
}

std::map<std::string, Value> NSManagedObject::valuesOf(PropertyMask mask) const
{
    std::map<std::string, Value> values;
    for (const NSPropertyDescription* property : entity().properties())
        if (mask & propertyBit(property->index()))
            values.emplace(property->name(), storedValueForKey(property->name()));
    return values;
}

std::set<std::string> NSManagedObject::namesOf(PropertyMask mask) const
{
    std::set<std::string> names;
    for (const NSPropertyDescription* property : entity().properties())
        if (mask & propertyBit(property->index()))
            names.insert(property->name());
    return names;
}

std::map<std::string, Value> NSManagedObject::changedValues() const
{
    return valuesOf(details_ ? details_->changed : 0);
}
std::map<std::string, Value> NSManagedObject::changedValuesForCurrentEvent() const
{
    return valuesOf(details_ ? details_->changedInEvent : 0);
}
std::set<std::string> NSManagedObject::changedKeys() const
{
    return namesOf(details_ ? details_->changed : 0);
}
std::set<std::string> NSManagedObject::changedKeysForCurrentEvent() const
{
    return namesOf(details_ ? details_->changedInEvent : 0);
}

std::map<std::string, Value> NSManagedObject::committedValuesForKeys(const std::vector<std::string>& keys) const
{
    std::map<std::string, Value> values;
    for (const std::string& key : keys) {
        const NSPropertyDescription& property = RecordAccess::propertyForKey(*this, key);
        const PropertyIndex index = property.index();
        if (!(flags_ & Inserted))
            prepareRead(index);
        const PropertyValues& committed = details_ && !details_->committed.isEmpty() ? details_->committed : values_;
        if ((flags_ & Inserted) || committed.isEmpty() || !committed.isLoaded(index) || committed.isNil(index)) {
            values.emplace(key, Value());
        } else if (!property.isRelationship()) {
            values.emplace(key, committed.attributeValue(index));
        } else if (const auto& relationship = static_cast<const NSRelationshipDescription&>(property);
                   !relationship.isToMany()) {
            const NSManagedObject* target = context_->objectWithID(
                NSManagedObjectID(objectID_.store(), relationship.destinationEntity(), committed.integer(index)));
            values.emplace(key, Value(target));
        }
    }
    return values;
}

// Reading -------------------------------------------------------------------------------------------------------------

bool NSManagedObject::prepareRead(PropertyIndex index) const
{
    core().assertOnQueue(this);
    if (flags_ & Fault)
        core().faulting.fire(*this);
    if (values_.isEmpty())
        return false;
    if (entity().largeMask() & propertyBit(index)) {
        if (!values_.isLoaded(index))
            core().faulting.loadLarge(*this);
        core().otherWriters.noteTextRead(*this);
    }
    return !values_.isNil(index);
}

std::optional<bool> NSManagedObject::booleanAt(PropertyIndex index) const
{
    return prepareRead(index) ? std::optional(values_.integer(index) != 0) : std::nullopt;
}

std::optional<std::int64_t> NSManagedObject::integerAt(PropertyIndex index) const
{
    return prepareRead(index) ? std::optional(values_.integer(index)) : std::nullopt;
}

std::optional<double> NSManagedObject::doubleAt(PropertyIndex index) const
{
    return prepareRead(index) ? std::optional(values_.floating(index)) : std::nullopt;
}

std::optional<std::string_view> NSManagedObject::stringViewAt(PropertyIndex index) const
{
    return prepareRead(index) ? std::optional(values_.bytes(index)) : std::nullopt;
}

std::optional<std::string> NSManagedObject::stringAt(PropertyIndex index) const
{
    return prepareRead(index) ? std::optional<std::string>(values_.bytes(index)) : std::nullopt;
}

std::optional<NSDate> NSManagedObject::dateAt(PropertyIndex index) const
{
    return prepareRead(index) ? std::optional(dateWithMicrosecondsSince1970(values_.integer(index))) : std::nullopt;
}

std::optional<NSData> NSManagedObject::dataAt(PropertyIndex index) const
{
    return prepareRead(index) ? std::optional(NSData::fromText(values_.bytes(index))) : std::nullopt;
}

NSManagedObject* NSManagedObject::toOneAt(PropertyIndex index) const
{
    prepareRead(index);
    if (values_.isEmpty() || (flags_ & Gone))
        return nullptr;
    return core().relationships.toOne(*this, static_cast<const NSRelationshipDescription&>(entity().property(index)));
}

ToManySet& NSManagedObject::toManyAt(PropertyIndex index) const
{
    core().assertOnQueue(this);
    return core().relationships.toMany(*this, static_cast<const NSRelationshipDescription&>(entity().property(index)));
}

// Writing -------------------------------------------------------------------------------------------------------------

template <typename Assign> void NSManagedObject::write(PropertyIndex index, bool tell, Assign&& assign)
{
    // A merge asks whether the other writer changed the text: that needs the text from which this change started.
    if (!core().records.beginWrite(*this))
        return;
    if (!isInserted() && (entity().groupedMask() & propertyBit(index)))
        core().faulting.loadLarge(*this);
    if (isDeleted() && !RecordAccess::isBeingDeleted(*this))
        return;
    if (assign(values_))
        core().records.noteChange(*this, index, true);
    if (tell)
        tellObservers(entity().property(index).name());
}

void NSManagedObject::putInteger(PropertyIndex index, bool tell, std::optional<std::int64_t> value)
{
    write(index, tell, [&](PropertyValues& values) {
        const bool isSame
            = values.isLoaded(index) && values.isNil(index) == !value && (!value || values.integer(index) == *value);
        if (isSame)
            return false;
        if (value)
            values.setInteger(index, *value);
        else
            values.setNil(index);
        return true;
    });
}

void NSManagedObject::putBytes(PropertyIndex index, bool tell, std::optional<std::string_view> value)
{
    write(index, tell, [&](PropertyValues& values) {
        if (value)
            return values.putBytes(index, *value);
        if (values.isLoaded(index) && values.isNil(index))
            return false;
        values.setNil(index);
        return true;
    });
}

namespace {

std::optional<std::int64_t> fitted(
    const NSEntityDescription& entity, PropertyIndex index, std::optional<std::int64_t> value)
{
    const auto& attribute = static_cast<const NSAttributeDescription&>(entity.property(index));
    if (value && attribute.type() == NSAttributeType::Integer16)
        return PropertyValues::fittedTo16Bits(*value);
    return value;
}

template <typename To, typename From> std::optional<To> mapped(const std::optional<From>& value, To (*convert)(From))
{
    return value ? std::optional<To>(convert(*value)) : std::nullopt;
}

std::int64_t bitsOfDouble(double value)
{
    return std::bit_cast<std::int64_t>(value);
}
std::int64_t integerOfBoolean(bool value)
{
    return value ? 1 : 0;
}
std::int64_t integerOfDate(NSDate date)
{
    return microsecondsSince1970(date);
}

std::optional<std::string_view> textOf(const std::optional<NSData>& data)
{
    return data ? std::optional(data->text()) : std::nullopt;
}

} // namespace

void NSManagedObject::setBooleanAt(PropertyIndex index, std::optional<bool> value)
{
    putInteger(index, true, mapped(value, integerOfBoolean));
}
void NSManagedObject::setIntegerAt(PropertyIndex index, std::optional<std::int64_t> value)
{
    putInteger(index, true, fitted(entity(), index, value));
}
void NSManagedObject::setDoubleAt(PropertyIndex index, std::optional<double> value)
{
    putInteger(index, true, mapped(value, bitsOfDouble));
}
void NSManagedObject::setStringAt(PropertyIndex index, std::optional<std::string_view> value)
{
    putBytes(index, true, value);
}
void NSManagedObject::setDateAt(PropertyIndex index, std::optional<NSDate> value)
{
    putInteger(index, true, mapped(value, integerOfDate));
}
void NSManagedObject::setDataAt(PropertyIndex index, const std::optional<NSData>& value)
{
    putBytes(index, true, textOf(value));
}
void NSManagedObject::setPrimitiveBooleanAt(PropertyIndex index, std::optional<bool> value)
{
    putInteger(index, false, mapped(value, integerOfBoolean));
}
void NSManagedObject::setPrimitiveIntegerAt(PropertyIndex index, std::optional<std::int64_t> value)
{
    putInteger(index, false, fitted(entity(), index, value));
}
void NSManagedObject::setPrimitiveDoubleAt(PropertyIndex index, std::optional<double> value)
{
    putInteger(index, false, mapped(value, bitsOfDouble));
}
void NSManagedObject::setPrimitiveStringAt(PropertyIndex index, std::optional<std::string_view> value)
{
    putBytes(index, false, value);
}
void NSManagedObject::setPrimitiveDateAt(PropertyIndex index, std::optional<NSDate> value)
{
    putInteger(index, false, mapped(value, integerOfDate));
}
void NSManagedObject::setPrimitiveDataAt(PropertyIndex index, const std::optional<NSData>& value)
{
    putBytes(index, false, textOf(value));
}

void NSManagedObject::setToOneAt(PropertyIndex index, NSManagedObject* target)
{
    const auto& relationship = static_cast<const NSRelationshipDescription&>(entity().property(index));
    core().relationships.setToOne(*this, relationship, target);
}

// Key-value coding --------------------------------------------------------------------------------------------------

Value NSManagedObject::storedValueForKey(std::string_view key) const
{
    const NSPropertyDescription& property = RecordAccess::propertyForKey(*this, key);
    const PropertyIndex index = property.index();
    if (!property.isRelationship())
        return prepareRead(index) ? values_.attributeValue(index) : Value();
    if (!static_cast<const NSRelationshipDescription&>(property).isToMany())
        return Value(toOneAt(index));
    return arrayOf(toManyAt(index).members());
}

Value NSManagedObject::valueForKey(std::string_view key) const
{
    return storedValueForKey(key);
}

void NSManagedObject::setValueForKey(std::string_view key, const Value& value)
{
    willChangeValueForKey(key);
    setPrimitiveValueForKey(key, value);
    didChangeValueForKey(key);
}

namespace {

NSManagedObject* recordOf(const Value& value, std::string_view key)
{
    if (value.isNil())
        return nullptr;
    if (value.kind() == Value::Kind::Object)
        if (const auto* record = dynamic_cast<const NSManagedObject*>(&value.asObject()))
            return const_cast<NSManagedObject*>(record);
    throw NSException(NSInvalidArgumentException, "\"" + std::string(key) + "\" takes a record");
}

} // namespace

void NSManagedObject::setPrimitiveValueForKey(std::string_view key, const Value& value)
{
    const NSPropertyDescription& property = RecordAccess::propertyForKey(*this, key);
    const PropertyIndex index = property.index();
    if (!property.isRelationship()) {
        write(index, false, [&](PropertyValues& values) {
            PropertyValues former = values;
            values.setAttributeValue(index, value);
            return !former.isLoaded(index) || !values.equals(index, former);
        });
        return;
    }
    const auto& relationship = static_cast<const NSRelationshipDescription&>(property);
    if (!relationship.isToMany()) {
        core().relationships.setToOne(*this, relationship, recordOf(value, key));
        return;
    }
    std::vector<NSManagedObject*> members;
    if (value.kind() == Value::Kind::Array)
        for (const Value& member : value.asArray())
            members.push_back(recordOf(member, key));
    else if (!value.isNil())
        throw NSException(NSInvalidArgumentException, "\"" + std::string(key) + "\" takes an array of records");
    toManyAt(index).set(members);
}

} // namespace tarn
