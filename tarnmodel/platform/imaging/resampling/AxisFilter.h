#pragma once

#include "tarnmodel/platform/imaging/ImageDrawing.h"
#include "tarnmodel/platform/imaging/ImageSamples.h"

#include <cstdint>
#include <span>
#include <vector>

namespace tarn {

/// Where a picture lies along one axis of a canvas, in pixels.
struct AxisPlacement {
    double begin = 0;
    double length = 0;

    double end() const { return begin + length; }
};

/// The borders of whole pixels next to these; a pixel remains at least.
AxisPlacement snapped(const AxisPlacement& placement);

/// What each pixel of a canvas takes of which samples, along one axis.
class AxisFilter {
public:
    /// One pixel of the canvas: the samples from `first` on, each with its weight; weights sum up to 1.
    struct Pixel {
        std::int32_t first = 0;
        std::span<const float> weights;
        /// How much of the pixel the picture covers, 0 to 1.
        float coverage = 0;
    };

    /// `samples`: how many reach over `extent` of the picture; 1 at least.
    AxisFilter(std::int32_t samples, ImageSamples::Extent extent, const AxisPlacement& placement,
        std::int32_t canvasLength, DrawingOptions::Interpolation interpolation);

    /// The pixels of the canvas that the picture touches: from this one on, so many, perhaps none.
    std::int32_t firstPixel() const { return firstPixel_; }
    std::int32_t pixelCount() const { return static_cast<std::int32_t>(taps_.size()); }
    /// By their position among those.
    Pixel pixel(std::int32_t position) const;
    /// Of all pixels.
    std::int32_t mostWeights() const { return mostWeights_; }

private:
    struct Taps {
        std::int32_t first = 0;
        std::int32_t count = 0;
        std::size_t weights = 0;
        float coverage = 0;
    };
    struct Kernel;

    void addPixel(double centre, double coverage, const Kernel& kernel);
    double weightOf(std::int32_t sample, double centre, const Kernel& kernel) const;

    std::int32_t samples_ = 0;
    /// Where the picture itself begins and ends, in samples.
    double pictureBegin_ = 0;
    double pictureEnd_ = 0;
    std::int32_t firstPixel_ = 0;
    std::int32_t mostWeights_ = 0;
    std::vector<Taps> taps_;
    std::vector<float> weights_;
    std::vector<double> scratch_;
};

} // namespace tarn
