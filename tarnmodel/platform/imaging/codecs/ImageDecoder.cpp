#include "tarnmodel/platform/imaging/codecs/ImageDecoder.h"

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <vector>

namespace tarn {

namespace {

using Decoder = bool (*)(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error);

#ifdef TARN_WITH_TIFF
constexpr Decoder kTIFFDecoder = decodeTIFF;
#else
constexpr Decoder kTIFFDecoder = nullptr;
#endif
#ifdef TARN_WITH_HEIF
constexpr Decoder kHEIFDecoder = decodeHEIF;
#else
constexpr Decoder kHEIFDecoder = nullptr;
#endif

/// By format; null for one that is not built in.
constexpr std::array<Decoder, 7> kDecoders{
    decodeJPEG, decodePNG, decodeGIF, decodeWebP, decodeBMP, kTIFFDecoder, kHEIFDecoder};

constexpr std::uint8_t kGrey = 128;

} // namespace

void fillWithMissing(std::span<std::uint8_t> pixels, bool hasAlpha)
{
    std::ranges::fill(pixels, hasAlpha ? std::uint8_t{0} : kGrey);
    for (std::size_t alpha = 3; !hasAlpha && alpha < pixels.size(); alpha += 4)
        pixels[alpha] = 255;
}

void RowDelivery::begin(const RowLayout& layout)
{
    layout_ = layout;
    count_ = 0;
    sink_.begin(layout);
}

void RowDelivery::add(const std::uint8_t* pixels)
{
    sink_.addRow(pixels);
    ++count_;
}

bool RowDelivery::complete(NSError* error)
{
    if (count_ == 0)
        return failAsDamaged(error, "it holds no row");
    if (count_ == layout_.height)
        return true;
    std::vector<std::uint8_t> row(static_cast<std::size_t>(layout_.width) * 4);
    fillWithMissing(row, layout_.hasAlpha);
    while (count_ < layout_.height)
        add(row.data());
    return true;
}

bool failAsDamaged(NSError* error, std::string_view detail)
{
    assignError(
        error, NSError(TarnImagingErrorDomain, ImagingErrorDamaged, fmt::format("The image is damaged: {}.", detail)));
    return false;
}

bool decodeImage(ImageInput& input, ImageFormat format, const DecodeRequest& request, RowSink& sink, NSError* error)
{
    const Decoder decoder = kDecoders[static_cast<std::size_t>(format)];
    if (!decoder) {
        assignError(error,
            NSError(TarnImagingErrorDomain, ImagingErrorUnknownFormat, "The library was built without this format."));
        return false;
    }
    RowDelivery rows(sink);
    return decoder(input, request, rows, error);
}

} // namespace tarn
