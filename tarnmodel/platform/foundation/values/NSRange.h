#pragma once

#include <cstddef>

namespace tarn {

/// A part of a text: location and length in UTF-16 code units.
struct NSRange {
    std::size_t location = 0; ///< of the first unit
    std::size_t length = 0;   ///< in units

    /// The location behind the last unit.
    std::size_t end() const noexcept { return location + length; }
    friend bool operator==(const NSRange&, const NSRange&) = default;
};

/// The location of a range that stands for nothing.
inline constexpr std::size_t NSNotFound = static_cast<std::size_t>(-1);

} // namespace tarn
