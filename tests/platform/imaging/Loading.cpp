#include "tests/platform/imaging/Loading.h"

#include "tarnmodel/platform/imaging/ImageDrawing.h"
#include "tarnmodel/platform/imaging/codecs/HeaderReader.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"
#include "tarnmodel/platform/imaging/codecs/ImageLoading.h"

#include <map>
#include <tuple>

namespace tarn {

std::optional<ImageHeader> headerOf(const ImageBytes& bytes, NSError* error)
{
    ImageInput input(sourceOfBytes(bytes));
    return readHeader(input, error);
}

std::optional<Bitmap> loaded(const ImageBytes& bytes, NSError* error, const ImageLimits& limits)
{
    ImageInput input(sourceOfBytes(bytes));
    return loadImage(input, limits, error);
}

std::optional<Bitmap> drawn(
    const ImageBytes& bytes, std::int32_t width, std::int32_t height, NSError* error, const ImageLimits& limits)
{
    ImageInput input(sourceOfBytes(bytes));
    const auto samples = loadImageForDrawing(input, width, height, limits, error);
    if (!samples)
        return std::nullopt;
    Bitmap canvas(width, height, Bitmap::Alpha::Premultiplied);
    drawImage(*samples, canvas, 0, 0, width, height);
    return canvas;
}

Bitmap drawnWhole(const Bitmap& picture, std::int32_t width, std::int32_t height)
{
    Bitmap canvas(width, height, Bitmap::Alpha::Premultiplied);
    drawImage(picture, canvas, 0, 0, width, height);
    return canvas;
}

std::string lettersOf(const Bitmap& bitmap)
{
    using Pixel = std::tuple<int, int, int, int>;
    static const std::map<Pixel, char> kLettersOfPixels{{{255, 0, 0, 255}, 'r'}, {{0, 255, 0, 255}, 'g'},
        {{0, 0, 255, 255}, 'b'}, {{255, 255, 255, 255}, 'w'}, {{0, 0, 0, 255}, 'k'}, {{0, 0, 0, 0}, '.'}};
    std::string letters;
    for (std::int32_t y = 0; y < bitmap.height(); ++y) {
        letters += y > 0 ? "/" : "";
        for (const std::uint8_t* pixel = bitmap.row(y); pixel != bitmap.row(y) + bitmap.bytesPerRow(); pixel += 4) {
            const auto letter = kLettersOfPixels.find({pixel[0], pixel[1], pixel[2], pixel[3]});
            letters += letter == kLettersOfPixels.end() ? '?' : letter->second;
        }
    }
    return letters;
}

} // namespace tarn
