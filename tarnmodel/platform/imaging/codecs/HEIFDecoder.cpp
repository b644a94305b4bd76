// Only built where HEIF is wanted.
#ifdef TARN_WITH_HEIF

#include "tarnmodel/platform/imaging/codecs/HeaderReader.h"
#include "tarnmodel/platform/imaging/codecs/ImageDecoder.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"
#include "tarnmodel/platform/imaging/codecs/LimitChecks.h"
#include "tarnmodel/platform/imaging/codecs/StraightRow.h"

#include <libheif/heif.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace tarn {

namespace {

struct Release {
    void operator()(heif_context* context) const { heif_context_free(context); }
    void operator()(heif_image_handle* handle) const { heif_image_handle_release(handle); }
    void operator()(heif_image* image) const { heif_image_release(image); }
};

/// The primary image of a file that is held whole, turned as the file says.
struct PrimaryImage {
    std::vector<std::uint8_t> bytes;
    std::unique_ptr<heif_context, Release> context;
    std::unique_ptr<heif_image_handle, Release> handle;

    /// None when the file is not as it should be.
    explicit PrimaryImage(ImageInput& input)
        : bytes(static_cast<std::size_t>(input.size())), context(heif_context_alloc())
    {
        heif_image_handle* found = nullptr;
        if (context && input.readAt(0, bytes)
            && heif_context_read_from_memory_without_copy(context.get(), bytes.data(), bytes.size(), nullptr).code
                == heif_error_Ok
            && heif_context_get_primary_image_handle(context.get(), &found).code == heif_error_Ok)
            handle.reset(found);
    }

    std::int32_t width() const { return heif_image_handle_get_width(handle.get()); }
    std::int32_t height() const { return heif_image_handle_get_height(handle.get()); }
    bool hasAlpha() const { return heif_image_handle_has_alpha_channel(handle.get()) != 0; }
    bool isPremultiplied() const { return heif_image_handle_is_premultiplied_alpha(handle.get()) != 0; }
};

void deliverPlane(const PrimaryImage& primary, const std::uint8_t* plane, int stride, RowDelivery& rows)
{
    const auto width = static_cast<std::size_t>(rows.layout().width);
    std::vector<std::uint8_t> row(width * 4);
    for (std::int32_t y = 0; y < rows.layout().height; ++y) {
        std::copy_n(plane + std::ptrdiff_t{stride} * y, row.size(), row.begin());
        for (std::size_t at = 3; !rows.layout().hasAlpha && at < row.size(); at += 4)
            row[at] = 255;
        if (primary.isPremultiplied())
            makeStraight(row.data(), width);
        rows.add(row.data());
    }
}

} // namespace

std::optional<ImageHeader> readHEIFHeader(ImageInput& input)
{
    if (!mayBeReadWhole(input.size(), ImageLimits::current(), nullptr))
        return std::nullopt;
    const PrimaryImage primary(input);
    if (!primary.handle || primary.width() <= 0 || primary.height() <= 0)
        return std::nullopt;
    return ImageHeader{ImageFormat::HEIF, primary.width(), primary.height(), 1, primary.hasAlpha()};
}

bool decodeHEIF(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error)
{
    if (!mayBeReadWhole(input.size(), request.limits, error))
        return false;
    const PrimaryImage primary(input);
    if (!primary.handle || primary.width() <= 0 || primary.height() <= 0)
        return failAsDamaged(error, "it has no primary image");
    const std::int64_t width = primary.width();
    const std::int64_t height = primary.height();
    if (!isWithinLimits(width, height, request.limits, error)
        || !mayBeHeld(width * height, width, height, request.limits, error))
        return false;
    heif_image* decoded = nullptr;
    const heif_error failure
        = heif_decode_image(primary.handle.get(), &decoded, heif_colorspace_RGB, heif_chroma_interleaved_RGBA, nullptr);
    const std::unique_ptr<heif_image, Release> image(decoded);
    int stride = 0;
    const std::uint8_t* plane
        = image ? heif_image_get_plane_readonly(image.get(), heif_channel_interleaved, &stride) : nullptr;
    // The container's size may be another than that of what it contains.
    if (failure.code != heif_error_Ok || !plane || heif_image_get_width(image.get(), heif_channel_interleaved) != width
        || heif_image_get_height(image.get(), heif_channel_interleaved) != height)
        return failAsDamaged(error, "its pixels cannot be decoded");
    rows.begin({primary.width(), primary.height(), 1, 1, primary.hasAlpha()});
    deliverPlane(primary, plane, stride, rows);
    return rows.complete(error);
}

} // namespace tarn

#endif
