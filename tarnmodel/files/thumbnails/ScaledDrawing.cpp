#include "tarnmodel/files/thumbnails/ScaledDrawing.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarn {

namespace {

/// Products of two such sides fit into 64 bits.
constexpr std::int64_t kLongestSide = std::numeric_limits<std::int32_t>::max();

bool isDrawable(PixelSize size)
{
    return size.width > 0 && size.height > 0 && size.width <= kLongestSide && size.height <= kLongestSide;
}

/// A length times a ratio of two lengths. The product is exact, so that a side that comes out whole is whole.
struct ScaledLength {
    std::int64_t product;
    std::int64_t divisor;

    double value() const { return static_cast<double>(product) / static_cast<double>(divisor); }
    std::int64_t wholePixels() const { return product / divisor; }
};

struct ScaledSize {
    ScaledLength width;
    ScaledLength height;
};

/// The picture with its ratio kept, as wide or as high as was asked for.
ScaledSize scaledSize(PixelSize picture, PixelSize asked, bool byWidth)
{
    if (byWidth)
        return {{asked.width, 1}, {asked.width * picture.height, picture.width}};
    return {{asked.height * picture.width, picture.height}, {asked.height, 1}};
}

} // namespace

std::int64_t wholePixels(double length) noexcept
{
    if (std::isnan(length))
        return 0;
    constexpr double kLeast = std::numeric_limits<std::int32_t>::min();
    return static_cast<std::int64_t>(std::clamp(length, kLeast, static_cast<double>(kLongestSide)));
}

std::optional<ScaledDrawing> scaledDrawing(PixelSize picture, PixelSize asked, const ImageFitting& fitting)
{
    if (!isDrawable(picture) || !isDrawable(asked))
        return std::nullopt;
    if (picture == asked)
        return ScaledDrawing{.canvas = asked,
            .width = static_cast<double>(asked.width),
            .height = static_cast<double>(asked.height),
            .isCopy = true};

    const bool isWider = picture.width * asked.height > asked.width * picture.height;
    ScaledSize drawn = {{asked.width, 1}, {asked.height, 1}};
    if (fitting.preserveRatio || fitting.contain || fitting.cover)
        drawn = scaledSize(picture, asked, isWider != fitting.cover);

    if (!fitting.contain && !fitting.cover) {
        const PixelSize canvas = {drawn.width.wholePixels(), drawn.height.wholePixels()};
        if (!isDrawable(canvas))
            return std::nullopt;
        return ScaledDrawing{
            .canvas = canvas, .width = static_cast<double>(canvas.width), .height = static_cast<double>(canvas.height)};
    }
    ScaledDrawing drawing = {.canvas = asked, .width = drawn.width.value(), .height = drawn.height.value()};
    drawing.x = (static_cast<double>(asked.width) - drawing.width) * fitting.xAlignment;
    drawing.y = (static_cast<double>(asked.height) - drawing.height) * fitting.yAlignment;
    if (!std::isfinite(drawing.x) || !std::isfinite(drawing.y))
        return std::nullopt;
    return drawing;
}

} // namespace tarn
