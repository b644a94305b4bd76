#include "tests/platform/imaging/makers/BMPMaker.h"

#include <algorithm>

namespace tarn {

namespace {

ImageBytes informationOf(const BMPKind& kind)
{
    ImageBytes header;
    appendLittleEndian32(header, kind.headerSize);
    if (kind.headerSize == 12) {
        appendLittleEndian16(header, static_cast<std::uint32_t>(kind.width));
        appendLittleEndian16(header, static_cast<std::uint32_t>(kind.height));
        appendLittleEndian16(header, 1);
        appendLittleEndian16(header, kind.bits);
        return header;
    }
    appendLittleEndian32(header, static_cast<std::uint32_t>(kind.width));
    appendLittleEndian32(header, static_cast<std::uint32_t>(kind.height));
    appendLittleEndian16(header, 1);
    appendLittleEndian16(header, kind.bits);
    appendLittleEndian32(header, kind.compression);
    for (int field = 0; field < 3; ++field)
        appendLittleEndian32(header, 0);
    appendLittleEndian32(header, static_cast<std::uint32_t>(kind.palette.size()));
    appendLittleEndian32(header, 0);
    for (const std::uint32_t mask : kind.masks)
        appendLittleEndian32(header, mask);
    header.resize(std::max<std::size_t>(header.size(), kind.headerSize));
    return header;
}

} // namespace

ImageBytes bmpOf(const BMPKind& kind)
{
    ImageBytes frame = informationOf(kind);
    for (const auto& colour : kind.palette) {
        frame.insert(frame.end(), colour.begin(), colour.end());
        if (kind.headerSize != 12)
            frame.push_back(0);
    }
    ImageBytes pixels;
    std::vector<ImageBytes> rows = kind.rows;
    if (kind.height > 0)
        std::ranges::reverse(rows);
    for (ImageBytes& row : rows) {
        row.resize((row.size() + 3) / 4 * 4);
        append(pixels, row);
    }
    ImageBytes bytes;
    append(bytes, "BM");
    appendLittleEndian32(bytes, static_cast<std::uint32_t>(14 + frame.size() + pixels.size()));
    appendLittleEndian32(bytes, 0);
    appendLittleEndian32(bytes, static_cast<std::uint32_t>(14 + frame.size()));
    append(bytes, frame);
    append(bytes, pixels);
    return bytes;
}

} // namespace tarn
