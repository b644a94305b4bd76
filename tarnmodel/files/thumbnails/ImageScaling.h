#pragma once

#include "tarnmodel/files/thumbnails/ScaledDrawing.h"
#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tarnmodel/platform/imaging/ImageDrawing.h"

#include <cstdint>

namespace tarn {

/// The most pixels that a canvas may have: those that `ImageLimits::current()` lets be in memory at once.
std::int64_t mostPixelsOfCanvas();
/// An empty canvas for this drawing, transparent. No image when it has more pixels than that, or a longer side than the
/// limits allow; nothing is allocated then.
Bitmap canvasForDrawing(const ScaledDrawing& drawing);

/// The image in the size that was asked for, or within it, as `scaledDrawing` places it. An image of this very size is
/// copied, whatever the options say. The result has alpha, and the colours of the image: all bitmaps are of one colour
/// space. No image on failure: there is no image, no such drawing, or no canvas for it. Any thread.
Bitmap ovCreateScaledCGImageFromCGImage(
    const Bitmap& image, PixelSize asked, const ImageFitting& fitting, const DrawingOptions& drawing = {});

/// The image itself. Images are upright as soon as they are loaded; what else may be wrong with how one lies would be
/// mended here.
Bitmap fixOrientation(Bitmap image);

} // namespace tarn
