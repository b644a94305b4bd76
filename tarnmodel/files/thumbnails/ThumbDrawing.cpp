#include "tarnmodel/files/thumbnails/ThumbDrawing.h"

#include "tarnmodel/files/thumbnails/ImageScaling.h"
#include "tarnmodel/files/thumbnails/OVImageAlphaTrimmer.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/imaging/ImageFile.h"
#include "tarnmodel/platform/imaging/ImageLimits.h"

#include <fmt/format.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace tarn {

namespace {

NSError thumbError(std::string_view text)
{
    return {"Tarn Model", 0, text};
}

ImageFitting fittingOf(const OVThumbOptions& options)
{
    const OVThumbOptions defaults = OVThumbFileManager::defaultThumbOptions();
    return {.preserveRatio = options.preserveRatio.value_or(*defaults.preserveRatio),
        .contain = options.contain.value_or(*defaults.contain),
        .cover = options.cover.value_or(*defaults.cover),
        .xAlignment = options.xAlign.value_or(*defaults.xAlign),
        .yAlignment = options.yAlign.value_or(*defaults.yAlign)};
}

DrawingOptions drawingOf(const OVThumbOptions& options)
{
    return {.antialias = options.antialias.value_or(*OVThumbFileManager::defaultThumbOptions().antialias),
        .interpolation = DrawingOptions::Interpolation::High};
}

/// A product of bytes that stand for 0 to 1.
std::uint8_t productOfBytes(int one, int other)
{
    return static_cast<std::uint8_t>((one * other + 127) / 255);
}

/// Paints the colour under every pixel.
void paintUnder(Bitmap& bitmap, const OVThumbColor& colour)
{
    const std::array<std::uint8_t, 4> premultiplied = {productOfBytes(colour.red, colour.alpha),
        productOfBytes(colour.green, colour.alpha), productOfBytes(colour.blue, colour.alpha), colour.alpha};
    for (std::int32_t y = 0; y < bitmap.height(); ++y) {
        std::uint8_t* pixel = bitmap.row(y);
        for (std::int32_t x = 0; x < bitmap.width(); ++x, pixel += premultiplied.size()) {
            const int uncovered = 255 - pixel[3];
            for (std::size_t channel = 0; channel < premultiplied.size(); ++channel)
                pixel[channel]
                    = static_cast<std::uint8_t>(pixel[channel] + productOfBytes(premultiplied[channel], uncovered));
        }
    }
}

std::optional<Bitmap> notBroughtTo(PixelSize picture, PixelSize asked, NSError* error)
{
    assignError(error,
        thumbError(
            fmt::format("A picture of {} x {} pixels cannot be brought to {} x {}; a thumbnail has 1 to {} pixels.",
                picture.width, picture.height, asked.width, asked.height, mostPixelsOfCanvas())));
    return std::nullopt;
}

std::optional<Bitmap> drawTrimmed(
    const std::filesystem::path& picture, PixelSize asked, const OVThumbOptions& options, NSError* error)
{
    std::optional<Bitmap> whole = loadImage(picture, error);
    if (!whole)
        return std::nullopt;
    const Bitmap trimmed = OVImageAlphaTrimmer::imageByTrimmingTopBottomTransparentPixels(
        fixOrientation(std::move(*whole)), options.trimTransparentPixelsHorizontalMargin.value_or(0));
    if (trimmed.isEmpty()) {
        assignError(error, thumbError("The picture is transparent all over."));
        return std::nullopt;
    }
    Bitmap scaled = ovCreateScaledCGImageFromCGImage(trimmed, asked, fittingOf(options), drawingOf(options));
    if (scaled.isEmpty())
        return notBroughtTo({trimmed.width(), trimmed.height()}, asked, error);
    return scaled;
}

std::optional<Bitmap> drawWhileDecoding(
    const std::filesystem::path& picture, PixelSize asked, const OVThumbOptions& options, NSError* error)
{
    const auto header = readImageHeader(picture, error);
    if (!header)
        return std::nullopt;
    const PixelSize size = {header->uprightWidth(), header->uprightHeight()};
    // What is too large for the canvas as well is the picture's fault first.
    if (!imageIsWithinLimits(*header, ImageLimits::current(), error))
        return std::nullopt;
    const auto drawing = scaledDrawing(size, asked, fittingOf(options));
    if (drawing && drawing->isCopy) {
        std::optional<Bitmap> whole = loadImage(picture, error);
        return whole ? std::optional(fixOrientation(std::move(*whole))) : std::nullopt;
    }
    Bitmap canvas = drawing ? canvasForDrawing(*drawing) : Bitmap();
    if (canvas.isEmpty())
        return notBroughtTo(size, asked, error);
    const auto samples = loadImageForDrawing(picture, drawing->width, drawing->height, error);
    if (!samples)
        return std::nullopt;
    drawImage(*samples, canvas, drawing->x, drawing->top(), drawing->width, drawing->height, drawingOf(options));
    return canvas;
}

} // namespace

std::optional<Bitmap> drawThumb(
    const std::filesystem::path& picture, PixelSize asked, const OVThumbOptions& options, NSError* error)
{
    const bool trims = options.trimTopBottomTransparentPixels.value_or(false);
    std::optional<Bitmap> thumb
        = trims ? drawTrimmed(picture, asked, options, error) : drawWhileDecoding(picture, asked, options, error);
    if (thumb && options.backgroundColor)
        paintUnder(*thumb, *options.backgroundColor);
    return thumb;
}

std::string lookBeyondName(const OVThumbOptions& options)
{
    std::string look;
    if (options.trimTopBottomTransparentPixels.value_or(false))
        look = fmt::format("trim:{:g}", options.trimTransparentPixelsHorizontalMargin.value_or(0));
    if (const auto& color = options.backgroundColor)
        look += fmt::format("{}background:{:02x}{:02x}{:02x}{:02x}", look.empty() ? "" : ",", color->red, color->green,
            color->blue, color->alpha);
    return look;
}

} // namespace tarn
