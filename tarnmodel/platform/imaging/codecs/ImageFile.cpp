#include "tarnmodel/platform/imaging/ImageFile.h"

#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/imaging/codecs/HeaderReader.h"
#include "tarnmodel/platform/imaging/codecs/ImageDecoder.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"
#include "tarnmodel/platform/imaging/codecs/ImageLoading.h"
#include "tarnmodel/platform/imaging/codecs/LimitChecks.h"
#include "tarnmodel/platform/imaging/codecs/WholeImage.h"
#include "tarnmodel/platform/imaging/resampling/BoxShrink.h"
#include "tarnmodel/platform/imaging/resampling/Turning.h"

#include <new>
#include <utility>

namespace tarn {

namespace {

/// What the work answers for the file; none with an error, also when memory runs out on the way.
template <typename Work>
auto withFile(const std::filesystem::path& path, NSError* error, const Work& work)
    -> decltype(work(std::declval<ImageInput&>()))
{
    try {
        if (auto source = openFile(path, error)) {
            ImageInput input(std::move(source));
            return work(input);
        }
    } catch (const std::bad_alloc&) {
        assignError(error,
            NSError(TarnImagingErrorDomain, ImagingErrorOutOfMemory, "There is not enough memory for the image."));
    }
    return std::nullopt;
}

std::optional<ImageHeader> readHeaderWithin(ImageInput& input, const ImageLimits& limits, NSError* error)
{
    auto header = readHeader(input, error);
    if (header && !imageIsWithinLimits(*header, limits, error))
        header.reset();
    return header;
}

} // namespace

std::optional<Bitmap> loadImage(ImageInput& input, const ImageLimits& limits, NSError* error)
{
    const auto header = readHeaderWithin(input, limits, error);
    if (!header || !mayBeHeld(header->width * header->height, header->width, header->height, limits, error))
        return std::nullopt;
    WholeImage rows;
    DecodeRequest request;
    request.limits = limits;
    if (!decodeImage(input, header->format, request, rows, error))
        return std::nullopt;
    return turned(rows.takeBitmap(), header->orientation);
}

std::optional<ImageSamples> loadImageForDrawing(
    ImageInput& input, double drawnWidth, double drawnHeight, const ImageLimits& limits, NSError* error)
{
    const auto header = readHeaderWithin(input, limits, error);
    if (!header)
        return std::nullopt;
    DecodeRequest request{limits, drawnWidth, drawnHeight};
    if (header->orientation >= 5)
        std::swap(request.drawnWidth, request.drawnHeight);
    BoxShrink rows(request.drawnWidth, request.drawnHeight);
    const std::int64_t samples = rows.sampleCount(
        {static_cast<std::int32_t>(header->width), static_cast<std::int32_t>(header->height), 1, 1, false});
    if (!mayBeHeld(samples, header->width, header->height, limits, error)
        || !decodeImage(input, header->format, request, rows, error))
        return std::nullopt;
    return turned(rows.takeSamples(), header->orientation);
}

std::optional<ImageFormat> imageFormatOfFile(const std::filesystem::path& path, NSError* error)
{
    return withFile(path, error, [&](ImageInput& input) {
        const auto format = formatOf(input);
        if (!format)
            readHeader(input, error);
        return format;
    });
}

std::optional<ImageHeader> readImageHeader(const std::filesystem::path& path, NSError* error)
{
    return withFile(path, error, [&](ImageInput& input) { return readHeader(input, error); });
}

std::optional<Bitmap> loadImage(const std::filesystem::path& path, NSError* error)
{
    const ImageLimits limits = ImageLimits::current();
    return withFile(path, error, [&](ImageInput& input) { return loadImage(input, limits, error); });
}

std::optional<ImageSamples> loadImageForDrawing(
    const std::filesystem::path& path, double drawnWidth, double drawnHeight, NSError* error)
{
    const ImageLimits limits = ImageLimits::current();
    return withFile(path, error,
        [&](ImageInput& input) { return loadImageForDrawing(input, drawnWidth, drawnHeight, limits, error); });
}

} // namespace tarn
