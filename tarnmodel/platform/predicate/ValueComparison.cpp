#include "tarnmodel/platform/predicate/ValueComparison.h"

#include <algorithm>
#include <cmath>

namespace tarn {

namespace {

std::int64_t integerOf(const Value& value)
{
    return value.kind() == Value::Kind::Bool ? (value.asBool() ? 1 : 0) : value.asInteger();
}

// A double holds integers up to 2^53 only: the whole parts are compared as integers, then the fraction.
std::partial_ordering compareNumbers(std::int64_t left, double right)
{
    constexpr double kBeyondIntegers = 9223372036854775808.0;
    if (std::isnan(right))
        return std::partial_ordering::unordered;
    if (right >= kBeyondIntegers)
        return std::partial_ordering::less;
    if (right < -kBeyondIntegers)
        return std::partial_ordering::greater;
    const double whole = std::floor(right);
    const auto order = left <=> static_cast<std::int64_t>(whole);
    return order == std::strong_ordering::equal && right > whole ? std::strong_ordering::less : order;
}

std::partial_ordering compareNumbers(const Value& left, const Value& right)
{
    const bool leftIsDouble = left.kind() == Value::Kind::Double;
    const bool rightIsDouble = right.kind() == Value::Kind::Double;
    if (leftIsDouble && rightIsDouble)
        return left.asDouble() <=> right.asDouble();
    if (leftIsDouble)
        return 0 <=> compareNumbers(integerOf(right), left.asDouble());
    if (rightIsDouble)
        return compareNumbers(integerOf(left), right.asDouble());
    return integerOf(left) <=> integerOf(right);
}

std::strong_ordering compareStrings(const std::string& left, const std::string& right, ComparisonOptions options)
{
    if (options == ComparisonOptions())
        return left <=> right;
    return folded(left, options) <=> folded(right, options);
}

bool containsAll(const Value::Array& values, const Value::Array& wanted, ComparisonOptions options)
{
    return std::ranges::all_of(wanted, [&](const Value& member) {
        return std::ranges::any_of(values, [&](const Value& value) { return areEqualValues(value, member, options); });
    });
}

} // namespace

bool areEqualValues(const Value& left, const Value& right, ComparisonOptions options)
{
    if (left.isNil() || right.isNil())
        return left.isNil() && right.isNil();
    if (left.kind() == right.kind()) {
        if (left.kind() == Value::Kind::Object)
            return left.asObject().isEqualToObject(right.asObject());
        if (left.kind() == Value::Kind::Array) {
            return containsAll(left.asArray(), right.asArray(), options)
                && containsAll(right.asArray(), left.asArray(), options);
        }
    }
    return compareValues(left, right, options) == std::partial_ordering::equivalent;
}

std::partial_ordering compareValues(const Value& left, const Value& right, ComparisonOptions options)
{
    if (left.isNumber() && right.isNumber())
        return compareNumbers(left, right);
    if (left.kind() != right.kind())
        return std::partial_ordering::unordered;
    switch (left.kind()) {
    case Value::Kind::String:
        return compareStrings(left.asString(), right.asString(), options);
    case Value::Kind::Date:
        return left.asDate() <=> right.asDate();
    case Value::Kind::Data:
        return left.asData() <=> right.asData();
    case Value::Kind::Nil:
    case Value::Kind::Bool:
    case Value::Kind::Integer:
    case Value::Kind::Double:
    case Value::Kind::Object:
    case Value::Kind::Array:
        break;
    }
    return std::partial_ordering::unordered;
}

} // namespace tarn
