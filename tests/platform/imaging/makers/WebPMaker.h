#pragma once

#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tests/platform/imaging/makers/ImageBytes.h"

#include <vector>

namespace tarn {

/// Colours apart from alpha in the file. Quality 0 to 100; without loss when it is above.
ImageBytes webPOf(const Bitmap& picture, float quality = 101);
/// The same with EXIF behind the pixels.
ImageBytes webPTurned(const Bitmap& picture, int orientation);

struct WebPFrame {
    std::uint32_t left = 0; ///< even
    std::uint32_t top = 0;  ///< even
    Bitmap picture;
};
ImageBytes webPAnimation(std::uint32_t width, std::uint32_t height, const std::vector<WebPFrame>& frames);

} // namespace tarn
