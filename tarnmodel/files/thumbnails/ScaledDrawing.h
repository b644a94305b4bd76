#pragma once

#include <cstdint>
#include <optional>

namespace tarn {

/// The size of a picture or a canvas, in whole pixels.
struct PixelSize {
    std::int64_t width = 0;  ///< positive where there is a picture
    std::int64_t height = 0; ///< likewise

    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

/// A length without its fraction, at most 2^31 - 1 and at least -2^31; 0 for what is not a number.
std::int64_t wholePixels(double length) noexcept;

/// How a picture comes into the size that was asked for. With neither `contain` nor `cover` the canvas is as large as
/// the picture comes out; with one of them it has the size that was asked for.
struct ImageFitting {
    bool preserveRatio = false; ///< the picture becomes as large as fits and keeps its ratio; otherwise it is stretched
    bool contain = false;       ///< the picture keeps its ratio, and lies on the canvas as large as fits
    bool cover = false;         ///< the picture keeps its ratio and fills the canvas, which cuts off the rest
    double xAlignment = 0;      ///< where it lies on the canvas: 0 at the left, 0.5 in the middle, 1 at the right
    double yAlignment = 0;      ///< the same from the bottom, 0, to the top, 1

    friend bool operator==(const ImageFitting&, const ImageFitting&) = default;
};

/// Where a picture is drawn on which canvas, in pixels. The origin of the canvas is its lower left corner, and y grows
/// upward; what is drawn may be larger than the canvas.
struct ScaledDrawing {
    PixelSize canvas;  ///< how large it is
    double x = 0;      ///< the left edge of the picture
    double y = 0;      ///< its lower edge
    double width = 0;  ///< of the picture as it is drawn
    double height = 0; ///< likewise
    /// The picture has the size that was asked for: it stays as it is, pixel by pixel.
    bool isCopy = false;

    /// The upper edge of the picture below the upper edge of the canvas, for drawing with the origin at the top.
    double top() const noexcept { return static_cast<double>(canvas.height) - y - height; }

    friend bool operator==(const ScaledDrawing&, const ScaledDrawing&) = default;
};

/// How a picture of one size is drawn when another size is asked for. A canvas that follows the picture loses fractions
/// of a pixel: 1000 x 333 fitted into 100 x 100 becomes 100 x 33, with the picture 33.3 pixels high squeezed into it.
/// None when a size is not positive, a side of the canvas is less than a pixel, a side that is given or comes out is
/// above 2^31 - 1, or an alignment that counts is not finite.
std::optional<ScaledDrawing> scaledDrawing(PixelSize picture, PixelSize asked, const ImageFitting& fitting);

} // namespace tarn
