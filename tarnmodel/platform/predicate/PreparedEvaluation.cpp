#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"
#include "tarnmodel/platform/predicate/PreparedPredicate.h"
#include "tarnmodel/platform/predicate/ValueComparison.h"

#include <algorithm>
#include <span>
#include <utility>

namespace tarn {

namespace {

// Expressions ---------------------------------------------------------------------------------------------------------

/// A value that stands in the predicate or in the scope is lent; one that is made is kept in `made`.
const Value& valueOf(const PreparedExpression& expression, EvaluationScope& scope, Value& made);

Value valueForKey(const Value& value, const std::string& key)
{
    switch (value.kind()) {
    case Value::Kind::Nil:
        return {};
    case Value::Kind::Object:
        return value.asObject().storedValueForKey(key);
    case Value::Kind::Array: {
        // The members' values in one flat list; a member without one counts as nil.
        Value::Array values;
        for (const Value& member : value.asArray()) {
            Value read = valueForKey(member, key);
            if (read.kind() == Value::Kind::Array)
                values.insert(values.end(), read.asArray().begin(), read.asArray().end());
            else
                values.push_back(std::move(read));
        }
        return Value(std::move(values));
    }
    default:
        throw NSException(NSUndefinedKeyException, "A predicate reads the key \"" + key + "\" of a plain value");
    }
}

const Value& baseValue(const PreparedBase& base, const EvaluationScope& scope)
{
    return base.variable ? scope.variables[*base.variable] : scope.root;
}

/// The members that a collection has; a single value counts as a collection of itself, nil as an empty one.
std::span<const Value> membersOf(const Value& value)
{
    if (value.kind() == Value::Kind::Array)
        return value.asArray();
    return {&value, value.isNil() ? 0U : 1U};
}

/// Calls `take` with each member of the collection for which the predicate holds.
template <typename Take> void forEachHit(const PreparedSubquery& subquery, EvaluationScope& scope, Take take)
{
    Value made;
    const Value collection = valueOf(*subquery.collection, scope, made);
    for (const Value& member : membersOf(collection)) {
        scope.variables[subquery.variable] = member;
        if (evaluatePrepared(*subquery.predicate, scope))
            take(member);
    }
}

std::int64_t countOf(const PreparedCount& count, EvaluationScope& scope)
{
    if (const auto* subquery = std::get_if<PreparedSubquery>(&count.collection->form)) {
        std::int64_t hits = 0;
        forEachHit(*subquery, scope, [&hits](const Value&) { ++hits; });
        return hits;
    }
    Value made;
    return static_cast<std::int64_t>(membersOf(valueOf(*count.collection, scope, made)).size());
}

Value made(const PreparedKeyPath& path, EvaluationScope& scope)
{
    Value value = valueForKey(baseValue(path.base, scope), path.keys.front());
    for (const std::string& key : std::span(path.keys).subspan(1))
        value = valueForKey(value, key);
    return value;
}

Value made(const PreparedSubquery& subquery, EvaluationScope& scope)
{
    Value::Array hits;
    forEachHit(subquery, scope, [&hits](const Value& member) { hits.push_back(member); });
    return Value(std::move(hits));
}

Value made(const PreparedAggregate& aggregate, EvaluationScope& scope)
{
    Value::Array values;
    for (const PreparedExpression& member : aggregate.members) {
        Value memberValue;
        values.push_back(valueOf(member, scope, memberValue));
    }
    return Value(std::move(values));
}

const Value& valueOf(const PreparedExpression& expression, EvaluationScope& scope, Value& kept)
{
    return std::visit(
        Overloaded{
            [](const PreparedConstant& constant) -> const Value& { return constant.value; },
            [&](const PreparedBase& base) -> const Value& { return baseValue(base, scope); },
            [&](const PreparedCount& count) -> const Value& { return kept = Value(countOf(count, scope)); },
            [&](const auto& form) -> const Value& { return kept = made(form, scope); },
        },
        expression.form);
}

// Comparisons ---------------------------------------------------------------------------------------------------------

bool isString(const Value& value)
{
    return value.kind() == Value::Kind::String;
}

bool holdsForStrings(const PreparedComparison& comparison, const Value& left, const Value& right)
{
    if (comparison.stringTest)
        return comparison.stringTest->matches(left.asString());
    return StringTest(comparison.operation, comparison.options, right.asString()).matches(left.asString());
}

bool isMember(const Value& value, const Value::Array& values, ComparisonOptions options)
{
    return std::ranges::any_of(values, [&](const Value& member) { return areEqualValues(value, member, options); });
}

bool holdsForIn(const PreparedComparison& comparison, const Value& left, const Value& right)
{
    if (right.kind() == Value::Kind::Array) {
        if (comparison.listedStrings)
            return isString(left) && comparison.listedStrings->contains(folded(left.asString(), comparison.options));
        return isMember(left, right.asArray(), comparison.options);
    }
    if (!isString(left) || !isString(right))
        return false;
    if (comparison.stringTest)
        return comparison.stringTest->matches(right.asString());
    return StringTest(ComparisonOperator::Contains, comparison.options, left.asString()).matches(right.asString());
}

bool isBetween(const Value& value, const Value& bounds, ComparisonOptions options)
{
    if (bounds.kind() != Value::Kind::Array || bounds.asArray().size() != 2)
        return false;
    return compareValues(value, bounds.asArray()[0], options) >= 0
        && compareValues(value, bounds.asArray()[1], options) <= 0;
}

bool holds(const PreparedComparison& comparison, const Value& left, const Value& right)
{
    const auto ordered = [&] { return compareValues(left, right, comparison.options); };
    switch (comparison.operation) {
    case ComparisonOperator::EqualTo:
    case ComparisonOperator::NotEqualTo:
        if (comparison.stringTest && isString(left))
            return comparison.stringTest->matches(left.asString());
        return areEqualValues(left, right, comparison.options) == (comparison.operation == ComparisonOperator::EqualTo);
    case ComparisonOperator::LessThan:
        return ordered() < 0;
    case ComparisonOperator::LessThanOrEqualTo:
        return ordered() <= 0;
    case ComparisonOperator::GreaterThan:
        return ordered() > 0;
    case ComparisonOperator::GreaterThanOrEqualTo:
        return ordered() >= 0;
    case ComparisonOperator::Contains:
        if (left.kind() == Value::Kind::Array)
            return isMember(right, left.asArray(), comparison.options);
        [[fallthrough]];
    case ComparisonOperator::BeginsWith:
    case ComparisonOperator::EndsWith:
    case ComparisonOperator::Like:
    case ComparisonOperator::Matches:
        return isString(left) && isString(right) && holdsForStrings(comparison, left, right);
    case ComparisonOperator::In:
        return holdsForIn(comparison, left, right);
    case ComparisonOperator::Between:
        return isBetween(left, right, comparison.options);
    }
    return false;
}

bool evaluateComparison(const PreparedComparison& comparison, EvaluationScope& scope)
{
    Value leftMade;
    Value rightMade;
    const Value& left = valueOf(comparison.left, scope, leftMade);
    const Value& right = valueOf(comparison.right, scope, rightMade);
    const auto holdsFor = [&](const Value& member) { return holds(comparison, member, right); };
    switch (comparison.modifier) {
    case ComparisonModifier::Direct:
        return holds(comparison, left, right);
    case ComparisonModifier::Any:
        return std::ranges::any_of(membersOf(left), holdsFor);
    case ComparisonModifier::All:
        return std::ranges::all_of(membersOf(left), holdsFor);
    case ComparisonModifier::None:
        return std::ranges::none_of(membersOf(left), holdsFor);
    }
    return false;
}

} // namespace

bool evaluatePrepared(const PreparedPredicate& predicate, EvaluationScope& scope)
{
    const auto evaluate = [&scope](const PreparedPredicate& member) { return evaluatePrepared(member, scope); };
    return std::visit(Overloaded{
                          [](const PreparedTruth& truth) { return truth.value; },
                          [&](const PreparedComparison& comparison) { return evaluateComparison(comparison, scope); },
                          [&](const PreparedCompound& compound) {
                              return compound.type == CompoundType::And
                                  ? std::ranges::all_of(compound.members, evaluate)
                                  : std::ranges::any_of(compound.members, evaluate);
                          },
                          [&](const PreparedNegation& negation) { return !evaluate(*negation.operand); },
                      },
        predicate.form);
}

} // namespace tarn
