#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace tarn {

class ImageInput;

/// What stands ahead of the pixels of a BMP file.
struct BMPLayout {
    std::int64_t width = 0;
    std::int64_t height = 0;
    /// Most files begin with their lowest row.
    bool isTopDown = false;
    /// Of one pixel: 1, 4, 8, 16, 24 or 32.
    std::uint32_t bits = 0;
    /// Which bits of a pixel of 16 or 32 bits are red, green, blue and alpha; no alpha has none.
    std::array<std::uint32_t, 4> masks{};
    /// Red, green, blue and alpha, for pixels of 8 bits or fewer.
    std::vector<std::array<std::uint8_t, 4>> palette;
    /// Where the first row begins, and how far it is to the next.
    std::uint64_t rowsBegin = 0;
    std::uint64_t bytesPerRow = 0;

    bool hasAlpha() const { return masks[3] != 0; }
    /// Whether all rows lie within a file of this size.
    bool fitsInto(std::uint64_t fileSize) const;
};

/// None when the file is not as it should be, or its rows are compressed.
std::optional<BMPLayout> readBMPLayout(ImageInput& input);

} // namespace tarn
