#include "tarnmodel/files/thumbnails/ImageScaling.h"

#include "tarnmodel/platform/imaging/ImageLimits.h"

#include <algorithm>
#include <cstdint>

namespace tarn {

std::int64_t mostPixelsOfCanvas()
{
    const ImageLimits limits = ImageLimits::current();
    return std::min(limits.pixels, limits.bufferedPixels);
}

Bitmap canvasForDrawing(const ScaledDrawing& drawing)
{
    const auto [width, height] = drawing.canvas;
    const std::int32_t longest = ImageLimits::current().side;
    if (width > longest || height > longest || width * height > mostPixelsOfCanvas())
        return {};
    return Bitmap(static_cast<std::int32_t>(width), static_cast<std::int32_t>(height), Bitmap::Alpha::Premultiplied);
}

Bitmap ovCreateScaledCGImageFromCGImage(
    const Bitmap& image, PixelSize asked, const ImageFitting& fitting, const DrawingOptions& drawing)
{
    const auto scaled = scaledDrawing({image.width(), image.height()}, asked, fitting);
    if (!scaled)
        return {};
    if (scaled->isCopy)
        return image;
    Bitmap canvas = canvasForDrawing(*scaled);
    if (!canvas.isEmpty())
        drawImage(image, canvas, scaled->x, scaled->top(), scaled->width, scaled->height, drawing);
    return canvas;
}

Bitmap fixOrientation(Bitmap image)
{
    return image;
}

} // namespace tarn
