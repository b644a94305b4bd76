#pragma once

#include "tarnmodel/platform/imaging/Bitmap.h"

namespace tarn {

/// What a picture should look like on an empty canvas: for each pixel the sum over the whole picture of Lanczos'
/// filter, in double precision, without a shrink before. Slow and plain, and no code in common with what it is compared
/// to.
Bitmap drawnByReference(const Bitmap& picture, std::int32_t canvasWidth, std::int32_t canvasHeight, double x, double y,
    double width, double height);

} // namespace tarn
