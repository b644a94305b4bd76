#pragma once

#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Finds the notes with any of these as title, compared folded, or as identifier. Nothing for an empty list.
NSPredicate predicateForTitlesOrUUIDs(const std::vector<std::string>& titlesOrUUIDs);

/// Finds the notes whose identifier begins with the text, in any case. None for a text that begins no identifier, or
/// that has less than 8 characters, of which a title may consist.
std::optional<NSPredicate> predicateForBeginningOfUUID(std::string_view text);

} // namespace tarn
