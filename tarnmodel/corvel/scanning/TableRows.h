#pragma once

#include <cstddef>
#include <string_view>

namespace tarn::corvel {

/// How many cells bars that no backslash escapes make of a line; a bar at its start or end makes none.
std::size_t cellsInRow(std::string_view line) noexcept;

/// Whether the line is what stands below the first row of a table, `|:--|--:|`. Dashes alone are none: a heading is
/// underlined so.
bool isDelimiterRow(std::string_view line) noexcept;

} // namespace tarn::corvel
