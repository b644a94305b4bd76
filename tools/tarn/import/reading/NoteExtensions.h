#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tarn {

/// Endings of the files that become notes, in any case.
inline constexpr std::array<std::string_view, 3> kNoteExtensions{".md", ".markdown", ".txt"};

/// How long such an ending is; 0 for other files, and where nothing stands before it.
std::size_t lengthOfNoteExtension(std::string_view path) noexcept;

} // namespace tarn
