#pragma once

#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tarnmodel/platform/imaging/ImageSamples.h"

namespace tarn {

/// The picture as it is meant to be seen, by EXIF's number of how it is stored, 1 to 8; 1 and any other number leave it
/// as it is. Raises std::bad_alloc.
Bitmap turned(Bitmap stored, int orientation);
ImageSamples turned(ImageSamples stored, int orientation);

} // namespace tarn
