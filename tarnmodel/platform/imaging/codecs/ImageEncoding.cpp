#include "tarnmodel/platform/imaging/ImageEncoding.h"

#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tarnmodel/platform/imaging/ImageFile.h"
#include "tarnmodel/platform/imaging/codecs/ByteSource.h"
#include "tarnmodel/platform/imaging/codecs/JPEGWriterInternal.h"
#include "tarnmodel/platform/imaging/codecs/PNGWriterInternal.h"

#include <fmt/format.h>

#include <algorithm>
#include <new>
#include <string_view>
#include <vector>

namespace tarn {

namespace {

bool failToWrite(NSError* error, std::string_view detail)
{
    assignError(error,
        NSError(TarnImagingErrorDomain, ImagingErrorCannotWrite, fmt::format("Cannot write the image: {}.", detail)));
    return false;
}

/// As PNG has pixels: colours apart from alpha, or none of it at all.
void convertRow(const Bitmap& bitmap, std::int32_t y, std::vector<std::uint8_t>& row)
{
    const std::uint8_t* pixel = bitmap.row(y);
    row.clear();
    for (std::int32_t x = 0; x < bitmap.width(); ++x, pixel += 4) {
        const unsigned alpha = pixel[3];
        for (int channel = 0; channel < 3; ++channel) {
            const unsigned value = alpha == 0 ? 0 : (pixel[channel] * 255U + alpha / 2) / alpha;
            row.push_back(static_cast<std::uint8_t>(bitmap.hasAlpha() ? std::min(value, 255U) : pixel[channel]));
        }
        if (bitmap.hasAlpha())
            row.push_back(pixel[3]);
    }
}

bool encodePNG(const Bitmap& bitmap, const std::filesystem::path& path, NSError* error)
{
    PNGWriter writer;
    std::vector<std::uint8_t> row;
    bool isWritten = writer.begin(bitmap.width(), bitmap.height(), bitmap.hasAlpha());
    for (std::int32_t y = 0; y < bitmap.height() && isWritten; ++y) {
        convertRow(bitmap, y, row);
        isWritten = writer.addRow(row.data());
    }
    if (!isWritten || !writer.finish())
        return failToWrite(error, writer.failure());
    return writeFile(path, writer.bytes(), error);
}

bool encodeJPEG(const Bitmap& bitmap, const std::filesystem::path& path, NSError* error, int quality)
{
    JPEGWriter writer;
    bool isWritten = writer.begin(bitmap.width(), bitmap.height(), quality);
    // A premultiplied colour is that colour over black already.
    for (std::int32_t y = 0; y < bitmap.height() && isWritten; ++y)
        isWritten = writer.addRow(bitmap.row(y));
    if (!isWritten || !writer.finish())
        return failToWrite(error, writer.failure());
    return writeFile(path, writer.bytes(), error);
}

template <typename Encode> bool encode(const Bitmap& bitmap, NSError* error, const Encode& work)
{
    if (bitmap.isEmpty())
        return failToWrite(error, "it has no pixels");
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return failToWrite(error, "there is not enough memory");
    }
}

} // namespace

bool writePNG(const Bitmap& bitmap, const std::filesystem::path& path, NSError* error)
{
    return encode(bitmap, error, [&] { return encodePNG(bitmap, path, error); });
}

bool writeJPEG(const Bitmap& bitmap, const std::filesystem::path& path, NSError* error, int quality)
{
    return encode(bitmap, error, [&] { return encodeJPEG(bitmap, path, error, quality); });
}

} // namespace tarn
