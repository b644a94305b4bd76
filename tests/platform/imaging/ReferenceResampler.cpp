#include "tests/platform/imaging/ReferenceResampler.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace tarn {

namespace {

using Weights = std::vector<double>;

double sinc(double x)
{
    return x == 0 ? 1 : std::sin(M_PI * x) / (M_PI * x);
}

/// For each pixel of a line of the canvas, how much of it each sample is, and how much of the pixel is covered.
struct ReferenceLine {
    std::vector<Weights> weights;
    std::vector<double> coverage;
};

ReferenceLine lineOf(int samples, int pixels, double begin, double length)
{
    ReferenceLine line;
    const double pixelsPerSample = length / samples;
    const double stretch = std::min(1.0, pixelsPerSample);
    for (int pixel = 0; pixel < pixels; ++pixel) {
        const double from = std::clamp<double>(begin, pixel, pixel + 1);
        const double to = std::clamp<double>(begin + length, pixel, pixel + 1);
        Weights weights(static_cast<std::size_t>(samples));
        double sum = 0;
        for (int sample = 0; sample < samples; ++sample) {
            // Of the sample's middle, in samples, from where the pixel looks.
            const double away = sample + 0.5 - ((from + to) / 2 - begin) / pixelsPerSample;
            const double lobe = std::abs(away * stretch) < 3 ? sinc(away * stretch) * sinc(away * stretch / 3) : 0;
            weights[static_cast<std::size_t>(sample)] = lobe;
            sum += lobe;
        }
        for (double& weight : weights)
            weight = to > from ? weight / sum : 0;
        line.weights.push_back(weights);
        line.coverage.push_back(to - from);
    }
    return line;
}

using Sums = std::vector<std::array<double, 4>>;

/// One row of the picture along one line of the canvas.
Sums alongRow(const std::uint8_t* row, const ReferenceLine& columns)
{
    Sums sums;
    for (const Weights& weights : columns.weights) {
        std::array<double, 4> sum{};
        for (std::size_t sample = 0; sample < weights.size(); ++sample)
            for (std::size_t channel = 0; channel < 4; ++channel)
                sum[channel] += weights[sample] * row[4 * sample + channel];
        sums.push_back(sum);
    }
    return sums;
}

} // namespace

Bitmap drawnByReference(const Bitmap& picture, std::int32_t canvasWidth, std::int32_t canvasHeight, double x, double y,
    double width, double height)
{
    Bitmap canvas(canvasWidth, canvasHeight, Bitmap::Alpha::Premultiplied);
    const ReferenceLine columns = lineOf(picture.width(), canvasWidth, x, width);
    const ReferenceLine rows = lineOf(picture.height(), canvasHeight, y, height);
    std::vector<Sums> along;
    for (std::int32_t row = 0; row < picture.height(); ++row)
        along.push_back(alongRow(picture.row(row), columns));
    for (std::size_t row = 0; row < rows.weights.size(); ++row)
        for (std::size_t column = 0; column < columns.weights.size(); ++column) {
            std::array<double, 4> sum{};
            for (std::size_t sample = 0; sample < along.size(); ++sample)
                for (std::size_t channel = 0; channel < 4; ++channel)
                    sum[channel] += rows.weights[row][sample] * along[sample][column][channel];
            const double coverage = rows.coverage[row] * columns.coverage[column];
            const double alpha = std::clamp(sum[3], 0.0, 255.0);
            std::uint8_t* pixel = canvas.row(static_cast<std::int32_t>(row)) + 4 * column;
            for (std::size_t channel = 0; channel < 4; ++channel)
                pixel[channel]
                    = static_cast<std::uint8_t>(std::lround(std::clamp(sum[channel], 0.0, alpha) * coverage));
        }
    return canvas;
}

} // namespace tarn
