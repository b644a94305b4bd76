#pragma once

#include "tarnmodel/platform/imaging/ImageSamples.h"
#include "tarnmodel/platform/imaging/resampling/PixelVector.h"
#include "tarnmodel/platform/imaging/resampling/RowSink.h"

#include <vector>

namespace tarn {

/// Averages boxes of pixels while rows come in, so that at least three times the size drawn is left on each axis: a
/// filter does the rest. Memory follows what is left. Colours are premultiplied before they are averaged, so that what
/// is transparent does not show.
class BoxShrink : public RowSink {
public:
    /// For rows that are to be drawn at this size in pixels, measured along them and across them.
    BoxShrink(double drawnWidth, double drawnHeight) : drawnWidth_(drawnWidth), drawnHeight_(drawnHeight) { }

    void begin(const RowLayout& layout) override;
    void addRow(const std::uint8_t* pixels) override;
    /// The same for a row whose colours are premultiplied already.
    void addPremultipliedRow(const std::uint8_t* pixels);

    /// What was made of the rows so far. Leaves nothing behind.
    ImageSamples takeSamples();

    /// How many of so many pixels are averaged for one that is drawn at this length.
    static std::int32_t boxLength(std::int32_t pixels, double drawnLength);
    /// How many samples will be left of rows like these.
    std::int64_t sampleCount(const RowLayout& layout) const;

private:
    struct BoxSum {
        PixelVector::WideChannels channels = {0, 0, 0, 0};
    };

    void addRow(const std::uint8_t* pixels, bool isPremultiplied);
    void keepRow(const std::uint8_t* pixels, bool isPremultiplied);
    template <typename Pixel> void add(const std::uint8_t* pixels, Pixel pixel);
    void closeBoxes();

    double drawnWidth_ = 0;
    double drawnHeight_ = 0;
    RowLayout layout_;
    std::int32_t boxWidth_ = 1;
    std::int32_t boxHeight_ = 1;
    /// Of the boxes that are open: rows in them, and the sums of their pixels.
    std::int32_t openRows_ = 0;
    std::vector<BoxSum> sums_;
    std::int32_t finishedRows_ = 0;
    ImageSamples samples_;
};

} // namespace tarn
