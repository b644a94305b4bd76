// Comparisons of single values: attributes and to-one relationships against constants and against each other.

#include "tarnmodel/platform/coredata/IdentifiedObject.h"
#include "tarnmodel/platform/coredata/query/SQLConditionBuilder.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <array>
#include <cmath>

namespace tarn {

namespace {

using Condition = SQLConditionBuilder::Condition;

constexpr std::size_t kLongestInlineList = 8;

/// A condition that may be NULL, as 0 or 1 with the other meaning.
std::string negation(const std::string& condition)
{
    return "NOT ifnull(" + condition + ", 0)";
}

bool isFullFold(ComparisonOptions options)
{
    return options.caseInsensitive && options.diacriticInsensitive;
}
bool hasOptions(ComparisonOptions options)
{
    return options.caseInsensitive || options.diacriticInsensitive;
}

struct OperatorText {
    ComparisonOperator operation;
    std::string_view sql;
    std::string_view name;
};
constexpr std::array kOperators{
    OperatorText{ComparisonOperator::EqualTo, " = ", "=="},
    OperatorText{ComparisonOperator::NotEqualTo, " IS NOT ", "!="},
    OperatorText{ComparisonOperator::LessThan, " < ", "<"},
    OperatorText{ComparisonOperator::LessThanOrEqualTo, " <= ", "<="},
    OperatorText{ComparisonOperator::GreaterThan, " > ", ">"},
    OperatorText{ComparisonOperator::GreaterThanOrEqualTo, " >= ", ">="},
    OperatorText{ComparisonOperator::Contains, "", "CONTAINS"},
    OperatorText{ComparisonOperator::BeginsWith, "", "BEGINSWITH"},
    OperatorText{ComparisonOperator::EndsWith, "", "ENDSWITH"},
    OperatorText{ComparisonOperator::Like, "", "LIKE"},
    OperatorText{ComparisonOperator::Matches, "", "MATCHES"},
    OperatorText{ComparisonOperator::In, "", "IN"},
    OperatorText{ComparisonOperator::Between, "", "BETWEEN"},
};
const OperatorText& textOf(ComparisonOperator operation)
{
    return kOperators[static_cast<std::size_t>(operation)];
}

std::optional<SQLBinding> scalarBinding(const Value& value)
{
    switch (value.kind()) {
    case Value::Kind::Bool:
        return std::int64_t{value.asBool() ? 1 : 0};
    case Value::Kind::Integer:
        return value.asInteger();
    case Value::Kind::Double:
        return value.asDouble();
    case Value::Kind::String:
        return value.asString();
    case Value::Kind::Date:
        return microsecondsSince1970(value.asDate());
    case Value::Kind::Data:
        return value.asData();
    default:
        return std::nullopt;
    }
}

/// The first text, by code points, after all that begin with `prefix`; empty when there is none.
std::string afterPrefix(std::string_view prefix)
{
    std::string bound(prefix);
    while (!bound.empty()) {
        std::size_t start = bound.size() - 1;
        while (start > 0 && (static_cast<unsigned char>(bound[start]) & 0xC0) == 0x80)
            --start;
        const DecodedCodePoint last = decodeCodePoint(bound, start);
        bound.resize(start);
        if (last.codePoint == 0x10FFFF)
            continue;
        appendCodePoint(bound, last.codePoint == 0xD7FF ? 0xE000 : last.codePoint + 1);
        break;
    }
    return bound;
}

} // namespace

Condition SQLConditionBuilder::comparePath(
    SQLPathEnd end, const ComparisonPredicate& predicate, SQLScope& scope, bool leafNegated)
{
    if (predicate.modifier != ComparisonModifier::Direct)
        return std::nullopt;
    return compareOperand(operandAt(end), predicate, scope, leafNegated);
}

Condition SQLConditionBuilder::compareOperand(
    const Operand& left, const ComparisonPredicate& predicate, SQLScope& scope, bool negated)
{
    if (const auto* constant = std::get_if<ConstantExpression>(&predicate.right->form))
        return compareWithConstant(left, predicate, constant->value, negated);
    if (const auto* aggregate = std::get_if<AggregateExpression>(&predicate.right->form)) {
        Value::Array values;
        for (const ExpressionPtr& member : aggregate->members) {
            const auto* constant = std::get_if<ConstantExpression>(&member->form);
            if (!constant)
                return std::nullopt;
            values.push_back(constant->value);
        }
        return compareWithConstant(left, predicate, Value(std::move(values)), negated);
    }
    const auto right = operand(*predicate.right, scope);
    return right ? compareOperands(left, predicate, *right, negated) : std::nullopt;
}

Condition SQLConditionBuilder::compareWithConstant(
    const Operand& left, const ComparisonPredicate& predicate, const Value& right, bool negated)
{
    const bool isArray = right.kind() == Value::Kind::Array;
    switch (predicate.operation) {
    case ComparisonOperator::EqualTo:
        return equality(left, right, predicate.options, negated);
    case ComparisonOperator::NotEqualTo:
        return equality(left, right, predicate.options, !negated);
    case ComparisonOperator::LessThan:
    case ComparisonOperator::LessThanOrEqualTo:
    case ComparisonOperator::GreaterThan:
    case ComparisonOperator::GreaterThanOrEqualTo:
        return order(left, predicate.operation, right, predicate.options, negated);
    case ComparisonOperator::In:
        return isArray ? membership(left, right.asArray(), predicate.options, negated) : std::nullopt;
    case ComparisonOperator::Between:
        return isArray ? between(left, right, predicate.options, negated) : std::nullopt;
    default:
        return isArray ? std::nullopt : stringCondition(left, predicate, right, negated);
    }
}

// Equality ------------------------------------------------------------------------------------------------------------

std::optional<std::int64_t> SQLConditionBuilder::keyInStore(
    const Value& object, const NSEntityDescription& entity) const
{
    const auto* identified = dynamic_cast<const IdentifiedObject*>(&object.asObject());
    if (!identified)
        return std::nullopt;
    const NSManagedObjectID id = identified->objectID();
    if (!id || id.key() <= 0 || id.root() != &entity.rootEntity() || (options_.store && &id.store() != options_.store))
        return std::nullopt;
    return id.key();
}

/// The value as SQLite compares it with the operand. None, and `comparable` false, for one that equals none of its
/// rows.
std::optional<Value> SQLConditionBuilder::sqlValue(const Operand& left, const Value& value, bool& comparable) const
{
    const auto when = [&](bool fits) {
        comparable = fits;
        return fits ? std::optional(value) : std::nullopt;
    };
    switch (left.kind) {
    case Kind::Number:
        return when(value.isNumber() && !(value.kind() == Value::Kind::Double && std::isnan(value.asDouble())));
    case Kind::String:
        return when(value.kind() == Value::Kind::String);
    case Kind::Date:
        return when(value.kind() == Value::Kind::Date);
    case Kind::Data:
        return when(value.kind() == Value::Kind::Data);
    case Kind::Object:
        break;
    }
    const auto key = value.kind() == Value::Kind::Object ? keyInStore(value, *left.entity) : std::nullopt;
    comparable = key.has_value();
    return key ? std::optional(Value(*key)) : std::nullopt;
}

Condition SQLConditionBuilder::equality(
    const Operand& left, const Value& right, ComparisonOptions options, bool negated)
{
    if (right.isNil())
        return left.sql + (negated ? " IS NOT NULL" : " IS NULL");
    bool comparable = false;
    const auto value = sqlValue(left, right, comparable);
    if (!comparable)
        return SQLConditionBuilder::literal(negated);
    if (left.kind == Kind::String && hasOptions(options)) {
        if (isFullFold(options))
            return foldedEquality(left, value->asString(), negated);
        const std::string test = stringTest(left, ComparisonOperator::EqualTo, options, value->asString());
        return negated ? "NOT " + test : test;
    }
    const std::string_view operation = negated ? " IS NOT " : " = ";
    SQLBinding wanted = *scalarBinding(*value);
    const std::string prefix = flagPrefix(left, operation, wanted);
    return prefix + left.sql + std::string(operation) + text_.bind(std::move(wanted));
}

/// Half of the rows have a flag, or nearly all: an index that begins with it would collect and sort them. The plus
/// keeps SQLite from that. Where an attribute that settles ties is given, SQLite leaves it out of the order and no
/// longer knows the index by it.
std::string SQLConditionBuilder::flagPrefix(
    const Operand& left, std::string_view operation, const SQLBinding& wanted) const
{
    if (left.flagSelect.empty())
        return left.settlesTies ? "+" : "";
    return options_.isCommonFlag({left.flagSelect + std::string(operation) + "?1", {wanted}}) ? "+" : "";
}

/// Rows whose shadow another program has made stale are looked at one by one; normally there are none.
Condition SQLConditionBuilder::foldedEquality(const Operand& left, const std::string& right, bool negated)
{
    const std::string wanted = text_.bind(fold(right));
    const std::string byText = "fold(" + left.sql + ")";
    if (left.shadow.empty())
        return byText + (negated ? " IS NOT " : " = ") + wanted;
    if (negated)
        return "coalesce(" + left.shadow + ", " + byText + ") IS NOT " + wanted;
    return "(" + left.shadow + " = " + wanted + " OR (" + left.shadow + " IS NULL AND " + left.sql + " IS NOT NULL AND "
        + byText + " = " + wanted + "))";
}

// Lists and ranges ----------------------------------------------------------------------------------------------------

std::string SQLConditionBuilder::boundList(const Value::Array& values)
{
    std::string list;
    if (values.size() > kLongestInlineList) {
        list = text_.bind(std::make_shared<const Value::Array>(values));
        return "(SELECT \"value\" FROM value_list(" + list + "))";
    }
    for (const Value& value : values)
        list += (list.empty() ? "" : ", ") + text_.bind(*scalarBinding(value));
    return "(" + list + ")";
}

Condition SQLConditionBuilder::membership(
    const Operand& left, const Value::Array& list, ComparisonOptions options, bool negated)
{
    const bool folds = left.kind == Kind::String && hasOptions(options);
    if (folds && !isFullFold(options))
        return std::nullopt;
    Value::Array values;
    bool hasNil = false;
    for (const Value& member : list) {
        bool comparable = false;
        auto value = sqlValue(left, member, comparable);
        if (comparable)
            values.push_back(folds ? Value(fold(value->asString())) : std::move(*value));
        hasNil = hasNil || member.isNil();
    }
    if (values.empty())
        return hasNil ? left.sql + (negated ? " IS NOT NULL" : " IS NULL") : SQLConditionBuilder::literal(negated);
    const std::string wanted = " IN " + boundList(values);
    const std::string byText = "fold(" + left.sql + ")";
    if (folds && !left.shadow.empty() && !negated && !hasNil)
        return "(" + left.shadow + wanted + " OR (" + left.shadow + " IS NULL AND " + left.sql + " IS NOT NULL AND "
            + byText + wanted + "))";
    const std::string value = !folds ? left.sql
        : left.shadow.empty()        ? byText
                                     : "coalesce(" + left.shadow + ", " + byText + ")";
    const std::string found = value + wanted;
    if (!hasNil)
        return negated ? negation(found) : found;
    return negated ? "(" + left.sql + " IS NOT NULL AND " + negation(found) + ")"
                   : "(" + left.sql + " IS NULL OR " + found + ")";
}

Condition SQLConditionBuilder::between(
    const Operand& left, const Value& bounds, ComparisonOptions options, bool negated)
{
    if (bounds.asArray().size() != 2)
        return SQLConditionBuilder::literal(negated);
    const auto low = order(left, ComparisonOperator::GreaterThanOrEqualTo, bounds.asArray()[0], options, false);
    const auto high = order(left, ComparisonOperator::LessThanOrEqualTo, bounds.asArray()[1], options, false);
    if (!low || !high)
        return std::nullopt;
    const std::string both = "(" + *low + " AND " + *high + ")";
    return negated ? negation(both) : both;
}

Condition SQLConditionBuilder::order(
    const Operand& left, ComparisonOperator operation, const Value& right, ComparisonOptions options, bool negated)
{
    bool comparable = false;
    const auto value = sqlValue(left, right, comparable);
    if (!comparable || left.kind == Kind::Object)
        return SQLConditionBuilder::literal(negated);
    std::string condition;
    if (left.kind == Kind::String && hasOptions(options)) {
        condition = stringTest(left, operation, options, value->asString());
        return negated ? "NOT " + condition : condition;
    }
    condition = left.sql + std::string(textOf(operation).sql) + text_.bind(*scalarBinding(*value));
    return negated ? negation(condition) : condition;
}

// Strings -------------------------------------------------------------------------------------------------------------

/// 0 or 1, never NULL.
std::string SQLConditionBuilder::stringTest(
    const Operand& left, ComparisonOperator operation, ComparisonOptions options, const std::string& right)
{
    std::string description(textOf(operation).name);
    if (hasOptions(options)) {
        description += options.caseInsensitive ? "[c" : "[";
        description += options.diacriticInsensitive ? "d]" : "]";
    }
    description += " \"" + right + '"';
    auto test = std::make_shared<const StringTest>(operation, options, right);
    const PrimaryKeySetPtr rows = left.searched ? options_.rowsThatMayMatch(*left.searched, *test) : nullptr;
    const std::string tested
        = "string_test(" + text_.bind(SQLStringTest{std::move(test), std::move(description)}) + ", " + left.sql + ")";
    return rows ? "(key_in(" + text_.bind(rows) + ", " + left.key + ") AND " + tested + ")" : tested;
}

Condition SQLConditionBuilder::stringCondition(
    const Operand& left, const ComparisonPredicate& predicate, const Value& right, bool negated)
{
    if (left.kind != Kind::String || right.kind() != Value::Kind::String)
        return SQLConditionBuilder::literal(negated);
    const ComparisonOptions options = predicate.options;
    if (predicate.operation == ComparisonOperator::BeginsWith && !left.shadow.empty() && isFullFold(options)) {
        const std::string prefix = fold(right.asString());
        if (negated)
            return beginning("coalesce(" + left.shadow + ", fold(" + left.sql + "))", prefix, true);
        auto range = beginning(left.shadow, prefix, false);
        if (prefix.empty())
            return range;
        return "(" + *range + " OR (" + left.shadow + " IS NULL AND " + left.sql + " IS NOT NULL AND "
            + stringTest(left, predicate.operation, options, right.asString()) + "))";
    }
    if (predicate.operation == ComparisonOperator::BeginsWith && left.indexed && !hasOptions(options))
        return beginning(left.sql, right.asString(), negated);
    const std::string test = stringTest(left, predicate.operation, options, right.asString());
    return negated ? "NOT " + test : test;
}

Condition SQLConditionBuilder::beginning(const std::string& column, const std::string& prefix, bool negated)
{
    if (prefix.empty())
        return SQLConditionBuilder::literal(negated);
    const std::string end = afterPrefix(prefix);
    std::string range = "(" + column + " >= " + text_.bind(prefix);
    if (!end.empty())
        range += " AND " + column + " < " + text_.bind(end);
    range += ")";
    return negated ? negation(range) : range;
}

// Two operands --------------------------------------------------------------------------------------------------------

Condition SQLConditionBuilder::compareOperands(
    const Operand& left, const ComparisonPredicate& predicate, const Operand& right, bool negated)
{
    const ComparisonOperator operation = predicate.operation;
    if (left.kind != right.kind || operation > ComparisonOperator::GreaterThanOrEqualTo)
        return std::nullopt;
    if (left.kind == Kind::Object && &left.entity->rootEntity() != &right.entity->rootEntity())
        return std::nullopt;
    const bool folds = left.kind == Kind::String && hasOptions(predicate.options);
    if (folds && !isFullFold(predicate.options))
        return std::nullopt;
    const std::string leftValue = folds ? "fold(" + left.sql + ")" : left.sql;
    const std::string rightValue = folds ? "fold(" + right.sql + ")" : right.sql;
    if (operation == ComparisonOperator::EqualTo || operation == ComparisonOperator::NotEqualTo) {
        const bool wantsEqual = (operation == ComparisonOperator::EqualTo) != negated;
        return leftValue + (wantsEqual ? " IS " : " IS NOT ") + rightValue;
    }
    if (left.kind == Kind::Object)
        return SQLConditionBuilder::literal(negated);
    const std::string condition = leftValue + std::string(textOf(operation).sql) + rightValue;
    return negated ? negation(condition) : condition;
}

} // namespace tarn
