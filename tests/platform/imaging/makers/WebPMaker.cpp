#include "tests/platform/imaging/makers/WebPMaker.h"

#include <webp/encode.h>

namespace tarn {

namespace {

constexpr std::uint8_t kAnimated = 0x02;
constexpr std::uint8_t kWithExif = 0x08;
constexpr std::uint8_t kWithAlpha = 0x10;

void append24(ImageBytes& bytes, std::uint32_t number)
{
    appendLittleEndian16(bytes, number);
    bytes.push_back(static_cast<std::uint8_t>(number >> 16));
}

void appendRIFFChunk(ImageBytes& bytes, std::string_view name, const ImageBytes& data)
{
    append(bytes, name);
    appendLittleEndian32(bytes, static_cast<std::uint32_t>(data.size()));
    append(bytes, data);
    if (data.size() % 2 == 1)
        bytes.push_back(0);
}

ImageBytes riffOf(const ImageBytes& chunks)
{
    ImageBytes bytes;
    append(bytes, "RIFF");
    appendLittleEndian32(bytes, static_cast<std::uint32_t>(chunks.size() + 4));
    append(bytes, "WEBP");
    append(bytes, chunks);
    return bytes;
}

ImageBytes extendedHeader(std::uint8_t flags, std::uint32_t width, std::uint32_t height)
{
    ImageBytes header{flags, 0, 0, 0};
    append24(header, width - 1);
    append24(header, height - 1);
    return header;
}

/// Without the frame of the file.
ImageBytes chunksOf(const Bitmap& picture)
{
    const ImageBytes bytes = webPOf(picture);
    return {bytes.begin() + 12, bytes.end()};
}

} // namespace

ImageBytes webPOf(const Bitmap& picture, float quality)
{
    ImageBytes straight;
    for (std::int32_t y = 0; y < picture.height(); ++y)
        for (const std::uint8_t* pixel = picture.row(y); pixel != picture.row(y) + picture.bytesPerRow(); pixel += 4) {
            const int alpha = pixel[3];
            for (int channel = 0; channel < 3; ++channel)
                straight.push_back(
                    alpha == 0 ? 0 : static_cast<std::uint8_t>((pixel[channel] * 255 + alpha / 2) / alpha));
            straight.push_back(pixel[3]);
        }
    const auto stride = static_cast<int>(picture.bytesPerRow());
    std::uint8_t* bytes = nullptr;
    const std::size_t size = quality > 100
        ? WebPEncodeLosslessRGBA(straight.data(), picture.width(), picture.height(), stride, &bytes)
        : WebPEncodeRGBA(straight.data(), picture.width(), picture.height(), stride, quality, &bytes);
    ImageBytes result(bytes, bytes + size);
    WebPFree(bytes);
    return result;
}

ImageBytes webPTurned(const Bitmap& picture, int orientation)
{
    ImageBytes chunks;
    const auto flags = static_cast<std::uint8_t>(kWithExif | (picture.hasAlpha() ? kWithAlpha : 0));
    appendRIFFChunk(chunks, "VP8X",
        extendedHeader(
            flags, static_cast<std::uint32_t>(picture.width()), static_cast<std::uint32_t>(picture.height())));
    append(chunks, chunksOf(picture));
    appendRIFFChunk(chunks, "EXIF", exifWith(orientation));
    return riffOf(chunks);
}

ImageBytes webPAnimation(std::uint32_t width, std::uint32_t height, const std::vector<WebPFrame>& frames)
{
    ImageBytes chunks;
    appendRIFFChunk(chunks, "VP8X", extendedHeader(kAnimated | kWithAlpha, width, height));
    appendRIFFChunk(chunks, "ANIM", {0, 0, 0, 0, 0, 0});
    for (const WebPFrame& frame : frames) {
        ImageBytes data;
        append24(data, frame.left / 2);
        append24(data, frame.top / 2);
        append24(data, static_cast<std::uint32_t>(frame.picture.width()) - 1);
        append24(data, static_cast<std::uint32_t>(frame.picture.height()) - 1);
        append24(data, 100);
        data.push_back(0);
        append(data, chunksOf(frame.picture));
        appendRIFFChunk(chunks, "ANMF", data);
    }
    return riffOf(chunks);
}

} // namespace tarn
