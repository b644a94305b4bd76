#pragma once

#include "tarnmodel/platform/predicate/PredicateTree.h"

namespace tarn {

/// Raises an `NSInvalidArgumentException` when the canonical form of the tree nests deeper than
/// `maximumPredicateDepth`. After it, whatever walks the tree may recurse.
void requireNestingWithinLimit(const PredicateNode& node);

/// What stands for the node in the canonical form: an AND or OR of one member is that member.
const PredicateNode& withoutLoneCompounds(const PredicateNode& node);
/// Whether the node is written in parentheses within another one: AND and OR of two members or more.
bool isParenthesised(const PredicateNode& node);

} // namespace tarn
