#pragma once

#include "tarnmodel/platform/imaging/ImageFile.h"
#include "tarnmodel/platform/imaging/ImageLimits.h"
#include "tarnmodel/platform/imaging/resampling/RowSink.h"

#include <cstdint>
#include <limits>
#include <span>
#include <string_view>

namespace tarn {

class ImageInput;

/// What is wanted of an image.
struct DecodeRequest {
    ImageLimits limits = ImageLimits::current();
    /// The size in pixels that rows will be drawn at, along them and across them. A decoder that shrinks cheaply may
    /// deliver fewer and narrower rows, never below twice this size.
    double drawnWidth = std::numeric_limits<double>::infinity();
    double drawnHeight = std::numeric_limits<double>::infinity();
};

/// What stands for pixels that a file lacks: transparent where there is alpha, else grey.
void fillWithMissing(std::span<std::uint8_t> pixels, bool hasAlpha);

/// Rows on their way to a sink, counted. What a decoder cannot deliver is made up for.
class RowDelivery {
public:
    explicit RowDelivery(RowSink& sink) : sink_(sink) { }

    void begin(const RowLayout& layout);
    void add(const std::uint8_t* pixels);
    /// Adds the rows that are missing. False with an error when no row came.
    bool complete(NSError* error);

    const RowLayout& layout() const { return layout_; }
    std::int32_t count() const { return count_; }

private:
    RowSink& sink_;
    RowLayout layout_;
    std::int32_t count_ = 0;
};

/// Decodes the image into the sink. False with an error when it is beyond the limits, or not one row can be decoded;
/// the sink then may have begun. Raises std::bad_alloc.
bool decodeImage(ImageInput& input, ImageFormat format, const DecodeRequest& request, RowSink& sink, NSError* error);

// One for each format, for a file that begins as that format does. Each asks the limits itself, of the size that its
// library reads from the file, before rows are decoded.
bool decodeJPEG(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error);
bool decodePNG(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error);
bool decodeGIF(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error);
bool decodeWebP(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error);
bool decodeBMP(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error);
// Only where the library was built with them.
bool decodeTIFF(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error);
bool decodeHEIF(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error);

/// Stores "The image is damaged" with what a library says, and is false.
bool failAsDamaged(NSError* error, std::string_view detail);

} // namespace tarn
