#pragma once

#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/values/Value.h"

#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace tarn {

struct Expression;
struct PredicateNode;
/// A shared expression; never null.
using ExpressionPtr = std::shared_ptr<const Expression>;
/// A shared node; never null.
using PredicateNodePtr = std::shared_ptr<const PredicateNode>;

// Expressions ---------------------------------------------------------------------------------------------------------

/// A literal, an argument that filled a slot (a record or a collection too), or a folded `CAST`.
struct ConstantExpression {
    Value value; ///< nil for `NIL` and `NULL`
};
/// `SELF`, the object that the predicate is evaluated with.
struct SelfExpression { };
/// `$note`, bound by the SUBQUERY around it.
struct VariableExpression {
    std::string name; ///< without the "$"
};
/// `a.b.c` read from `base` (SELF where nothing stands before the first key). Over a to-many key it gives an array.
struct KeyPathExpression {
    ExpressionPtr base;            ///< SelfExpression or VariableExpression
    std::vector<std::string> keys; ///< at least one
};
/// `X.@count`: the number of members of a collection; 0 for nil.
struct CountExpression {
    ExpressionPtr collection; ///< KeyPathExpression, SubqueryExpression, or a constant array
};
/// `SUBQUERY(collection, $variable, predicate)`: the members for which the predicate holds.
struct SubqueryExpression {
    ExpressionPtr collection;   ///< what is gone through
    std::string variable;       ///< without the "$"
    PredicateNodePtr predicate; ///< over the variable
};
/// `{a, b, c}`.
struct AggregateExpression {
    std::vector<ExpressionPtr> members; ///< in order
};

/// One operand of a comparison.
struct Expression {
    /// Which kind of operand it is.
    std::variant<ConstantExpression, SelfExpression, VariableExpression, KeyPathExpression, CountExpression,
        SubqueryExpression, AggregateExpression>
        form;
};

// Predicates ----------------------------------------------------------------------------------------------------------

/// What a comparison asks.
enum class ComparisonOperator : std::uint8_t {
    EqualTo,
    NotEqualTo,
    LessThan,
    LessThanOrEqualTo,
    GreaterThan,
    GreaterThanOrEqualTo,
    Contains, ///< of a string: a part of it; of a collection: a member
    BeginsWith,
    EndsWith,
    Like,    ///< `?` one code point, `*` any number; `\` escapes; the whole text
    Matches, ///< an ICU regular expression that matches the whole text
    In,      ///< left is a member of the right collection, or a part of the right string
    Between, ///< right is a collection of two bounds, both included
};
/// How a to-many left side is looked at. ANY over nothing is false, ALL and NONE are true.
enum class ComparisonModifier : std::uint8_t { Direct, Any, All, None };

/// `left operation right`: true or false, also where a side is nil.
struct ComparisonPredicate {
    ExpressionPtr left;                                         ///< what is looked at
    ExpressionPtr right;                                        ///< what it is compared with
    ComparisonOperator operation = ComparisonOperator::EqualTo; ///< what is asked
    ComparisonModifier modifier = ComparisonModifier::Direct;   ///< over a collection on the left
    ComparisonOptions options;                                  ///< for strings
};
/// How operands are joined.
enum class CompoundType : std::uint8_t { And, Or };
/// AND and OR are n-ary (nested ones of one kind are joined by the parser); no members: true for AND, false for OR.
struct CompoundPredicate {
    CompoundType type = CompoundType::And; ///< how they are joined
    std::vector<PredicateNodePtr> members; ///< in order
};
/// True where its operand is false.
struct NotPredicate {
    PredicateNodePtr operand; ///< what is negated
};
/// `TRUEPREDICATE` or `FALSEPREDICATE`.
struct ConstantPredicate {
    bool value = true; ///< which of them
};

/// A node of a predicate. Nodes are immutable and shared; walk siblings in a loop, nesting is at most
/// `maximumPredicateDepth`.
struct PredicateNode {
    /// Which kind of node it is.
    std::variant<ComparisonPredicate, CompoundPredicate, NotPredicate, ConstantPredicate> form;
};

/// Deeper nesting (of parentheses, NOT, SUBQUERY) is refused by the parser with an NSException.
inline constexpr int maximumPredicateDepth = 500;

/// For `std::visit`: one lambda for each alternative.
template <typename... Lambdas> struct Overloaded : Lambdas... {
    using Lambdas::operator()...;
};
template <typename... Lambdas> Overloaded(Lambdas...) -> Overloaded<Lambdas...>;

} // namespace tarn
