#pragma once

#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <string>
#include <vector>

namespace tarn {

/// Finds the notes with any of these as title, compared folded, or as identifier. Nothing for an empty list.
NSPredicate predicateForTitlesOrUUIDs(const std::vector<std::string>& titlesOrUUIDs);

} // namespace tarn
