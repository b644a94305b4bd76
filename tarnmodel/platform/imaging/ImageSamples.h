#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarn {

/// A picture on its way to a canvas, shrunk while it was decoded. Upright; top row first.
///
/// A sample is red, green, blue and alpha, 16 bits each, premultiplied; full is 65025, which is 255 squared, so that
/// bytes are premultiplied without rounding. A plain value; any thread. Made by `loadImageForDrawing()`, used by
/// `drawImage()`.
class ImageSamples {
public:
    /// The value of full colour and of full alpha.
    static constexpr std::uint16_t Full = 255 * 255;

    /// Where samples begin and end along a side of the picture, of which 0 is the beginning and 1 the end. What was
    /// shrunk by a whole number may reach a little beyond it.
    struct Extent {
        /// 0 or less.
        double begin = 0;
        /// 1 or more.
        double end = 1;

        friend bool operator==(const Extent&, const Extent&) = default;
    };

    /// No picture.
    ImageSamples() = default;
    /// All transparent; the extents hold 0 to 1. No picture when a side is 0 or less. Raises std::bad_alloc.
    ImageSamples(std::int32_t width, std::int32_t height, bool hasAlpha, Extent horizontal, Extent vertical);

    /// In samples.
    std::int32_t width() const noexcept { return width_; }
    std::int32_t height() const noexcept { return height_; }
    bool isEmpty() const noexcept { return values_.empty(); }
    /// Whether samples may be transparent.
    bool hasAlpha() const noexcept { return hasAlpha_; }
    /// What part of the picture the samples cover.
    Extent horizontal() const noexcept { return horizontal_; }
    Extent vertical() const noexcept { return vertical_; }

    /// `width() * 4` values, the leftmost sample first. Owned by the picture. `y` must be one of its rows.
    std::uint16_t* row(std::int32_t y) { return values_.data() + static_cast<std::size_t>(y) * valuesPerRow(); }
    const std::uint16_t* row(std::int32_t y) const
    {
        return values_.data() + static_cast<std::size_t>(y) * valuesPerRow();
    }
    std::size_t valuesPerRow() const noexcept { return static_cast<std::size_t>(width_) * 4; }

private:
    std::int32_t width_ = 0;
    std::int32_t height_ = 0;
    bool hasAlpha_ = true;
    Extent horizontal_;
    Extent vertical_;
    std::vector<std::uint16_t> values_;
};

} // namespace tarn
