#pragma once

#include "tarnmodel/platform/predicate/PredicateTree.h"

namespace tarn {

/// The same tree: operators, options, keys and constants. A truth value is the same as its number.
/// The trees are within the limit of nesting.
bool isSamePredicate(const PredicateNode& left, const PredicateNode& right);
bool isSameExpression(const Expression& left, const Expression& right);

} // namespace tarn
