#pragma once

#include "tests/platform/imaging/makers/ImageBytes.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tarn {

/// What a BMP file says of itself, and its rows as they are stored, top row first.
struct BMPKind {
    std::int32_t width = 0;
    /// Negative: the rows are stored from the top.
    std::int32_t height = 0;
    std::uint32_t bits = 24;
    std::uint32_t compression = 0;
    std::uint32_t headerSize = 40; ///< 12, 40, 56, 108 or 124
    std::vector<std::uint32_t> masks = {};
    /// Blue, green, red.
    std::vector<std::array<std::uint8_t, 3>> palette = {};
    std::vector<ImageBytes> rows = {};
};

ImageBytes bmpOf(const BMPKind& kind);

} // namespace tarn
