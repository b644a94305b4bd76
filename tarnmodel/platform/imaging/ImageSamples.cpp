#include "tarnmodel/platform/imaging/ImageSamples.h"

namespace tarn {

ImageSamples::ImageSamples(std::int32_t width, std::int32_t height, bool hasAlpha, Extent horizontal, Extent vertical)
    : hasAlpha_(hasAlpha), horizontal_(horizontal), vertical_(vertical)
{
    if (width <= 0 || height <= 0)
        return;
    values_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4);
    width_ = width;
    height_ = height;
}

} // namespace tarn
