// Only built where TIFF is wanted.
#ifdef TARN_WITH_TIFF

#include "tarnmodel/platform/imaging/codecs/HeaderReader.h"
#include "tarnmodel/platform/imaging/codecs/ImageDecoder.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"
#include "tarnmodel/platform/imaging/codecs/LimitChecks.h"
#include "tarnmodel/platform/imaging/codecs/StraightRow.h"

#include <tiffio.h>

#include <array>
#include <memory>
#include <vector>

namespace tarn {

namespace {

constexpr std::int64_t kBytesPerTIFFPixel = 16;

struct CloseTIFF {
    void operator()(TIFF* file) const { TIFFClose(file); }
};
using TIFFFile = std::unique_ptr<TIFF, CloseTIFF>;

ImageInput& inputOf(thandle_t handle)
{
    return *static_cast<ImageInput*>(handle);
}

tmsize_t readTIFFBytes(thandle_t handle, void* target, tmsize_t count)
{
    return static_cast<tmsize_t>(
        inputOf(handle).read({static_cast<std::uint8_t*>(target), static_cast<std::size_t>(count)}));
}

tmsize_t writeNoBytes(thandle_t, void*, tmsize_t)
{
    return 0;
}

toff_t seekInTIFF(thandle_t handle, toff_t offset, int whence)
{
    ImageInput& input = inputOf(handle);
    const toff_t base = whence == SEEK_CUR ? input.position() : whence == SEEK_END ? input.size() : 0;
    input.seek(base + offset);
    return input.position();
}

int ignoreMessage(TIFF*, void*, const char*, const char*, va_list)
{
    return 1;
}

TIFFFile openTIFF(ImageInput& input, const ImageLimits& limits)
{
    input.seek(0);
    TIFFOpenOptions* options = TIFFOpenOptionsAlloc();
    TIFFOpenOptionsSetMaxSingleMemAlloc(options, limits.bufferedPixels * kBytesPerTIFFPixel);
    TIFFOpenOptionsSetErrorHandlerExtR(options, ignoreMessage, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options, ignoreMessage, nullptr);
    const auto close = [](thandle_t) { return 0; };
    const auto size = [](thandle_t handle) -> toff_t { return inputOf(handle).size(); };
    // "m": not mapped.
    TIFFFile file(TIFFClientOpenExt(
        "image", "rm", &input, readTIFFBytes, writeNoBytes, seekInTIFF, close, size, nullptr, nullptr, options));
    TIFFOpenOptionsFree(options);
    return file;
}

/// What the library makes of the first directory.
class Raster {
public:
    explicit Raster(TIFF* file)
    {
        std::array<char, 1024> message{};
        isThere_ = file && TIFFRGBAImageBegin(&image_, file, 1, message.data()) != 0;
        if (isThere_)
            image_.req_orientation = image_.orientation;
    }
    ~Raster()
    {
        if (isThere_)
            TIFFRGBAImageEnd(&image_);
    }
    Raster(const Raster&) = delete;
    Raster& operator=(const Raster&) = delete;

    bool isThere() const { return isThere_ && image_.width > 0 && image_.height > 0; }
    std::int64_t width() const { return image_.width; }
    std::int64_t height() const { return image_.height; }
    bool hasAlpha() const { return image_.alpha != 0; }
    int orientation() const { return image_.orientation >= 1 && image_.orientation <= 8 ? image_.orientation : 1; }
    bool read(std::vector<std::uint32_t>& pixels)
    {
        return TIFFRGBAImageGet(&image_, pixels.data(), image_.width, image_.height) != 0;
    }

private:
    TIFFRGBAImage image_ = {};
    bool isThere_ = false;
};

void deliverRaster(const std::vector<std::uint32_t>& pixels, RowDelivery& rows)
{
    const auto width = static_cast<std::size_t>(rows.layout().width);
    std::vector<std::uint8_t> row(width * 4);
    for (const std::uint32_t* line = pixels.data(); line != pixels.data() + pixels.size(); line += width) {
        for (std::size_t x = 0; x < width; ++x) {
            row[4 * x] = static_cast<std::uint8_t>(TIFFGetR(line[x]));
            row[4 * x + 1] = static_cast<std::uint8_t>(TIFFGetG(line[x]));
            row[4 * x + 2] = static_cast<std::uint8_t>(TIFFGetB(line[x]));
            row[4 * x + 3] = static_cast<std::uint8_t>(rows.layout().hasAlpha ? TIFFGetA(line[x]) : 255);
        }
        makeStraight(row.data(), width);
        rows.add(row.data());
    }
}

} // namespace

std::optional<ImageHeader> readTIFFHeader(ImageInput& input)
{
    const TIFFFile file = openTIFF(input, ImageLimits::current());
    const Raster raster(file.get());
    if (!raster.isThere())
        return std::nullopt;
    return ImageHeader{ImageFormat::TIFF, raster.width(), raster.height(), raster.orientation(), raster.hasAlpha()};
}

bool decodeTIFF(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error)
{
    const TIFFFile file = openTIFF(input, request.limits);
    Raster raster(file.get());
    if (!raster.isThere())
        return failAsDamaged(error, "it has no directory that can be read");
    const std::int64_t width = raster.width();
    const std::int64_t height = raster.height();
    if (!isWithinLimits(width, height, request.limits, error)
        || !mayBeHeld(width * height, width, height, request.limits, error))
        return false;
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width * height));
    if (!raster.read(pixels))
        return failAsDamaged(error, "its pixels cannot be decoded");
    rows.begin({static_cast<std::int32_t>(width), static_cast<std::int32_t>(height), 1, 1, raster.hasAlpha()});
    deliverRaster(pixels, rows);
    return rows.complete(error);
}

} // namespace tarn

#endif
