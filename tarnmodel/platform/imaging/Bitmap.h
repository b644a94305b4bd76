#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarn {

/// Pixels in memory: red, green, blue and alpha, 8 bits each, colours premultiplied with alpha; top row first.
///
/// A plain value that is copied with its pixels; any thread. It never asks for limits: whoever makes one knows its
/// size.
///
///     Bitmap canvas(200, 100, Bitmap::Alpha::Premultiplied);
///     drawImage(photograph, canvas, 0, 0, 200, 100);
class Bitmap {
public:
    /// None: every pixel is opaque, its alpha byte is 255.
    enum class Alpha { None, Premultiplied };

    /// No image: 0 x 0 pixels.
    Bitmap() = default;
    /// All transparent, or all black where there is no alpha. No image when a side is 0 or less. Raises std::bad_alloc
    /// when there is not enough memory.
    Bitmap(std::int32_t width, std::int32_t height, Alpha alpha);

    /// In pixels.
    std::int32_t width() const noexcept { return width_; }
    std::int32_t height() const noexcept { return height_; }
    /// Whether there is no pixel.
    bool isEmpty() const noexcept { return bytes_.empty(); }
    /// Whether pixels may be transparent.
    bool hasAlpha() const noexcept { return alpha_ == Alpha::Premultiplied; }
    /// From one row to the next.
    std::size_t bytesPerRow() const noexcept { return static_cast<std::size_t>(width_) * 4; }

    /// `bytesPerRow()` bytes, the leftmost pixel first; no row lies between two others. Owned by the bitmap. `y` must
    /// be one of its rows. Whoever writes keeps each colour at or below its alpha.
    std::uint8_t* row(std::int32_t y) { return bytes_.data() + static_cast<std::size_t>(y) * bytesPerRow(); }
    const std::uint8_t* row(std::int32_t y) const
    {
        return bytes_.data() + static_cast<std::size_t>(y) * bytesPerRow();
    }

    /// A copy of this part, clipped to the bounds; no image when nothing is left. Raises std::bad_alloc.
    Bitmap cropped(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height) const;

    friend bool operator==(const Bitmap&, const Bitmap&) = default;

private:
    std::int32_t width_ = 0;
    std::int32_t height_ = 0;
    Alpha alpha_ = Alpha::Premultiplied;
    std::vector<std::uint8_t> bytes_;
};

} // namespace tarn
