#include "tarnmodel/platform/imaging/codecs/WholeImage.h"

#include <algorithm>
#include <utility>

namespace tarn {

void WholeImage::begin(const RowLayout& layout)
{
    bitmap_ = Bitmap(layout.width, layout.height, layout.hasAlpha ? Bitmap::Alpha::Premultiplied : Bitmap::Alpha::None);
    nextRow_ = 0;
}

void WholeImage::addRow(const std::uint8_t* pixels)
{
    if (nextRow_ == bitmap_.height())
        return;
    std::uint8_t* target = bitmap_.row(nextRow_++);
    if (!bitmap_.hasAlpha()) {
        std::copy_n(pixels, bitmap_.bytesPerRow(), target);
        return;
    }
    for (std::uint8_t* const end = target + bitmap_.bytesPerRow(); target != end; target += 4, pixels += 4) {
        const unsigned alpha = pixels[3];
        for (int channel = 0; channel < 3; ++channel)
            target[channel] = static_cast<std::uint8_t>((pixels[channel] * alpha + 127) / 255);
        target[3] = pixels[3];
    }
}

Bitmap WholeImage::takeBitmap()
{
    return std::exchange(bitmap_, {});
}

} // namespace tarn
