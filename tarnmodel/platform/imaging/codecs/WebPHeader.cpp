#include "tarnmodel/platform/imaging/codecs/ByteOrder.h"
#include "tarnmodel/platform/imaging/codecs/ExifOrientation.h"
#include "tarnmodel/platform/imaging/codecs/HeaderReader.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace tarn {

namespace {

// Of an animation each frame is one.
constexpr int kMostRIFFChunks = 20'000;
constexpr std::size_t kMostWebPExif = 65'536;
constexpr std::uint8_t kAnimationFlag = 0x02;
constexpr std::uint8_t kExifFlag = 0x08;
constexpr std::uint8_t kAlphaFlag = 0x10;

struct RIFFChunk {
    std::array<char, 4> name{};
    std::uint32_t length = 0;
    std::uint64_t next = 0;

    bool is(std::string_view wanted) const { return std::string_view(name.data(), name.size()) == wanted; }
};

std::optional<RIFFChunk> nextRIFFChunk(ImageInput& input)
{
    std::array<std::uint8_t, 8> frame{};
    if (!input.readAll(frame))
        return std::nullopt;
    RIFFChunk chunk;
    std::copy_n(frame.begin(), 4, chunk.name.begin());
    chunk.length = littleEndian32(frame.data() + 4);
    // Odd lengths are filled up.
    chunk.next = input.position() + chunk.length + chunk.length % 2;
    return chunk;
}

int orientationBehind(ImageInput& input, std::uint64_t place)
{
    input.seek(place);
    for (int count = 0; count < kMostRIFFChunks; ++count) {
        const auto chunk = nextRIFFChunk(input);
        if (!chunk)
            break;
        if (chunk->is("EXIF")) {
            std::vector<std::uint8_t> data(std::min<std::size_t>(chunk->length, kMostWebPExif));
            data.resize(input.read(data));
            return exifOrientation(data);
        }
        input.seek(chunk->next);
    }
    return 1;
}

} // namespace

std::optional<ImageHeader> readWebPHeader(ImageInput& input)
{
    ImageHeader header{ImageFormat::WebP};
    std::array<std::uint8_t, 10> bytes{};
    input.seek(12);
    const auto chunk = nextRIFFChunk(input);
    if (!chunk || input.read(bytes) < (chunk->is("VP8L") ? 5 : bytes.size()))
        return std::nullopt;
    if (chunk->is("VP8X")) {
        header.width = littleEndian24(bytes.data() + 4) + 1;
        header.height = littleEndian24(bytes.data() + 7) + 1;
        // The first frame of an animation need not fill the picture.
        header.hasAlpha = (bytes[0] & (kAlphaFlag | kAnimationFlag)) != 0;
        if ((bytes[0] & kExifFlag) != 0)
            header.orientation = orientationBehind(input, chunk->next);
    } else if (chunk->is("VP8L") && bytes[0] == 0x2F) {
        const std::uint32_t bits = littleEndian32(bytes.data() + 1);
        header.width = (bits & 0x3FFF) + 1;
        header.height = (bits >> 14 & 0x3FFF) + 1;
        header.hasAlpha = (bits >> 28 & 1) != 0;
    } else if (chunk->is("VP8 ") && bytes[3] == 0x9D && bytes[4] == 0x01 && bytes[5] == 0x2A) {
        header.width = littleEndian16(bytes.data() + 6) & 0x3FFF;
        header.height = littleEndian16(bytes.data() + 8) & 0x3FFF;
    }
    return header.width > 0 && header.height > 0 ? std::optional(header) : std::nullopt;
}

} // namespace tarn
