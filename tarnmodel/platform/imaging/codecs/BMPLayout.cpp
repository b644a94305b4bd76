#include "tarnmodel/platform/imaging/codecs/BMPLayout.h"

#include "tarnmodel/platform/imaging/codecs/ByteOrder.h"
#include "tarnmodel/platform/imaging/codecs/HeaderReader.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"

#include <algorithm>
#include <span>

namespace tarn {

namespace {

constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kOldestHeaderSize = 12;
constexpr std::size_t kUsualHeaderSize = 40;
constexpr std::size_t kLongestHeaderSize = 124;
// From these sizes on, headers hold masks themselves.
constexpr std::size_t kHeaderSizeWithMasks = 52;
constexpr std::size_t kHeaderSizeWithAlpha = 56;
constexpr std::uint32_t kPlain = 0;
constexpr std::uint32_t kBitFields = 3;
constexpr std::uint32_t kAlphaBitFields = 6;

using Bytes = std::span<const std::uint8_t>;

bool readOldestHeader(Bytes header, BMPLayout& layout)
{
    layout.width = littleEndian16(&header[4]);
    layout.height = littleEndian16(&header[6]);
    layout.bits = littleEndian16(&header[10]);
    return layout.bits != 16 && layout.bits != 32;
}

/// The masks from where they stand; true when they are as they should be.
bool readMasks(ImageInput& input, Bytes header, std::uint32_t compression, BMPLayout& layout)
{
    if (layout.bits != 16 && layout.bits != 32)
        return compression == kPlain;
    if (compression == kPlain) {
        layout.masks = layout.bits == 16 ? std::array<std::uint32_t, 4>{0x7C00, 0x03E0, 0x001F, 0}
                                         : std::array<std::uint32_t, 4>{0xFF0000, 0xFF00, 0xFF, 0};
        return true;
    }
    std::array<std::uint8_t, 16> bytes{};
    std::size_t count = compression == kAlphaBitFields || header.size() >= kHeaderSizeWithAlpha ? 4 : 3;
    if (header.size() >= kHeaderSizeWithMasks)
        std::copy_n(header.begin() + kUsualHeaderSize, count * 4, bytes.begin());
    else if (!input.readAll(std::span(bytes).first(count * 4)))
        return false;
    for (std::size_t channel = 0; channel < count; ++channel)
        layout.masks[channel] = littleEndian32(&bytes[channel * 4]);
    return true;
}

bool readUsualHeader(ImageInput& input, Bytes header, BMPLayout& layout)
{
    layout.width = static_cast<std::int32_t>(littleEndian32(&header[4]));
    const std::int64_t height = static_cast<std::int32_t>(littleEndian32(&header[8]));
    layout.isTopDown = height < 0;
    layout.height = layout.isTopDown ? -height : height;
    layout.bits = littleEndian16(&header[14]);
    const std::uint32_t compression = littleEndian32(&header[16]);
    if (compression != kPlain && compression != kBitFields && compression != kAlphaBitFields)
        return false;
    return readMasks(input, header, compression, layout);
}

bool readPalette(ImageInput& input, std::size_t entries, std::size_t entrySize, BMPLayout& layout)
{
    const std::size_t most = std::size_t{1} << layout.bits;
    layout.palette.assign(most, {0, 0, 0, 255});
    for (std::size_t entry = 0; entry < (entries == 0 ? most : std::min(entries, most)); ++entry) {
        std::array<std::uint8_t, 4> colour{};
        if (!input.readAll(std::span(colour).first(entrySize)))
            return false;
        layout.palette[entry] = {colour[2], colour[1], colour[0], 255};
    }
    return true;
}

bool isKnownDepth(std::uint32_t bits)
{
    return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
}

} // namespace

bool BMPLayout::fitsInto(std::uint64_t fileSize) const
{
    return rowsBegin <= fileSize && static_cast<std::uint64_t>(height) <= (fileSize - rowsBegin) / bytesPerRow;
}

std::optional<BMPLayout> readBMPLayout(ImageInput& input)
{
    std::array<std::uint8_t, kFileHeaderSize + 4> start{};
    input.seek(0);
    if (!input.readAll(start))
        return std::nullopt;
    const std::size_t size = littleEndian32(&start[kFileHeaderSize]);
    const bool isOldest = size == kOldestHeaderSize;
    if ((!isOldest && size < kUsualHeaderSize) || size > kLongestHeaderSize)
        return std::nullopt;
    std::array<std::uint8_t, kLongestHeaderSize> bytes{};
    input.seek(kFileHeaderSize);
    const std::span<std::uint8_t> header = std::span(bytes).first(size);
    if (!input.readAll(header))
        return std::nullopt;

    BMPLayout layout;
    layout.rowsBegin = littleEndian32(&start[10]);
    if (!(isOldest ? readOldestHeader(header, layout) : readUsualHeader(input, header, layout)))
        return std::nullopt;
    if (layout.width <= 0 || layout.height <= 0 || !isKnownDepth(layout.bits))
        return std::nullopt;
    // Rows end at multiples of four bytes.
    layout.bytesPerRow = (static_cast<std::uint64_t>(layout.width) * layout.bits + 31) / 32 * 4;
    const std::size_t entries = isOldest ? 0 : littleEndian32(&header[32]);
    if (layout.bits <= 8 && !readPalette(input, entries, isOldest ? 3 : 4, layout))
        return std::nullopt;
    return layout;
}

std::optional<ImageHeader> readBMPHeader(ImageInput& input)
{
    const auto layout = readBMPLayout(input);
    if (!layout)
        return std::nullopt;
    return ImageHeader{ImageFormat::BMP, layout->width, layout->height, 1, layout->hasAlpha()};
}

} // namespace tarn
