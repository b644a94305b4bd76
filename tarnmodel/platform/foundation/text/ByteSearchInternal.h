#pragma once

#include <cstddef>
#include <string_view>

namespace tarn {

// For needles of 2 to `kLongestShortNeedle` bytes: each place is passed where the first or the last byte differs, many
// at a time; what is left is compared, which costs little for so few bytes. For longer needles memmem() steps wider.

inline constexpr std::size_t kLongestShortNeedle = 16;

using ContainsShort = bool (*)(std::string_view bytes, std::string_view needle) noexcept;

bool containsShortScalar(std::string_view bytes, std::string_view needle) noexcept;
#if defined(__x86_64__)
bool containsShortSSE2(std::string_view bytes, std::string_view needle) noexcept;
/// Only where the processor has AVX2.
bool containsShortAVX2(std::string_view bytes, std::string_view needle) noexcept;
#endif

} // namespace tarn
