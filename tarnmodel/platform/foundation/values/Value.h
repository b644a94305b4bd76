#pragma once

#include "tarnmodel/platform/foundation/values/NSData.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tarn {

class Value;

/// An object whose properties are read by name; what predicates look at.
class NSKeyValueCoding {
public:
    virtual ~NSKeyValueCoding() = default;

    /// The stored value of a property: nil, a scalar, an object (to-one) or an array of objects (to-many). Never goes
    /// through guarded accessors. Raises `NSUndefinedKeyException` for a key that the object does not have.
    virtual Value storedValueForKey(std::string_view key) const = 0;
    /// Whether both stand for the same object; equal addresses always do.
    virtual bool isEqualToObject(const NSKeyValueCoding& other) const { return this == &other; }
};

/// An immutable array of values that its copies share. Any thread.
class SharedValues {
public:
    /// An array of these.
    explicit SharedValues(std::vector<Value> values);
    /// The same array, shared.
    SharedValues(const SharedValues& other) noexcept;
    SharedValues(SharedValues&& other) noexcept : counted_(std::exchange(other.counted_, nullptr)) { }
    SharedValues& operator=(SharedValues other) noexcept
    {
        std::swap(counted_, other.counted_);
        return *this;
    }
    ~SharedValues();

    /// Not of one that was moved away.
    const std::vector<Value>& values() const noexcept;

private:
    struct Counted;
    Counted* counted_;
};

/// One value of a property or of a predicate: nil, a scalar, an object, or an array of values.
///
/// Objects are borrowed: a value must not outlive the objects that it names. Copies of an array share it.
class Value {
public:
    /// What a value is.
    enum class Kind : std::uint8_t { Nil, Bool, Integer, Double, String, Date, Data, Object, Array };
    /// The values of an array, in order.
    using Array = std::vector<Value>;

    Value() = default;
    /// Nil.
    Value(std::nullptr_t) { }
    /// A bool and nothing that only converts to one: a pointer to a class that is still incomplete would.
    template <std::same_as<bool> Bool> Value(Bool value) : storage_(value) { }
    /// A value of the kind that the type stands for; a null pointer to a text is not allowed, and an empty option is
    /// nil.
    template <std::integral Integer>
    requires(!std::same_as<Integer, bool>) Value(Integer value) : storage_(static_cast<std::int64_t>(value)) { }
    Value(double value) : storage_(value) { }
    Value(std::string value) : storage_(std::move(value)) { }
    Value(std::string_view value) : storage_(std::string(value)) { }
    Value(const char* value) : storage_(std::string(value)) { }
    Value(NSDate value) : storage_(value) { }
    Value(NSData value) : storage_(std::move(value)) { }
    /// A null pointer gives nil.
    Value(const NSKeyValueCoding* object)
    {
        if (object)
            storage_ = object;
    }
    /// An array; copies share it.
    Value(Array values) : storage_(SharedValues(std::move(values))) { }
    /// Nil for an option without a value.
    template <typename T> Value(const std::optional<T>& value)
    {
        if (value)
            *this = Value(*value);
    }

    /// What it is.
    Kind kind() const noexcept { return static_cast<Kind>(storage_.index()); }
    /// Whether it is nil.
    bool isNil() const noexcept { return kind() == Kind::Nil; }
    /// Bool, Integer or Double.
    bool isNumber() const noexcept { return kind() == Kind::Bool || kind() == Kind::Integer || kind() == Kind::Double; }

    /// Each wants the value to be of that kind, else std::bad_variant_access.
    bool asBool() const { return std::get<bool>(storage_); }
    std::int64_t asInteger() const { return std::get<std::int64_t>(storage_); }
    double asDouble() const { return std::get<double>(storage_); }
    const std::string& asString() const { return std::get<std::string>(storage_); }
    NSDate asDate() const { return std::get<NSDate>(storage_); }
    const NSData& asData() const { return std::get<NSData>(storage_); }
    const NSKeyValueCoding& asObject() const { return *std::get<const NSKeyValueCoding*>(storage_); }
    const Array& asArray() const { return std::get<SharedValues>(storage_).values(); }

    /// Same kind and same value; objects by `isEqualToObject`, arrays member by member.
    friend bool operator==(const Value& left, const Value& right);

private:
    std::variant<std::monostate, bool, std::int64_t, double, std::string, NSDate, NSData, const NSKeyValueCoding*,
        SharedValues>
        storage_;
};

} // namespace tarn
