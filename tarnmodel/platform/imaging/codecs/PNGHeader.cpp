#include "tarnmodel/platform/imaging/codecs/ByteOrder.h"
#include "tarnmodel/platform/imaging/codecs/ExifOrientation.h"
#include "tarnmodel/platform/imaging/codecs/HeaderReader.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tarn {

namespace {

constexpr std::uint32_t chunkName(const char (&name)[5])
{
    std::uint32_t number = 0;
    for (int position = 0; position < 4; ++position)
        number = number << 8 | static_cast<std::uint8_t>(name[position]);
    return number;
}

// EXIF data may follow the pixels, which come in pieces of some kilobytes: looked for behind so many.
constexpr int kMostChunks = 20'000;
// Orientation stands at their beginning.
constexpr std::size_t kMostExif = 65'536;
constexpr std::uint8_t kAlphaBit = 4;
constexpr std::uint64_t kChecksumSize = 4;

struct Chunk {
    std::uint32_t length = 0;
    std::uint32_t name = 0;
};

std::optional<Chunk> nextChunk(ImageInput& input)
{
    std::array<std::uint8_t, 8> frame{};
    if (!input.readAll(frame))
        return std::nullopt;
    return Chunk{bigEndian32(frame.data()), bigEndian32(frame.data() + 4)};
}

} // namespace

std::optional<ImageHeader> readPNGHeader(ImageInput& input)
{
    ImageHeader header{ImageFormat::PNG};
    std::array<std::uint8_t, 13> sizes{};
    input.seek(8);
    const auto first = nextChunk(input);
    if (!first || first->name != chunkName("IHDR") || first->length != sizes.size() || !input.readAll(sizes))
        return std::nullopt;
    header.width = bigEndian32(sizes.data());
    header.height = bigEndian32(sizes.data() + 4);
    header.hasAlpha = (sizes[9] & kAlphaBit) != 0;
    if (header.width == 0 || header.height == 0)
        return std::nullopt;

    input.skip(kChecksumSize);
    for (int count = 0; count < kMostChunks; ++count) {
        const auto chunk = nextChunk(input);
        if (!chunk || chunk->name == chunkName("IEND"))
            break;
        const std::uint64_t next = input.position() + chunk->length + kChecksumSize;
        if (chunk->name == chunkName("tRNS"))
            header.hasAlpha = true;
        if (chunk->name == chunkName("eXIf")) {
            std::vector<std::uint8_t> data(std::min<std::size_t>(chunk->length, kMostExif));
            data.resize(input.read(data));
            header.orientation = exifOrientation(data);
            break;
        }
        input.seek(next);
    }
    return header;
}

} // namespace tarn
