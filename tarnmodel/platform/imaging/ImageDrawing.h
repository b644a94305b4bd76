#pragma once

namespace tarn {

class Bitmap;
class ImageSamples;

/// How a picture is drawn.
struct DrawingOptions {
    /// None: the nearest pixel. Low: between the two nearest, or the average of all that a pixel covers. High: Lanczos'
    /// filter of three lobes.
    enum class Interpolation { None, Low, High };

    /// Whether an edge that falls within pixels covers them in part. Otherwise edges move to the nearest border of
    /// pixels, and the picture is one pixel wide and high at least.
    bool antialias = true;
    /// Of the whole picture, 0 (nothing is drawn) to 1.
    double alpha = 1;
    Interpolation interpolation = Interpolation::High;
};

/// Draws the whole picture into this rectangle of the canvas, over what is there; what falls outside is left out.
/// Coordinates are pixels of the canvas, from its top left corner, y downward, fractions allowed.
/// Nothing is drawn when the picture is empty, a side is 0 or less, or a number is not finite. Raises std::bad_alloc.
/// The cost follows the picture's samples; memory beside picture and canvas follows their width.
void drawImage(const ImageSamples& picture, Bitmap& canvas, double x, double y, double width, double height,
    const DrawingOptions& options = {});
/// The same for a bitmap, which must not be the canvas. Where it is drawn at a sixth of its size or less,
/// neighbouring pixels are averaged first, as `loadImageForDrawing()` does.
void drawImage(const Bitmap& picture, Bitmap& canvas, double x, double y, double width, double height,
    const DrawingOptions& options = {});

} // namespace tarn
