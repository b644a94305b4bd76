#include "tarnmodel/platform/imaging/resampling/AxisFilter.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace tarn {

namespace {

using Interpolation = DrawingOptions::Interpolation;

// So that weights never add up to nothing.
constexpr double kLeastShare = 1e-6;

double lanczos3(double distance)
{
    if (distance == 0)
        return 1;
    if (std::abs(distance) >= 3)
        return 0;
    const double angle = std::numbers::pi * distance;
    return 3 * std::sin(angle) * std::sin(angle / 3) / (angle * angle);
}

double triangle(double distance)
{
    return std::max(0.0, 1 - std::abs(distance));
}

} // namespace

/// A filter, widened where several samples fall on one pixel.
struct AxisFilter::Kernel {
    double (*weight)(double distance) = nullptr; ///< null: the nearest sample
    double radius = 0;
    double scale = 1;

    Kernel(Interpolation interpolation, double samplesPerPixel) : scale(std::max(1.0, samplesPerPixel))
    {
        if (interpolation == Interpolation::High) {
            weight = lanczos3;
            radius = 3;
        } else if (interpolation == Interpolation::Low) {
            weight = triangle;
            radius = 1;
        }
    }
};

AxisPlacement snapped(const AxisPlacement& placement)
{
    const double begin = std::round(placement.begin);
    return {begin, std::max(1.0, std::round(placement.end()) - begin)};
}

AxisFilter::AxisFilter(std::int32_t samples, ImageSamples::Extent extent, const AxisPlacement& placement,
    std::int32_t canvasLength, Interpolation interpolation)
    : samples_(samples)
{
    const double begin = std::max(0.0, placement.begin);
    const double end = std::min<double>(canvasLength, placement.end());
    if (!(begin < end))
        return;
    firstPixel_ = static_cast<std::int32_t>(std::floor(begin));
    const auto endPixel = static_cast<std::int32_t>(std::ceil(end));

    const double samplesOfPicture = samples / (extent.end - extent.begin);
    pictureBegin_ = -extent.begin * samplesOfPicture;
    pictureEnd_ = pictureBegin_ + samplesOfPicture;
    const Kernel kernel(interpolation, samplesOfPicture / placement.length);
    for (std::int32_t pixel = firstPixel_; pixel < endPixel; ++pixel) {
        const double left = std::max<double>(pixel, placement.begin);
        const double right = std::min<double>(pixel + 1.0, placement.end());
        // A pixel in part takes what lies in the middle of that part.
        const double place = ((left + right) / 2 - placement.begin) / placement.length;
        addPixel((place - extent.begin) * samplesOfPicture, right - left, kernel);
    }
}

double AxisFilter::weightOf(std::int32_t sample, double centre, const Kernel& kernel) const
{
    if (!kernel.weight)
        return 1;
    // Of a sample that reaches beyond the picture only the rest counts, in the middle of that rest.
    const double begin = std::max<double>(sample, pictureBegin_);
    const double end = std::min(sample + 1.0, pictureEnd_);
    return kernel.weight(((begin + end) / 2 - centre) / kernel.scale) * std::max(end - begin, kLeastShare);
}

void AxisFilter::addPixel(double centre, double coverage, const Kernel& kernel)
{
    const double last = samples_ - 1;
    const double reach = kernel.radius * kernel.scale;
    auto first = static_cast<std::int32_t>(std::clamp(std::floor(centre - reach), 0.0, last));
    auto end = static_cast<std::int32_t>(std::clamp(std::floor(centre + reach), 0.0, last)) + 1;
    scratch_.clear();
    for (std::int32_t sample = first; sample < end; ++sample)
        scratch_.push_back(weightOf(sample, centre, kernel));
    while (scratch_.size() > 1 && scratch_.back() == 0)
        scratch_.pop_back();

    // Beyond its edges a picture has nothing: the samples that are there stand for it.
    const double sum = std::accumulate(scratch_.begin(), scratch_.end(), 0.0);
    taps_.push_back({first, static_cast<std::int32_t>(scratch_.size()), weights_.size(), static_cast<float>(coverage)});
    for (const double weight : scratch_)
        weights_.push_back(static_cast<float>(weight / sum));
    mostWeights_ = std::max(mostWeights_, taps_.back().count);
}

AxisFilter::Pixel AxisFilter::pixel(std::int32_t position) const
{
    const Taps& taps = taps_[static_cast<std::size_t>(position)];
    return {taps.first, std::span(weights_).subspan(taps.weights, static_cast<std::size_t>(taps.count)), taps.coverage};
}

} // namespace tarn
