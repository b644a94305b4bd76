#pragma once

#include <cstddef>

namespace tarn {

/// A half-open range of bytes of a document's text.
struct CVKRange {
    std::size_t location = 0; ///< of the first byte
    std::size_t length = 0;   ///< in bytes
    /// Of the byte after it.
    std::size_t end() const noexcept { return location + length; }
    friend bool operator==(const CVKRange&, const CVKRange&) = default;
};

} // namespace tarn
