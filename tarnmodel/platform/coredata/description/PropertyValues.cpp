#include "tarnmodel/platform/coredata/PropertyValues.h"

#include "tarnmodel/platform/coredata/ValueLength.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>
#include <atomic>
#include <cassert>
#include <cmath>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

namespace tarn {

// SharedBytes ---------------------------------------------------------------------------------------------------------

SharedBytes* SharedBytes::make(std::string_view bytes)
{
    if (bytes.size() > std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("a value of more than 4 GiB");
    void* memory = ::operator new(sizeof(SharedBytes) + bytes.size());
    auto* made = new (memory) SharedBytes(static_cast<std::uint32_t>(bytes.size()));
    if (!bytes.empty())
        std::memcpy(static_cast<char*>(memory) + sizeof(SharedBytes), bytes.data(), bytes.size());
    return made;
}

void SharedBytes::retain() noexcept
{
    std::atomic_ref(owners_).fetch_add(1, std::memory_order_relaxed);
}

void SharedBytes::release() noexcept
{
    if (std::atomic_ref(owners_).fetch_sub(1, std::memory_order_acq_rel) != 1)
        return;
    this->~SharedBytes();
    ::operator delete(this);
}

// Life ----------------------------------------------------------------------------------------------------------------

namespace {

bool keepsBytes(const NSPropertyDescription& property) noexcept
{
    if (property.isRelationship())
        return false;
    const auto type = static_cast<const NSAttributeDescription&>(property).type();
    return type == NSAttributeType::String || type == NSAttributeType::Data;
}

PropertyMask allProperties(const NSEntityDescription& entity) noexcept
{
    const std::size_t count = entity.properties().size();
    return count >= maximumPropertyCount ? ~PropertyMask{0} : (PropertyMask{1} << count) - 1;
}

std::size_t slotsFor(const NSEntityDescription& entity) noexcept
{
    return std::max<std::size_t>(entity.slotCount(), 1); // an address at least: none means no values
}

} // namespace

PropertyValues::PropertyValues(const NSEntityDescription& entity, PropertyMask unloaded)
    : entity_(&entity), loaded_(allProperties(entity) & ~unloaded), slots_(new Slot[slotsFor(entity)]())
{ }

PropertyValues::PropertyValues(const PropertyValues& other)
    : entity_(other.entity_), present_(other.present_), loaded_(other.loaded_), flags_(other.flags_)
{
    if (!other.slots_)
        return;
    slots_ = new Slot[slotsFor(*entity_)];
    std::copy_n(other.slots_, slotsFor(*entity_), slots_);
    for (PropertyMask rest = present_; rest != 0; rest &= rest - 1) {
        const auto index = static_cast<PropertyIndex>(std::countr_zero(rest));
        if (holdsBytes(index))
            slot(index).bytes->retain();
    }
}

PropertyValues::PropertyValues(PropertyValues&& other) noexcept
    : entity_(std::exchange(other.entity_, nullptr)), present_(std::exchange(other.present_, 0)),
      loaded_(std::exchange(other.loaded_, 0)), flags_(std::exchange(other.flags_, 0)),
      slots_(std::exchange(other.slots_, nullptr))
{ }

PropertyValues& PropertyValues::operator=(PropertyValues other) noexcept
{
    std::swap(entity_, other.entity_);
    std::swap(present_, other.present_);
    std::swap(loaded_, other.loaded_);
    std::swap(flags_, other.flags_);
    std::swap(slots_, other.slots_);
    return *this;
}

PropertyValues::~PropertyValues()
{
    for (PropertyMask rest = present_; rest != 0; rest &= rest - 1)
        releaseBytes(static_cast<PropertyIndex>(std::countr_zero(rest)));
    delete[] slots_;
}

// Slots ---------------------------------------------------------------------------------------------------------------

bool PropertyValues::holdsBytes(PropertyIndex index) const noexcept
{
    return (present_ & propertyBit(index)) && keepsBytes(entity_->property(index));
}

void PropertyValues::releaseBytes(PropertyIndex index) noexcept
{
    if (holdsBytes(index))
        slot(index).bytes->release();
}

void PropertyValues::setUnloaded(PropertyIndex index) noexcept
{
    setNil(index);
    loaded_ &= ~propertyBit(index);
}

void PropertyValues::setNil(PropertyIndex index) noexcept
{
    releaseBytes(index);
    if (hasSlot(index))
        slot(index).integer = 0;
    flags_ &= ~propertyBit(index);
    present_ &= ~propertyBit(index);
    loaded_ |= propertyBit(index);
}

void PropertyValues::setInteger(PropertyIndex index, std::int64_t value) noexcept
{
    assert(!keepsBytes(entity_->property(index)));
    if (hasSlot(index))
        slot(index).integer = value;
    else
        flags_ = (flags_ & ~propertyBit(index)) | (value != 0 ? propertyBit(index) : 0);
    present_ |= propertyBit(index);
    loaded_ |= propertyBit(index);
}

void PropertyValues::setBytes(PropertyIndex index, std::string_view bytes)
{
    assert(keepsBytes(entity_->property(index)));
    SharedBytes* made = SharedBytes::make(bytes); // before the old ones go: `bytes` may lie in them
    releaseBytes(index);
    slot(index).bytes = made;
    present_ |= propertyBit(index);
    loaded_ |= propertyBit(index);
}

void PropertyValues::setBytes(PropertyIndex index, std::string_view bytes, const PropertyValues* model)
{
    const bool isSame = model && model->entity_ == entity_ && model->holdsBytes(index) && model->bytes(index) == bytes;
    return isSame ? assign(index, *model) : setBytes(index, bytes);
}

bool PropertyValues::putBytes(PropertyIndex index, std::string_view bytes)
{
    const auto& attribute = static_cast<const NSAttributeDescription&>(entity_->property(index));
    std::string replaced;
    if (bytes.size() <= maximumValueLength && attribute.type() == NSAttributeType::String && !isValidUTF8(bytes)) {
        replaced = validUTF8(bytes);
        bytes = replaced;
    }
    if (bytes.size() > maximumValueLength)
        throw NSException(NSInvalidArgumentException,
            "A value of \"" + attribute.name() + "\" may have at most " + std::to_string(maximumValueLength >> 20U)
                + " MiB");
    if (isLoaded(index) && !isNil(index) && this->bytes(index) == bytes)
        return false;
    setBytes(index, bytes);
    return true;
}

void PropertyValues::assign(PropertyIndex index, const PropertyValues& other)
{
    if (&other == this)
        return;
    const bool sharesBytes = other.holdsBytes(index);
    if (sharesBytes)
        other.slot(index).bytes->retain();
    releaseBytes(index);
    const PropertyMask bit = propertyBit(index);
    if (hasSlot(index))
        slot(index) = other.slot(index);
    flags_ = (flags_ & ~bit) | (other.flags_ & bit);
    present_ = (present_ & ~bit) | (other.present_ & bit);
    loaded_ = (loaded_ & ~bit) | (other.loaded_ & bit);
}

bool PropertyValues::equals(PropertyIndex index, const PropertyValues& other) const noexcept
{
    if (isLoaded(index) != other.isLoaded(index) || isNil(index) != other.isNil(index))
        return false;
    if (isNil(index))
        return true;
    if (!holdsBytes(index))
        return integer(index) == other.integer(index);
    return slot(index).bytes == other.slot(index).bytes || bytes(index) == other.bytes(index);
}

// Boxed values --------------------------------------------------------------------------------------------------------

Value PropertyValues::attributeValue(PropertyIndex index) const
{
    if (isNil(index))
        return {};
    switch (static_cast<const NSAttributeDescription&>(entity_->property(index)).type()) {
    case NSAttributeType::Boolean:
        return integer(index) != 0;
    case NSAttributeType::Integer16:
    case NSAttributeType::Integer64:
        return integer(index);
    case NSAttributeType::Double:
        return floating(index);
    case NSAttributeType::String:
        return bytes(index);
    case NSAttributeType::Date:
        return dateWithMicrosecondsSince1970(integer(index));
    case NSAttributeType::Data:
        return NSData::fromText(bytes(index));
    }
    return {};
}

namespace {

std::int64_t integerOfDouble(double value) noexcept
{
    constexpr double kLimit = 9223372036854775808.0; // 2^63
    if (value >= kLimit)
        return std::numeric_limits<std::int64_t>::max();
    return value < -kLimit ? std::numeric_limits<std::int64_t>::min() : static_cast<std::int64_t>(value);
}

std::int64_t integerOfNumber(const Value& value) noexcept
{
    switch (value.kind()) {
    case Value::Kind::Bool:
        return value.asBool() ? 1 : 0;
    case Value::Kind::Double:
        return integerOfDouble(value.asDouble());
    default:
        return value.asInteger();
    }
}

double doubleOfNumber(const Value& value) noexcept
{
    return value.kind() == Value::Kind::Double ? value.asDouble() : static_cast<double>(integerOfNumber(value));
}

bool isTruthful(const Value& value) noexcept
{
    return value.kind() == Value::Kind::Double ? value.asDouble() != 0 : integerOfNumber(value) != 0;
}

bool isAccepted(NSAttributeType type, const Value& value) noexcept
{
    switch (type) {
    case NSAttributeType::String:
        return value.kind() == Value::Kind::String;
    case NSAttributeType::Date:
        return value.kind() == Value::Kind::Date;
    case NSAttributeType::Data:
        return value.kind() == Value::Kind::Data;
    default:
        return value.isNumber();
    }
}

} // namespace

std::int64_t PropertyValues::fittedTo16Bits(std::int64_t value) noexcept
{
    return std::clamp<std::int64_t>(
        value, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max());
}

void PropertyValues::setAttributeValue(PropertyIndex index, const Value& value)
{
    const auto& attribute = static_cast<const NSAttributeDescription&>(entity_->property(index));
    // The store has no "not a number": it reads back as nil, so it is nil from the start.
    if (value.isNil() || (value.kind() == Value::Kind::Double && std::isnan(value.asDouble())))
        return setNil(index);
    if (!isAccepted(attribute.type(), value))
        throw NSException(NSInvalidArgumentException,
            "unacceptable type of value for attribute \"" + attribute.name() + "\" of " + entity_->name());
    switch (attribute.type()) {
    case NSAttributeType::Boolean:
        return setInteger(index, isTruthful(value) ? 1 : 0);
    case NSAttributeType::Integer16:
        return setInteger(index, fittedTo16Bits(integerOfNumber(value)));
    case NSAttributeType::Integer64:
        return setInteger(index, integerOfNumber(value));
    case NSAttributeType::Double:
        return setDouble(index, doubleOfNumber(value));
    case NSAttributeType::Date:
        return setInteger(index, microsecondsSince1970(value.asDate()));
    case NSAttributeType::String:
        putBytes(index, value.asString());
        return;
    case NSAttributeType::Data:
        putBytes(index, value.asData().text());
        return;
    }
}

} // namespace tarn
