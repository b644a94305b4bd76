#include "tests/platform/imaging/makers/PNGMaker.h"

#include <png.h>
#include <zlib.h>

namespace tarn {

namespace {

constexpr std::size_t kBehindHeader = 8 + 25;

void collectPNG(png_structp png, png_bytep bytes, std::size_t count)
{
    auto& target = *static_cast<ImageBytes*>(png_get_io_ptr(png));
    target.insert(target.end(), bytes, bytes + count);
}

void addPalette(png_structp png, png_infop info, const PNGKind& kind)
{
    std::vector<png_color> colours;
    for (std::size_t at = 0; at + 2 < kind.palette.size(); at += 3)
        colours.push_back({kind.palette[at], kind.palette[at + 1], kind.palette[at + 2]});
    if (!colours.empty())
        png_set_PLTE(png, info, colours.data(), static_cast<int>(colours.size()));
}

} // namespace

ImageBytes pngChunk(std::string_view name, const ImageBytes& data)
{
    ImageBytes chunk;
    appendBigEndian32(chunk, static_cast<std::uint32_t>(data.size()));
    append(chunk, name);
    append(chunk, data);
    appendBigEndian32(
        chunk, static_cast<std::uint32_t>(crc32(0, chunk.data() + 4, static_cast<uInt>(chunk.size() - 4))));
    return chunk;
}

ImageBytes pngWithChunk(const ImageBytes& png, std::string_view name, const ImageBytes& data)
{
    ImageBytes result = prefix(png, kBehindHeader);
    append(result, pngChunk(name, data));
    result.insert(result.end(), png.begin() + kBehindHeader, png.end());
    return result;
}

ImageBytes compressedZeros(std::size_t count)
{
    const ImageBytes zeros(count);
    uLongf size = compressBound(static_cast<uLong>(count));
    ImageBytes bytes(size);
    compress2(bytes.data(), &size, zeros.data(), static_cast<uLong>(count), 9);
    return prefix(bytes, size);
}

ImageBytes pngOf(const PNGKind& kind, const std::function<ImageBytes(std::uint32_t y)>& row)
{
    ImageBytes bytes;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(png, &bytes, collectPNG, [](png_structp) {});
    png_set_compression_level(png, kind.compression);
    png_set_IHDR(png, info, kind.width, kind.height, kind.bits, kind.colourType,
        kind.isInterlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
        PNG_FILTER_TYPE_DEFAULT);
    addPalette(png, info, kind);
    png_write_info(png, info);
    if (!kind.transparency.empty())
        append(bytes, pngChunk("tRNS", kind.transparency));
    if (kind.orientation > 0 && !kind.isExifBehind)
        append(bytes, pngChunk("eXIf", exifWith(kind.orientation, ByteOrder::Big)));
    const int passes = png_set_interlace_handling(png);
    for (int pass = 0; pass < passes; ++pass)
        for (std::uint32_t y = 0; y < kind.height; ++y)
            png_write_row(png, row(y).data());
    if (kind.orientation > 0 && kind.isExifBehind) {
        // The last pixels are written with the end: they would stand behind it.
        png_write_flush(png);
        png_write_end(png, nullptr);
        bytes.resize(bytes.size() - 12);
        append(bytes, pngChunk("eXIf", exifWith(kind.orientation)));
        append(bytes, pngChunk("IEND", {}));
    } else {
        png_write_end(png, nullptr);
    }
    png_destroy_write_struct(&png, &info);
    return bytes;
}

ImageBytes pngOf(const Bitmap& picture, const PNGKind& form)
{
    PNGKind kind = form;
    kind.width = static_cast<std::uint32_t>(picture.width());
    kind.height = static_cast<std::uint32_t>(picture.height());
    kind.colourType = picture.hasAlpha() ? 6 : 2;
    return pngOf(kind, [&](std::uint32_t y) {
        ImageBytes row;
        const std::uint8_t* pixel = picture.row(static_cast<std::int32_t>(y));
        for (std::int32_t x = 0; x < picture.width(); ++x, pixel += 4) {
            const int alpha = pixel[3];
            for (int channel = 0; channel < 3; ++channel)
                row.push_back(alpha == 0 ? 0 : static_cast<std::uint8_t>((pixel[channel] * 255 + alpha / 2) / alpha));
            if (picture.hasAlpha())
                row.push_back(pixel[3]);
        }
        return row;
    });
}

} // namespace tarn
