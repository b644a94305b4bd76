#pragma once

#include "tarnmodel/platform/predicate/PredicateTree.h"
#include "tarnmodel/platform/predicate/StringTest.h"

#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <variant>
#include <vector>

namespace tarn {

// A predicate made ready to be evaluated many times: variables resolved to places, string tests and lists made once.

struct PreparedPredicate;
struct PreparedExpression;
using PreparedExpressionPtr = std::unique_ptr<PreparedExpression>;

/// What an expression is read against: the object, and the members that the SUBQUERYs around are looking at.
struct EvaluationScope {
    Value root;
    std::vector<Value> variables; ///< by place, outermost SUBQUERY first
};

struct PreparedConstant {
    Value value;
};
/// SELF (without a place) or a variable.
struct PreparedBase {
    std::optional<std::size_t> variable;
};
struct PreparedKeyPath {
    PreparedBase base;
    std::vector<std::string> keys;
};
struct PreparedCount {
    PreparedExpressionPtr collection;
};
struct PreparedSubquery {
    PreparedExpressionPtr collection;
    std::size_t variable = 0;
    std::unique_ptr<PreparedPredicate> predicate;
};
struct PreparedAggregate {
    std::vector<PreparedExpression> members;
};

struct PreparedExpression {
    std::variant<PreparedConstant, PreparedBase, PreparedKeyPath, PreparedCount, PreparedSubquery, PreparedAggregate>
        form;
};

struct PreparedComparison {
    PreparedExpression left;
    PreparedExpression right;
    ComparisonOperator operation = ComparisonOperator::EqualTo;
    ComparisonModifier modifier = ComparisonModifier::Direct;
    ComparisonOptions options;
    /// Where the needle is a constant string: the right side, but the left one of IN.
    std::optional<StringTest> stringTest;
    /// Where the right side of IN is a constant list of nothing but strings: they, folded.
    std::optional<std::unordered_set<std::string>> listedStrings;
};
struct PreparedCompound {
    CompoundType type = CompoundType::And;
    std::vector<PreparedPredicate> members;
};
struct PreparedNegation {
    std::unique_ptr<PreparedPredicate> operand;
};
struct PreparedTruth {
    bool value = true;
};

struct PreparedPredicate {
    std::variant<PreparedTruth, PreparedComparison, PreparedCompound, PreparedNegation> form;
};

/// Raises `NSInvalidArgumentException` for a variable that no SUBQUERY binds, and for a MATCHES pattern that is no
/// regular expression. The tree is within the limit of nesting. `variableCount` becomes the places that a scope needs.
PreparedPredicate preparedPredicate(const PredicateNode& node, std::size_t& variableCount);

bool evaluatePrepared(const PreparedPredicate& predicate, EvaluationScope& scope);

} // namespace tarn
