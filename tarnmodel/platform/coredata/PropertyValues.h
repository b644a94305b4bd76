#pragma once

#include "tarnmodel/platform/coredata/NSEntityDescription.h"

#include <bit>
#include <cstdint>
#include <string_view>

namespace tarn {

/// Immutable bytes that several records and snapshots share; counts its owners.
class SharedBytes {
public:
    /// A copy of the bytes with one owner, whom `release` ends.
    static SharedBytes* make(std::string_view bytes);
    /// One owner more.
    void retain() noexcept;
    /// One owner less; the last one frees the bytes.
    void release() noexcept;
    /// The bytes; valid while there is an owner.
    std::string_view view() const noexcept { return {reinterpret_cast<const char*>(this + 1), length_}; }

private:
    explicit SharedBytes(std::uint32_t length) : length_(length) { }
    std::uint32_t owners_ = 1; ///< counted atomically
    std::uint32_t length_;
};

/// The values of one record by property index, eight bytes each; booleans a bit.
///
/// Attributes are typed by their description. A to-one relationship is held as the target's key (above 0 in the store,
/// below 0 while temporary); to-many relationships are not held here. A value is loaded or not yet read; nil or not.
/// A plain value type: copies share strings. The caller keeps index and type right; checked in debug builds.
class PropertyValues {
public:
    PropertyValues() = default;
    /// Everything nil, and loaded but for those of `unloaded`.
    explicit PropertyValues(const NSEntityDescription& entity, PropertyMask unloaded = 0);
    /// The same values; strings are shared.
    PropertyValues(const PropertyValues& other);
    /// The values; `other` is empty then.
    PropertyValues(PropertyValues&& other) noexcept;
    PropertyValues& operator=(PropertyValues other) noexcept;
    ~PropertyValues();

    /// Whether it is of no entity and holds nothing.
    bool isEmpty() const noexcept { return slots_ == nullptr; }
    /// Whose properties these are; not to be asked of an empty one.
    const NSEntityDescription& entity() const noexcept { return *entity_; }

    /// Whether the value was read or set.
    bool isLoaded(PropertyIndex index) const noexcept { return loaded_ & propertyBit(index); }
    /// All properties of which that is true.
    PropertyMask loadedMask() const noexcept { return loaded_; }
    /// Whether there is no value.
    bool isNil(PropertyIndex index) const noexcept { return !(present_ & propertyBit(index)); }
    /// Forgets the value, to be read again.
    void setUnloaded(PropertyIndex index) noexcept;

    /// Takes the value away; it is loaded then.
    void setNil(PropertyIndex index) noexcept;
    /// Boolean (0 or 1), Integer16, Integer64, Date (microseconds since 1970) and to-one (key).
    void setInteger(PropertyIndex index, std::int64_t value) noexcept;
    std::int64_t integer(PropertyIndex index) const noexcept
    {
        return hasSlot(index) ? slot(index).integer : static_cast<std::int64_t>((flags_ >> index) & 1U);
    }
    /// Of type Double.
    void setDouble(PropertyIndex index, double value) noexcept
    {
        setInteger(index, std::bit_cast<std::int64_t>(value));
    }
    double floating(PropertyIndex index) const noexcept { return std::bit_cast<double>(slot(index).integer); }
    /// String and Data.
    void setBytes(PropertyIndex index, std::string_view bytes);
    /// The same, sharing the bytes of `model` where those are equal: rows in a row often hold the same.
    void setBytes(PropertyIndex index, std::string_view bytes, const PropertyValues* model);
    /// Bytes that somebody gives, as the attribute holds them: what is no UTF-8 in a text becomes U+FFFD. False when it
    /// held just these. Raises `NSInvalidArgumentException` for more than `maximumValueLength`.
    bool putBytes(PropertyIndex index, std::string_view bytes);
    /// Valid until the property is set again.
    std::string_view bytes(PropertyIndex index) const noexcept { return slot(index).bytes->view(); }

    /// Takes value and loadedness of one property from another record of the same inheritance chain; shares strings.
    void assign(PropertyIndex index, const PropertyValues& other);
    /// Whether both hold the same value of the property, or none.
    bool equals(PropertyIndex index, const PropertyValues& other) const noexcept;

    /// An attribute as a boxed value. Not for relationships.
    Value attributeValue(PropertyIndex index) const;
    /// Sets an attribute from a boxed value: what does not fit its width becomes the nearest number that does, bytes go
    /// the way of `putBytes`, nil clears. Raises `NSInvalidArgumentException` for a value of another kind.
    void setAttributeValue(PropertyIndex index, const Value& value);

    /// The number that an attribute of 16 bits holds for this one: the nearest.
    static std::int64_t fittedTo16Bits(std::int64_t value) noexcept;

private:
    union Slot {
        std::int64_t integer;
        SharedBytes* bytes;
    };
    bool hasSlot(PropertyIndex index) const noexcept { return !(entity_->slotlessMask() & propertyBit(index)); }
    Slot& slot(PropertyIndex index) noexcept { return slots_[entity_->slot(index)]; }
    const Slot& slot(PropertyIndex index) const noexcept { return slots_[entity_->slot(index)]; }
    bool holdsBytes(PropertyIndex index) const noexcept;
    void releaseBytes(PropertyIndex index) noexcept;

    const NSEntityDescription* entity_ = nullptr;
    PropertyMask present_ = 0;
    PropertyMask loaded_ = 0;
    PropertyMask flags_ = 0; ///< values of booleans
    Slot* slots_ = nullptr;
};

} // namespace tarn
