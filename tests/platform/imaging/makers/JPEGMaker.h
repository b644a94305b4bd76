#pragma once

#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tests/platform/imaging/makers/ImageBytes.h"

namespace tarn {

struct JPEGKind {
    enum class Colours { YCbCr, Grey, RGB, CMYK, YCCK };

    Colours colours = Colours::YCbCr;
    int quality = 95;
    bool isProgressive = false;
    /// Whether colours are stored at half the size.
    bool isSubsampled = true;
    bool isArithmetic = false;
    /// EXIF's number; 0 for a file without.
    int orientation = 0;
};

ImageBytes jpegOf(const Bitmap& picture, const JPEGKind& kind = {});
/// The same with so many scans of nothing ahead of its end.
ImageBytes jpegWithScans(const Bitmap& picture, int scans);
/// Another size in the frame of the file.
ImageBytes jpegClaiming(const ImageBytes& jpeg, std::uint32_t width, std::uint32_t height);

} // namespace tarn
