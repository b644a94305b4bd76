#include "tarnmodel/platform/imaging/codecs/ByteOrder.h"
#include "tarnmodel/platform/imaging/codecs/HeaderReader.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"

#include <array>

namespace tarn {

namespace {

constexpr std::uint8_t kExtension = 0x21;
constexpr std::uint8_t kImage = 0x2C;
constexpr std::uint8_t kGraphicControl = 0xF9;

std::optional<std::uint8_t> nextByte(ImageInput& input)
{
    std::array<std::uint8_t, 1> byte{};
    return input.readAll(byte) ? std::optional(byte[0]) : std::nullopt;
}

/// Past the blocks of an extension; whether it says that a colour stands for what is transparent.
bool readsTransparency(ImageInput& input)
{
    const bool isControl = nextByte(input) == kGraphicControl;
    bool isTransparent = false;
    bool isFirst = true;
    for (auto length = nextByte(input); length && *length > 0; length = nextByte(input)) {
        const std::uint64_t next = input.position() + *length;
        if (isControl && isFirst)
            isTransparent = (nextByte(input).value_or(0) & 1) != 0;
        isFirst = false;
        input.seek(next);
    }
    return isTransparent;
}

/// Whether the first image leaves some of the screen free.
bool leavesSomeFree(ImageInput& input, const ImageHeader& header)
{
    std::array<std::uint8_t, 8> place{};
    if (!input.readAll(place))
        return true;
    return littleEndian16(place.data()) > 0 || littleEndian16(place.data() + 2) > 0
        || littleEndian16(place.data() + 4) < header.width || littleEndian16(place.data() + 6) < header.height;
}

} // namespace

std::optional<ImageHeader> readGIFHeader(ImageInput& input)
{
    std::array<std::uint8_t, 7> screen{};
    input.seek(6);
    if (!input.readAll(screen))
        return std::nullopt;
    ImageHeader header{ImageFormat::GIF, littleEndian16(screen.data()), littleEndian16(screen.data() + 2)};
    if (header.width == 0 || header.height == 0)
        return std::nullopt;
    if ((screen[4] & 0x80) != 0)
        input.skip(std::uint64_t{3} << ((screen[4] & 7) + 1));
    while (const auto block = nextByte(input)) {
        if (*block == kImage) {
            header.hasAlpha = leavesSomeFree(input, header) || header.hasAlpha;
            break;
        }
        if (*block != kExtension)
            break;
        header.hasAlpha = readsTransparency(input) || header.hasAlpha;
    }
    return header;
}

} // namespace tarn
