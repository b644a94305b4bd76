#include "tarnmodel/platform/imaging/codecs/ImageDecoder.h"
#include "tarnmodel/platform/imaging/codecs/LimitChecks.h"
#include "tarnmodel/platform/imaging/codecs/PNGReaderInternal.h"

#include <vector>

namespace tarn {

namespace {

void readPNGRows(PNGReader& reader, RowDelivery& rows)
{
    std::vector<std::uint8_t> row(static_cast<std::size_t>(reader.width()) * 4);
    while (rows.count() < rows.layout().height && reader.readRow(row.data()))
        rows.add(row.data());
}

/// Of a file that ends early, each pixel is as the pass that came last has left it.
void readPasses(PNGReader& reader, RowDelivery& rows)
{
    const auto height = static_cast<std::size_t>(reader.height());
    const std::size_t bytesPerRow = static_cast<std::size_t>(reader.width()) * 4;
    std::vector<std::uint8_t> pixels(height * bytesPerRow);
    fillWithMissing(pixels, rows.layout().hasAlpha);
    std::size_t rowsRead = 0;
    bool isSound = true;
    for (int pass = 0; pass < reader.passes() && isSound; ++pass)
        for (std::size_t y = 0; y < height && isSound; ++y) {
            isSound = reader.readRowOfPass(pixels.data() + y * bytesPerRow);
            rowsRead += isSound;
        }
    for (std::size_t y = 0; y < height && rowsRead > 0; ++y)
        rows.add(pixels.data() + y * bytesPerRow);
}

} // namespace

bool decodePNG(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error)
{
    PNGReader reader(input, request.limits);
    if (!reader.readHeader())
        return failAsDamaged(error, reader.failure());
    if (!isWithinLimits(reader.width(), reader.height(), request.limits, error))
        return false;
    const std::int64_t pixels = reader.width() * reader.height();
    if (reader.isInterlaced() && !mayBeHeld(pixels, reader.width(), reader.height(), request.limits, error))
        return false;
    const bool hasAlpha = reader.hasAlpha();
    if (!reader.start())
        return failAsDamaged(error, reader.failure());
    rows.begin({static_cast<std::int32_t>(reader.width()), static_cast<std::int32_t>(reader.height()), 1, 1, hasAlpha});
    if (reader.isInterlaced())
        readPasses(reader, rows);
    else
        readPNGRows(reader, rows);
    return rows.complete(error);
}

} // namespace tarn
