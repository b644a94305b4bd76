#include "tarnmodel/platform/imaging/resampling/BoxShrink.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarn {

namespace {

constexpr float kFullByte = 255;
// With twice the size, photographs came out up to 3 off the plain filter; with three times, at most 2, mostly 1.
constexpr double kSamplesPerPixel = 3;
// The sum of so many values is exact in single precision.
constexpr std::int32_t kLongestBox = 256;
static_assert(kLongestBox * ImageSamples::Full <= 1 << 24);

std::int32_t boxesIn(std::int32_t pixels, std::int32_t box)
{
    return static_cast<std::int32_t>((std::int64_t{pixels} + box - 1) / box);
}

double reach(std::int32_t pixels, std::int32_t box, double covered)
{
    return covered * boxesIn(pixels, box) * box / pixels;
}

PixelVector premultiplied(const std::uint8_t* pixel)
{
    const auto alpha = static_cast<float>(pixel[3]);
    return {PixelVector::of(pixel).channels * PixelVector::Channels{alpha, alpha, alpha, kFullByte}};
}

PixelVector widened(const std::uint8_t* pixel)
{
    return PixelVector::of(pixel) * kFullByte;
}

} // namespace

std::int32_t BoxShrink::boxLength(std::int32_t pixels, double drawnLength)
{
    const double boxes = std::floor(pixels / (kSamplesPerPixel * drawnLength));
    // What is no number keeps all pixels.
    return boxes >= 1 ? static_cast<std::int32_t>(std::min<double>(boxes, kLongestBox)) : 1;
}

std::int64_t BoxShrink::sampleCount(const RowLayout& layout) const
{
    return std::int64_t{boxesIn(layout.width, boxLength(layout.width, drawnWidth_))}
    * boxesIn(layout.height, boxLength(layout.height, drawnHeight_));
}

void BoxShrink::begin(const RowLayout& layout)
{
    layout_ = layout;
    boxWidth_ = boxLength(layout.width, drawnWidth_);
    boxHeight_ = boxLength(layout.height, drawnHeight_);
    samples_ = ImageSamples(boxesIn(layout.width, boxWidth_), boxesIn(layout.height, boxHeight_), layout.hasAlpha,
        {0, reach(layout.width, boxWidth_, layout.coveredWidth)},
        {0, reach(layout.height, boxHeight_, layout.coveredHeight)});
    sums_.assign(static_cast<std::size_t>(samples_.width()), {});
    openRows_ = 0;
    finishedRows_ = 0;
}

void BoxShrink::addRow(const std::uint8_t* pixels)
{
    // Where there is no alpha, nothing is changed by it.
    addRow(pixels, !layout_.hasAlpha);
}

void BoxShrink::addPremultipliedRow(const std::uint8_t* pixels)
{
    addRow(pixels, true);
}

void BoxShrink::addRow(const std::uint8_t* pixels, bool isPremultiplied)
{
    if (finishedRows_ == samples_.height())
        return;
    if (boxWidth_ == 1 && boxHeight_ == 1)
        keepRow(pixels, isPremultiplied);
    else if (isPremultiplied)
        add(pixels, widened);
    else
        add(pixels, premultiplied);
}

void BoxShrink::keepRow(const std::uint8_t* pixels, bool isPremultiplied)
{
    std::uint16_t* value = samples_.row(finishedRows_++);
    const std::uint16_t* const end = value + samples_.valuesPerRow();
    for (; value != end; value += 4, pixels += 4) {
        const unsigned factor = isPremultiplied ? 255U : pixels[3];
        for (int channel = 0; channel < 3; ++channel)
            value[channel] = static_cast<std::uint16_t>(pixels[channel] * factor);
        value[3] = static_cast<std::uint16_t>(pixels[3] * 255U);
    }
}

template <typename Pixel> void BoxShrink::add(const std::uint8_t* pixels, Pixel pixel)
{
    const std::uint8_t* const end = pixels + std::size_t{4} * static_cast<std::size_t>(layout_.width);
    for (BoxSum& sum : sums_) {
        PixelVector box;
        const std::uint8_t* const boxEnd
            = pixels + std::min<std::ptrdiff_t>(std::ptrdiff_t{4} * boxWidth_, end - pixels);
        for (; pixels != boxEnd; pixels += 4)
            box += pixel(pixels);
        sum.channels += __builtin_convertvector(box.channels, PixelVector::WideChannels);
    }
    ++openRows_;
    if (openRows_ == boxHeight_)
        closeBoxes();
}

void BoxShrink::closeBoxes()
{
    std::uint16_t* value = samples_.row(finishedRows_);
    // The last box of a row may be narrower, as may be the last of a column.
    std::int32_t remaining = layout_.width;
    for (BoxSum& sum : sums_) {
        const double share = 1 / (static_cast<double>(std::min(boxWidth_, remaining)) * openRows_);
        for (int channel = 0; channel < 4; ++channel)
            *value++ = static_cast<std::uint16_t>(sum.channels[channel] * share + 0.5);
        remaining -= boxWidth_;
        sum = {};
    }
    openRows_ = 0;
    ++finishedRows_;
}

ImageSamples BoxShrink::takeSamples()
{
    if (openRows_ > 0)
        closeBoxes();
    sums_.clear();
    return std::exchange(samples_, {});
}

} // namespace tarn
