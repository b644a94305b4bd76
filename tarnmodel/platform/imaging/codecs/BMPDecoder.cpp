#include "tarnmodel/platform/imaging/codecs/BMPLayout.h"
#include "tarnmodel/platform/imaging/codecs/ByteOrder.h"
#include "tarnmodel/platform/imaging/codecs/ImageDecoder.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"
#include "tarnmodel/platform/imaging/codecs/LimitChecks.h"

#include <algorithm>
#include <bit>
#include <vector>

namespace tarn {

namespace {

/// The bits of a mask as a byte; 255 for alpha that is not there.
std::uint8_t channelOf(std::uint32_t pixel, std::uint32_t mask)
{
    if (mask == 0)
        return 0;
    const int shift = std::countr_zero(mask);
    const std::uint64_t most = mask >> shift;
    return static_cast<std::uint8_t>(((pixel & mask) >> shift) * std::uint64_t{255} / most);
}

void convertMasked(const std::uint8_t* stored, const BMPLayout& layout, std::vector<std::uint8_t>& row)
{
    const std::size_t step = layout.bits / 8;
    for (std::size_t at = 0; at < row.size(); at += 4, stored += step) {
        const std::uint32_t pixel = step == 2 ? littleEndian16(stored) : littleEndian32(stored);
        for (std::size_t channel = 0; channel < 4; ++channel)
            row[at + channel] = channelOf(pixel, layout.masks[channel]);
        if (!layout.hasAlpha())
            row[at + 3] = 255;
    }
}

void convertPlain(const std::uint8_t* stored, std::vector<std::uint8_t>& row)
{
    for (std::size_t at = 0; at < row.size(); at += 4, stored += 3) {
        row[at] = stored[2];
        row[at + 1] = stored[1];
        row[at + 2] = stored[0];
        row[at + 3] = 255;
    }
}

void convertIndexed(const std::uint8_t* stored, const BMPLayout& layout, std::vector<std::uint8_t>& row)
{
    const std::uint32_t perByte = 8 / layout.bits;
    const std::uint32_t mask = (1U << layout.bits) - 1;
    for (std::size_t pixel = 0; pixel * 4 < row.size(); ++pixel) {
        // The leftmost pixel has the highest bits.
        const auto shift = layout.bits * static_cast<std::uint32_t>(perByte - 1 - pixel % perByte);
        std::ranges::copy(layout.palette[stored[pixel / perByte] >> shift & mask], &row[pixel * 4]);
    }
}

void convert(const std::uint8_t* stored, const BMPLayout& layout, std::vector<std::uint8_t>& row)
{
    if (layout.bits <= 8)
        convertIndexed(stored, layout, row);
    else if (layout.bits == 24)
        convertPlain(stored, row);
    else
        convertMasked(stored, layout, row);
}

} // namespace

bool decodeBMP(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error)
{
    const auto layout = readBMPLayout(input);
    if (!layout)
        return failAsDamaged(error, "its header is of no kind that is decoded");
    if (!isWithinLimits(layout->width, layout->height, request.limits, error))
        return false;
    if (!layout->fitsInto(input.size()))
        return failAsDamaged(error, "it ends early");
    rows.begin({static_cast<std::int32_t>(layout->width), static_cast<std::int32_t>(layout->height), 1, 1,
        layout->hasAlpha()});
    std::vector<std::uint8_t> stored(static_cast<std::size_t>(layout->bytesPerRow));
    std::vector<std::uint8_t> row(static_cast<std::size_t>(layout->width) * 4);
    for (std::int64_t y = 0; y < layout->height; ++y) {
        const auto line = static_cast<std::uint64_t>(layout->isTopDown ? y : layout->height - 1 - y);
        if (!input.readAt(layout->rowsBegin + line * layout->bytesPerRow, stored))
            return failAsDamaged(error, "it ends early");
        convert(stored.data(), *layout, row);
        rows.add(row.data());
    }
    return rows.complete(error);
}

} // namespace tarn
