#pragma once

#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <vector>

namespace tarn {

/// The members of an AND or OR, with comparisons of one key path gathered into one list each:
///
/// - in an OR: `a == 1 OR a == 2` and `ANY b.c ==[cd] "x" OR ANY b.c ==[cd] "y"` become IN with these options
/// - in an AND: `a != 1 AND a != 2` becomes NOT IN, `NONE b.c == 1 AND NONE b.c == 2` becomes NONE IN
///
/// Means the same; a chain of a thousand comparisons would go beyond SQLite's depth.
std::vector<PredicateNodePtr> groupedMembers(const CompoundPredicate& compound);

} // namespace tarn
