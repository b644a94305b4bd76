#include "tarnmodel/platform/imaging/codecs/LimitChecks.h"

#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/imaging/ImageFile.h"
#include "tarnmodel/platform/imaging/ImageLimits.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>

namespace tarn {

namespace {

bool refuse(NSError* error, const std::string& text)
{
    assignError(error, NSError(TarnImagingErrorDomain, ImagingErrorTooLarge, text));
    return false;
}

} // namespace

bool isWithinLimits(std::int64_t width, std::int64_t height, const ImageLimits& limits, NSError* error)
{
    if (std::max(width, height) > limits.side)
        return refuse(error,
            fmt::format(
                "The image has {} x {} pixels; at most {} a side are decoded (side).", width, height, limits.side));
    // Divided, since the product may be more than a number holds.
    if (height > 0 && width > limits.pixels / height)
        return refuse(error,
            fmt::format(
                "The image has {} x {} pixels; at most {} are decoded (pixels).", width, height, limits.pixels));
    return true;
}

bool mayBeHeld(std::int64_t pixels, std::int64_t width, std::int64_t height, const ImageLimits& limits, NSError* error)
{
    if (pixels <= limits.bufferedPixels)
        return true;
    return refuse(error,
        fmt::format("The image has {} x {} pixels; at most {} are held in memory (bufferedPixels).", width, height,
            limits.bufferedPixels));
}

bool mayBeReadWhole(std::uint64_t bytes, const ImageLimits& limits, NSError* error)
{
    if (bytes <= static_cast<std::uint64_t>(std::max<std::int64_t>(0, limits.heldFileBytes)))
        return true;
    return refuse(error,
        fmt::format(
            "The file has {} bytes; of its format, at most {} are read (heldFileBytes).", bytes, limits.heldFileBytes));
}

bool imageIsWithinLimits(const ImageHeader& header, const ImageLimits& limits, NSError* error)
{
    return isWithinLimits(header.width, header.height, limits, error);
}

} // namespace tarn
