#pragma once

#include "fuzz/search/Require.h"
#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tarnmodel/platform/imaging/ImageFile.h"
#include "tarnmodel/platform/imaging/ImageLimits.h"
#include "tarnmodel/platform/imaging/codecs/HeaderReader.h"
#include "tarnmodel/platform/imaging/codecs/ImageDecoder.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"
#include "tarnmodel/platform/imaging/codecs/WholeImage.h"
#include "tarnmodel/platform/imaging/resampling/BoxShrink.h"

#include <algorithm>
#include <span>

namespace tarn {

/// So that most of the time goes into files and not into pixels.
inline ImageLimits fuzzLimits()
{
    ImageLimits limits;
    limits.pixels = limits.bufferedPixels = 200'000;
    limits.scansOfAJPEG = 20;
    return limits;
}

inline void requireSoundPixels(const Bitmap& bitmap)
{
    for (std::int32_t y = 0; y < bitmap.height(); ++y)
        for (const std::uint8_t* pixel = bitmap.row(y); pixel != bitmap.row(y) + bitmap.bytesPerRow(); pixel += 4) {
            require(std::max({pixel[0], pixel[1], pixel[2]}) <= pixel[3]);
            require(bitmap.hasAlpha() || pixel[3] == 255);
        }
}

/// Bytes decoded as this format, whatever they begin with: whole and for drawing come to the same answer.
inline void fuzzImage(std::span<const std::uint8_t> bytes, ImageFormat format,
    std::optional<ImageHeader> (*readFormatHeader)(ImageInput& input))
{
    ImageInput input(sourceOfBytes(bytes));
    const auto header = readFormatHeader(input);
    if (header)
        require(header->width > 0 && header->height > 0 && header->orientation >= 1 && header->orientation <= 8);

    DecodeRequest request;
    request.limits = fuzzLimits();
    WholeImage whole;
    const bool isWhole = decodeImage(input, format, request, whole, nullptr);
    if (isWhole)
        requireSoundPixels(whole.takeBitmap());
    request.drawnWidth = 9;
    request.drawnHeight = 5;
    BoxShrink shrink(request.drawnWidth, request.drawnHeight);
    require(decodeImage(input, format, request, shrink, nullptr) == isWhole);
}

} // namespace tarn
