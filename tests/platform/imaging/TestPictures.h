#pragma once

#include "tarnmodel/platform/imaging/Bitmap.h"

#include <cstdint>

namespace tarn {

/// Soft shapes in octaves and some hard edges: opaque, different on each side, always the same.
Bitmap aPhotograph(std::int32_t width, std::int32_t height);
/// A white disc that fills the picture, with an edge of one pixel, on transparent.
Bitmap aWhiteDisc(std::int32_t side);
/// Colours that all are what their place says, alpha from 0 at the left to 255 at the right.
Bitmap aFadingPicture(std::int32_t width, std::int32_t height);
/// One colour, premultiplied.
Bitmap aPlainPicture(std::int32_t width, std::int32_t height, std::uint8_t red, std::uint8_t green, std::uint8_t blue,
    std::uint8_t alpha = 255);

/// The largest and the mean difference of their channels; 255 when their sizes differ.
struct Difference {
    int most = 255;
    double mean = 255;
};
Difference differenceOf(const Bitmap& one, const Bitmap& other);

} // namespace tarn
