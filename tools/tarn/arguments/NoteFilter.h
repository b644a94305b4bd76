#pragma once

#include "tarnmodel/notes/NoteFilter.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The predicate of the filter that `tarn list --filter` calls so; there must be one. None for all notes.
std::optional<NSPredicate> predicateOfFilter(std::string_view name);
/// In the order in which people are told of them.
std::vector<std::string> namesOfFilters();

/// Both, where there are both.
std::optional<NSPredicate> conjunction(const std::optional<NSPredicate>& left, const std::optional<NSPredicate>& right);

} // namespace tarn
