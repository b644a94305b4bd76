#include "tarnmodel/model/GeneratedAccessors.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarn {
namespace {

[[noreturn]] void raiseWrongKind(std::string_view wanted)
{
    throw NSException(NSInvalidArgumentException, "the value is no " + std::string(wanted));
}

// Outside of 64 bits the nearest number that there is; 0 for what is no number.
std::int64_t wholeNumber(double value)
{
    constexpr double kLimit = 9223372036854775808.0;
    if (std::isnan(value))
        return 0;
    if (value >= kLimit)
        return std::numeric_limits<std::int64_t>::max();
    if (value < -kLimit)
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(value);
}

} // namespace

const NSEntityDescription& entityInModel(std::string_view entityName, const NSManagedObjectModel& model)
{
    if (const NSEntityDescription* entity = model.entityNamed(entityName))
        return *entity;
    throw NSException(NSInvalidArgumentException,
        "the model \"" + model.versionIdentifier() + "\" has no entity \"" + std::string(entityName) + "\"");
}

std::set<std::string> keysAffectingScalarKey(
    std::string_view key, std::initializer_list<std::string_view> scalarAttributes)
{
    constexpr std::string_view kSuffix = "Value";
    if (!key.ends_with(kSuffix))
        return {};
    key.remove_suffix(kSuffix.size());
    if (std::find(scalarAttributes.begin(), scalarAttributes.end(), key) == scalarAttributes.end())
        return {};
    return {std::string(key)};
}

std::optional<bool> unboxedBoolean(const Value& value)
{
    if (value.kind() == Value::Kind::Double)
        return value.asDouble() != 0;
    auto number = unboxedNumber(value);
    return number ? std::optional<bool>(*number != 0) : std::nullopt;
}

std::optional<std::int64_t> unboxedNumber(const Value& value)
{
    switch (value.kind()) {
    case Value::Kind::Nil:
        return std::nullopt;
    case Value::Kind::Bool:
        return value.asBool() ? 1 : 0;
    case Value::Kind::Integer:
        return value.asInteger();
    case Value::Kind::Double:
        return wholeNumber(value.asDouble());
    default:
        raiseWrongKind("number");
    }
}

std::optional<double> unboxedDouble(const Value& value)
{
    if (value.kind() == Value::Kind::Double)
        return value.asDouble();
    auto number = unboxedNumber(value);
    return number ? std::optional<double>(static_cast<double>(*number)) : std::nullopt;
}

std::optional<std::string_view> unboxedString(const Value& value)
{
    if (value.isNil())
        return std::nullopt;
    if (value.kind() != Value::Kind::String)
        raiseWrongKind("string");
    return std::string_view(value.asString());
}

std::optional<NSDate> unboxedDate(const Value& value)
{
    if (value.isNil())
        return std::nullopt;
    if (value.kind() != Value::Kind::Date)
        raiseWrongKind("date");
    return value.asDate();
}

std::optional<NSData> unboxedData(const Value& value)
{
    if (value.isNil())
        return std::nullopt;
    if (value.kind() != Value::Kind::Data)
        raiseWrongKind("data");
    return value.asData();
}

} // namespace tarn
