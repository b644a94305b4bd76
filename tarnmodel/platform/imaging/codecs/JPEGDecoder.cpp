#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/imaging/codecs/ImageDecoder.h"
#include "tarnmodel/platform/imaging/codecs/JPEGReaderInternal.h"
#include "tarnmodel/platform/imaging/codecs/LimitChecks.h"

#include <fmt/format.h>

#include <cmath>
#include <vector>

namespace tarn {

namespace {

// At 1 to 2 times the size drawn, photographs came out up to 15 off the plain filter; from 2 on, at most 3.
constexpr double kLeastPerPixel = 2;

/// The smallest size that is cheap to decode at and keeps enough for the filter.
unsigned eighthsFor(const JPEGReader& reader, const DecodeRequest& request)
{
    for (const unsigned eighths : {1U, 2U, 4U})
        if (reader.width() * (eighths / 8.0) >= kLeastPerPixel * request.drawnWidth
            && reader.height() * (eighths / 8.0) >= kLeastPerPixel * request.drawnHeight)
            return eighths;
    return 8;
}

std::uint8_t lightLeft(unsigned ink, unsigned black)
{
    return static_cast<std::uint8_t>((ink * black + 127) / 255);
}

/// Inks to light, as plain as without a profile.
void convertInk(std::vector<std::uint8_t>& row, bool isInverted)
{
    const unsigned flip = isInverted ? 0 : 255;
    for (std::size_t at = 0; at + 3 < row.size(); at += 4) {
        const unsigned black = row[at + 3] ^ flip;
        for (std::size_t ink = at; ink < at + 3; ++ink)
            row[ink] = lightLeft(row[ink] ^ flip, black);
        row[at + 3] = 255;
    }
}

bool failWith(const JPEGReader& reader, const ImageLimits& limits, NSError* error)
{
    if (!reader.isBeyondLimits())
        return failAsDamaged(error, reader.failure());
    assignError(error,
        NSError(TarnImagingErrorDomain, ImagingErrorTooLarge,
            fmt::format("The image of {} x {} pixels has more than {} scans (scansOfAJPEG).", reader.width(),
                reader.height(), limits.scansOfAJPEG)));
    return false;
}

RowLayout layoutOf(const JPEGReader& reader, unsigned eighths)
{
    const double scale = 8.0 / eighths;
    return {reader.outputWidth(), reader.outputHeight(), reader.outputWidth() * scale / reader.width(),
        reader.outputHeight() * scale / reader.height(), false};
}

void readJPEGRows(JPEGReader& reader, RowDelivery& rows)
{
    std::vector<std::uint8_t> row(static_cast<std::size_t>(reader.outputWidth()) * 4);
    while (rows.count() < rows.layout().height && reader.readRow(row.data())) {
        // The library goes on in grey where a file ends; of nothing it would make an image, too.
        if (reader.isTooDamaged() || (rows.count() == 0 && !reader.hasDecodedARow()))
            break;
        if (reader.isInk())
            convertInk(row, reader.isInkInverted());
        rows.add(row.data());
    }
}

} // namespace

bool decodeJPEG(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error)
{
    JPEGReader reader(input, request.limits);
    if (!reader.readHeader())
        return failWith(reader, request.limits, error);
    if (!isWithinLimits(reader.width(), reader.height(), request.limits, error))
        return false;
    const std::int64_t pixels = std::int64_t{reader.width()} * reader.height();
    if (reader.isProgressive() && !mayBeHeld(pixels, reader.width(), reader.height(), request.limits, error))
        return false;
    const unsigned eighths = eighthsFor(reader, request);
    if (!reader.start(eighths))
        return failWith(reader, request.limits, error);
    rows.begin(layoutOf(reader, eighths));
    readJPEGRows(reader, rows);
    return rows.complete(error);
}

} // namespace tarn
