#include "tarnmodel/platform/imaging/codecs/ImageDecoder.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"
#include "tarnmodel/platform/imaging/codecs/LimitChecks.h"

#include <webp/decode.h>
#include <webp/demux.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace tarn {

namespace {

struct DeleteDemuxer {
    void operator()(WebPDemuxer* demuxer) const { WebPDemuxDelete(demuxer); }
};

/// The first frame of a file that has only one, too.
class FirstFrame {
public:
    FirstFrame(const std::vector<std::uint8_t>& bytes)
    {
        const WebPData data{bytes.data(), bytes.size()};
        demuxer_.reset(WebPDemux(&data));
        isThere_ = demuxer_ && WebPDemuxGetFrame(demuxer_.get(), 1, &frame_) != 0;
    }
    ~FirstFrame() { WebPDemuxReleaseIterator(&frame_); }
    FirstFrame(const FirstFrame&) = delete;
    FirstFrame& operator=(const FirstFrame&) = delete;

    bool isThere() const { return isThere_; }
    const WebPIterator& get() const { return frame_; }
    std::int32_t canvasWidth() const { return feature(WEBP_FF_CANVAS_WIDTH); }
    std::int32_t canvasHeight() const { return feature(WEBP_FF_CANVAS_HEIGHT); }
    bool hasAlpha() const { return frame_.has_alpha != 0 || isAnimated(); }

private:
    bool isAnimated() const { return (feature(WEBP_FF_FORMAT_FLAGS) & ANIMATION_FLAG) != 0; }
    std::int32_t feature(WebPFormatFeature name) const
    {
        return static_cast<std::int32_t>(WebPDemuxGetI(demuxer_.get(), name));
    }

    std::unique_ptr<WebPDemuxer, DeleteDemuxer> demuxer_;
    WebPIterator frame_ = {};
    bool isThere_ = false;
};

void deliver(const FirstFrame& frame, const std::vector<std::uint8_t>& pixels, RowDelivery& rows)
{
    const WebPIterator& place = frame.get();
    rows.begin({frame.canvasWidth(), frame.canvasHeight(), 1, 1, frame.hasAlpha()});
    const std::size_t bytesPerRow = 4 * static_cast<std::size_t>(place.width);
    std::vector<std::uint8_t> row(4 * static_cast<std::size_t>(frame.canvasWidth()));
    for (int y = 0; y < frame.canvasHeight(); ++y) {
        std::ranges::fill(row, std::uint8_t{0});
        const int line = y - place.y_offset;
        // That frames lie within the canvas was checked when they were found.
        if (line >= 0 && line < place.height)
            std::copy_n(pixels.data() + bytesPerRow * static_cast<std::size_t>(line), bytesPerRow,
                row.data() + 4 * static_cast<std::size_t>(place.x_offset));
        // The pixels of a file that says to have no alpha may have some.
        for (std::size_t alpha = 3; !frame.hasAlpha() && alpha < row.size(); alpha += 4)
            row[alpha] = 255;
        rows.add(row.data());
    }
}

} // namespace

bool decodeWebP(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error)
{
    if (!mayBeReadWhole(input.size(), request.limits, error))
        return false;
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(input.size()));
    if (!input.readAt(0, bytes))
        return failAsDamaged(error, "it ends early");
    const FirstFrame frame(bytes);
    if (!frame.isThere())
        return failAsDamaged(error, "it has no frame that is whole");
    const std::int64_t width = frame.canvasWidth();
    const std::int64_t height = frame.canvasHeight();
    if (!isWithinLimits(width, height, request.limits, error)
        || !mayBeHeld(width * height, width, height, request.limits, error))
        return false;
    const WebPIterator& place = frame.get();
    if (place.x_offset + place.width > width || place.y_offset + place.height > height)
        return failAsDamaged(error, "its frame lies outside of it");
    std::vector<std::uint8_t> pixels(
        4 * static_cast<std::size_t>(place.width) * static_cast<std::size_t>(place.height));
    if (!WebPDecodeRGBAInto(place.fragment.bytes, place.fragment.size, pixels.data(), pixels.size(), 4 * place.width))
        return failAsDamaged(error, "its pixels cannot be decoded");
    deliver(frame, pixels, rows);
    return rows.complete(error);
}

} // namespace tarn
