#pragma once

#include "tarnmodel/platform/imaging/Bitmap.h"

namespace tarn {

/// A part of a picture, in pixels from its upper left corner; y grows downward.
struct CropFrame {
    double x = 0;      ///< the left edge
    double y = 0;      ///< the upper edge
    double width = 0;  ///< 0 where no pixel is left
    double height = 0; ///< likewise

    friend bool operator==(const CropFrame&, const CropFrame&) = default;
};

/// Finds and cuts away the transparent border of a picture. Any thread.
///
/// A picture without an alpha channel has no such border and stays whole. What has no pixel left is an empty bitmap.
///
///     const Bitmap drawing = OVImageAlphaTrimmer::imageByTrimmingTransparentPixels(picture);
class OVImageAlphaTrimmer {
public:
    /// The picture without the rows and columns at its edges that are fully transparent.
    static Bitmap imageByTrimmingTransparentPixels(const Bitmap& image);
    /// The picture without the rows at its top and bottom that are fully transparent.
    static Bitmap imageByTrimmingTopBottomTransparentPixels(const Bitmap& image);
    /// The same with some rows kept: `horizontalMargin` of them above and below the content, as far as there are any.
    /// A part of a row counts as a row; a negative margin cuts into the content. A fully transparent picture is a strip
    /// of that many rows from its top.
    static Bitmap imageByTrimmingTopBottomTransparentPixels(const Bitmap& image, double horizontalMargin);

    /// The smallest frame around all pixels that are not fully transparent or, where full opacity is required, around
    /// those that are fully opaque. All zero when there are none.
    static CropFrame cropFrameRequiringFullOpacity(bool fullOpacity, const Bitmap& image);
    /// The rows of that frame in the full width of the picture.
    static CropFrame topBottomCropFrameRequiringFullOpacity(bool fullOpacity, const Bitmap& image);
};

} // namespace tarn
