#include "tarnmodel/platform/coredata/migration/AttributeConversion.h"

#include "tarnmodel/platform/coredata/PropertyValues.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <array>
#include <cmath>
#include <limits>

namespace tarn {

namespace {

bool isNumberType(NSAttributeType type) noexcept
{
    return type == NSAttributeType::Boolean || type == NSAttributeType::Integer16 || type == NSAttributeType::Integer64
        || type == NSAttributeType::Double;
}

bool isBytesType(NSAttributeType type) noexcept
{
    return type == NSAttributeType::String || type == NSAttributeType::Data;
}

std::int64_t roundedInteger(double number) noexcept
{
    constexpr double kEnd = 9223372036854775808.0; // 2 to the 63rd, which does not fit any more
    if (number >= kEnd)
        return std::numeric_limits<std::int64_t>::max();
    if (number < -kEnd)
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(std::round(number));
}

std::int64_t integerOf(const Value& value) noexcept
{
    switch (value.kind()) {
    case Value::Kind::Bool:
        return value.asBool() ? 1 : 0;
    case Value::Kind::Integer:
        return value.asInteger();
    default:
        return roundedInteger(value.asDouble());
    }
}

Value numberOfType(const Value& value, NSAttributeType to)
{
    const bool isDouble = value.kind() == Value::Kind::Double;
    switch (to) {
    case NSAttributeType::Boolean:
        return Value(isDouble ? value.asDouble() != 0 : integerOf(value) != 0);
    case NSAttributeType::Integer16:
        return Value(PropertyValues::fittedTo16Bits(integerOf(value)));
    case NSAttributeType::Integer64:
        return Value(integerOf(value));
    default:
        return isDouble ? value : Value(static_cast<double>(integerOf(value)));
    }
}

/// The same in SQL. A cast to INTEGER drops the fraction and saturates; from 2 to the 52nd on there is none. SQLite's
/// own "round" takes the number below a half for a half.
std::string roundedColumn(const std::string& column)
{
    const std::string whole = "CAST(" + column + " AS INTEGER)";
    const std::string fraction = "(" + column + " - " + whole + ")";
    return "CASE WHEN abs(" + column + ") < 4503599627370496.0 THEN " + whole + " + (" + fraction + " >= 0.5) - ("
        + fraction + " <= -0.5) ELSE " + whole + " END";
}

} // namespace

bool isConvertible(NSAttributeType from, NSAttributeType to) noexcept
{
    return from == to || (isNumberType(from) && isNumberType(to)) || (isBytesType(from) && isBytesType(to));
}

Value convertedValue(const Value& value, NSAttributeType to)
{
    if (value.isNumber() && isNumberType(to))
        return numberOfType(value, to);
    if (value.kind() == Value::Kind::String && to == NSAttributeType::Data)
        return Value(NSData::fromText(value.asString()));
    if (value.kind() == Value::Kind::Data && to == NSAttributeType::String)
        return Value(validUTF8(value.asData().text()));
    return value;
}

std::optional<std::string> convertedColumn(const std::string& column, NSAttributeType from, NSAttributeType to)
{
    if (from == to)
        return column;
    const std::string integer = from == NSAttributeType::Double ? roundedColumn(column) : column;
    switch (to) {
    case NSAttributeType::Boolean:
        return "(" + column + " <> 0)";
    case NSAttributeType::Integer16:
        return "max(-32768, min(32767, " + integer + "))";
    case NSAttributeType::Integer64:
        return integer;
    case NSAttributeType::Double:
        return "CAST(" + column + " AS REAL)";
    case NSAttributeType::Data:
        return "CAST(" + column + " AS BLOB)";
    default:
        return std::nullopt; // bytes that are no UTF-8 have to be found
    }
}

std::string_view nameOfType(NSAttributeType type) noexcept
{
    constexpr std::array<std::string_view, 7> kNames{"bool", "int16", "int64", "double", "string", "date", "data"};
    return kNames[static_cast<std::size_t>(type)];
}

bool isValueOfType(const Value& value, NSAttributeType type) noexcept
{
    switch (value.kind()) {
    case Value::Kind::Nil:
        return true;
    case Value::Kind::Bool:
        return type == NSAttributeType::Boolean;
    case Value::Kind::Integer:
        return type == NSAttributeType::Integer64
            || (type == NSAttributeType::Integer16
                && PropertyValues::fittedTo16Bits(value.asInteger()) == value.asInteger());
    case Value::Kind::Double:
        return type == NSAttributeType::Double;
    case Value::Kind::String:
        return type == NSAttributeType::String;
    case Value::Kind::Date:
        return type == NSAttributeType::Date;
    case Value::Kind::Data:
        return type == NSAttributeType::Data;
    default:
        return false;
    }
}

} // namespace tarn
