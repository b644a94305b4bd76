#pragma once

#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tarnmodel/platform/imaging/ImageSamples.h"

#include <optional>

namespace tarn {

class ImageInput;
class NSError;
struct ImageLimits;

// What `loadImage()` and `loadImageForDrawing()` do, from bytes wherever they lie.

std::optional<Bitmap> loadImage(ImageInput& input, const ImageLimits& limits, NSError* error);
std::optional<ImageSamples> loadImageForDrawing(
    ImageInput& input, double drawnWidth, double drawnHeight, const ImageLimits& limits, NSError* error);

} // namespace tarn
