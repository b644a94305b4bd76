#pragma once

#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <string>

namespace tarn {

/// Writes trees in the canonical form: `==` for equality, 1 and 0 for truth values, options in lower case, blanks
/// around operators, strings in double quotes, parentheses around every AND and OR within another one or under a NOT.
class PredicatePrinter {
public:
    /// Appends to `result`, which it borrows. The tree is within the limit of nesting.
    explicit PredicatePrinter(std::string& result);

    void print(const PredicateNode& node);
    void print(const Expression& expression);

private:
    void print(const ComparisonPredicate& comparison);
    void print(const CompoundPredicate& compound);
    void print(const KeyPathExpression& path);
    void print(const SubqueryExpression& subquery);
    void print(const AggregateExpression& aggregate);
    void printNested(const PredicateNode& node);

    std::string& result_;
};

} // namespace tarn
