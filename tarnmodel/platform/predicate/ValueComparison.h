#pragma once

#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/values/Value.h"

#include <compare>

namespace tarn {

/// Equality as predicates see it. nil equals nil; truth values and numbers compare as numbers, exactly; strings as the
/// options fold them; objects by identity; collections as sets: each member of one is in the other, order and
/// repetition do not count. Values of different kinds are unequal, and so is what is not a number to everything.
bool areEqualValues(const Value& left, const Value& right, ComparisonOptions options);

/// Order of numbers, of strings by code points after folding, of dates and of data by bytes; unordered for everything
/// else, nil included.
std::partial_ordering compareValues(const Value& left, const Value& right, ComparisonOptions options);

} // namespace tarn
