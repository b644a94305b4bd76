#pragma once

#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A choice of notes that `tarn list --filter` knows.
struct NoteFilter {
    std::string_view name;
    std::string_view format; ///< a predicate over notes; "" for all
};

/// The predicate of the filter with this name; the filter must exist. None for all notes.
std::optional<NSPredicate> predicateOfFilter(std::string_view name);
/// In the order in which people are told of them.
std::vector<std::string> namesOfFilters();

/// Both, where there are both.
std::optional<NSPredicate> conjunction(const std::optional<NSPredicate>& left, const std::optional<NSPredicate>& right);

} // namespace tarn
