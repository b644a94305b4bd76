#include "tarnmodel/platform/imaging/codecs/ByteOrder.h"
#include "tarnmodel/platform/imaging/codecs/ExifOrientation.h"
#include "tarnmodel/platform/imaging/codecs/HeaderReader.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"

#include <array>
#include <vector>

namespace tarn {

namespace {

constexpr std::uint8_t kEndOfImage = 0xD9;
constexpr std::uint8_t kStartOfScan = 0xDA;
constexpr std::uint8_t kExifMarker = 0xE1;
// Real files have some tens of segments ahead of their frame.
constexpr int kMostSegments = 2'000;

/// A frame of any coding; the three others of that range are tables and extensions.
bool isFrame(std::uint8_t marker)
{
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

bool hasNoContent(std::uint8_t marker)
{
    return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

/// Past any bytes that should not be there, as decoders do.
std::optional<std::uint8_t> nextMarker(ImageInput& input)
{
    std::array<std::uint8_t, 1> byte{};
    bool isMarker = false;
    while (input.readAll(byte)) {
        if (isMarker && byte[0] != 0 && byte[0] != 0xFF)
            return byte[0];
        isMarker = byte[0] == 0xFF;
    }
    return std::nullopt;
}

bool readFrame(ImageInput& input, ImageHeader& header)
{
    std::array<std::uint8_t, 5> frame{};
    if (!input.readAll(frame))
        return false;
    header.height = bigEndian16(frame.data() + 1);
    header.width = bigEndian16(frame.data() + 3);
    return header.width > 0 && header.height > 0;
}

/// Other data than EXIF have this marker, too. One of them counts.
void readExif(ImageInput& input, std::size_t length, bool& isKnown, ImageHeader& header)
{
    std::vector<std::uint8_t> data(length);
    if (isKnown || !input.readAll(data) || length < 6 || data[0] != 'E' || data[1] != 'x' || data[4] != 0)
        return;
    header.orientation = exifOrientation(data);
    isKnown = true;
}

} // namespace

std::optional<ImageHeader> readJPEGHeader(ImageInput& input)
{
    ImageHeader header{ImageFormat::JPEG};
    bool hasFrame = false;
    bool hasExif = false;
    input.seek(2);
    for (int segments = 0; segments < kMostSegments; ++segments) {
        const auto marker = nextMarker(input);
        if (!marker || *marker == kEndOfImage || *marker == kStartOfScan)
            break;
        if (hasNoContent(*marker))
            continue;
        std::array<std::uint8_t, 2> length{};
        if (!input.readAll(length) || bigEndian16(length.data()) < 2)
            break;
        const std::uint64_t next = input.position() + bigEndian16(length.data()) - 2;
        if (*marker == kExifMarker)
            readExif(input, bigEndian16(length.data()) - 2, hasExif, header);
        else if (!hasFrame && isFrame(*marker) && !(hasFrame = readFrame(input, header)))
            return std::nullopt;
        input.seek(next);
    }
    return hasFrame ? std::optional(header) : std::nullopt;
}

} // namespace tarn
