#include "tarnmodel/platform/predicate/PredicateEquality.h"

#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <algorithm>

namespace tarn {

namespace {

bool isSameConstant(const Value& left, const Value& right)
{
    using enum Value::Kind;
    if (left.kind() == Bool && right.kind() != Bool)
        return right.kind() == Integer && right.asInteger() == (left.asBool() ? 1 : 0);
    if (right.kind() == Bool && left.kind() != Bool)
        return isSameConstant(right, left);
    if (left.kind() == Array && right.kind() == Array)
        return std::ranges::equal(left.asArray(), right.asArray(), isSameConstant);
    return left == right;
}

constexpr auto isSamePointee
    = [](const ExpressionPtr& left, const ExpressionPtr& right) { return isSameExpression(*left, *right); };

bool isSame(const ConstantExpression& left, const ConstantExpression& right)
{
    return isSameConstant(left.value, right.value);
}
bool isSame(const SelfExpression&, const SelfExpression&)
{
    return true;
}
bool isSame(const VariableExpression& left, const VariableExpression& right)
{
    return left.name == right.name;
}
bool isSame(const KeyPathExpression& left, const KeyPathExpression& right)
{
    return left.keys == right.keys && isSameExpression(*left.base, *right.base);
}
bool isSame(const CountExpression& left, const CountExpression& right)
{
    return isSameExpression(*left.collection, *right.collection);
}
bool isSame(const SubqueryExpression& left, const SubqueryExpression& right)
{
    return left.variable == right.variable && isSameExpression(*left.collection, *right.collection)
        && isSamePredicate(*left.predicate, *right.predicate);
}
bool isSame(const AggregateExpression& left, const AggregateExpression& right)
{
    return std::ranges::equal(left.members, right.members, isSamePointee);
}

bool isSame(const ComparisonPredicate& left, const ComparisonPredicate& right)
{
    return left.operation == right.operation && left.modifier == right.modifier && left.options == right.options
        && isSameExpression(*left.left, *right.left) && isSameExpression(*left.right, *right.right);
}
bool isSame(const CompoundPredicate& left, const CompoundPredicate& right)
{
    return left.type == right.type
        && std::ranges::equal(left.members, right.members,
            [](const PredicateNodePtr& one, const PredicateNodePtr& other) { return isSamePredicate(*one, *other); });
}
bool isSame(const NotPredicate& left, const NotPredicate& right)
{
    return isSamePredicate(*left.operand, *right.operand);
}
bool isSame(const ConstantPredicate& left, const ConstantPredicate& right)
{
    return left.value == right.value;
}

template <typename Variant> bool isSameForm(const Variant& left, const Variant& right)
{
    if (left.index() != right.index())
        return false;
    return std::visit(
        [&right](const auto& form) { return isSame(form, std::get<std::decay_t<decltype(form)>>(right)); }, left);
}

} // namespace

bool isSamePredicate(const PredicateNode& left, const PredicateNode& right)
{
    return &left == &right || isSameForm(left.form, right.form);
}

bool isSameExpression(const Expression& left, const Expression& right)
{
    return &left == &right || isSameForm(left.form, right.form);
}

} // namespace tarn
