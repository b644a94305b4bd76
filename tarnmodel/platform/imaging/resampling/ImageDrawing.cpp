#include "tarnmodel/platform/imaging/ImageDrawing.h"

#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tarnmodel/platform/imaging/resampling/AxisFilter.h"
#include "tarnmodel/platform/imaging/resampling/BoxShrink.h"
#include "tarnmodel/platform/imaging/resampling/PixelVector.h"

#include <algorithm>
#include <cmath>

namespace tarn {

namespace {

/// One picture on its way into one canvas: rows are filtered along first, then across, each once.
template <typename Picture> class Drawing {
public:
    Drawing(const Picture& picture, float fullValue, const AxisFilter& columns, const AxisFilter& rows)
        : picture_(picture), columns_(columns), rows_(rows), byteOfValue_(255 / fullValue),
          source_(static_cast<std::size_t>(picture.width())),
          kept_(static_cast<std::size_t>(columns.pixelCount()) * static_cast<std::size_t>(rows.mostWeights())),
          sums_(static_cast<std::size_t>(columns.pixelCount()))
    { }

    void drawInto(Bitmap& canvas, float alpha)
    {
        for (std::int32_t position = 0; position < rows_.pixelCount(); ++position) {
            const AxisFilter::Pixel row = rows_.pixel(position);
            sumRows(row);
            blend(canvas.row(rows_.firstPixel() + position) + std::size_t{4} * firstColumn(), alpha * row.coverage);
        }
    }

private:
    std::size_t firstColumn() const { return static_cast<std::size_t>(columns_.firstPixel()); }

    /// The place of a filtered row: as many are kept as one row of the canvas needs.
    PixelVector* keptRow(std::int32_t sourceRow)
    {
        return kept_.data() + static_cast<std::size_t>(sourceRow % rows_.mostWeights()) * sums_.size();
    }

    void filterRow(std::int32_t sourceRow)
    {
        const auto* value = picture_.row(sourceRow);
        for (PixelVector& pixel : source_) {
            pixel = PixelVector::of(value);
            value += 4;
        }
        PixelVector* result = keptRow(sourceRow);
        for (std::int32_t position = 0; position < columns_.pixelCount(); ++position) {
            const AxisFilter::Pixel column = columns_.pixel(position);
            const PixelVector* sample = source_.data() + column.first;
            PixelVector sum;
            for (const float weight : column.weights)
                sum += *sample++ * weight;
            *result++ = sum;
        }
    }

    void sumRows(const AxisFilter::Pixel& row)
    {
        const auto end = row.first + static_cast<std::int32_t>(row.weights.size());
        for (nextRow_ = std::max(nextRow_, row.first); nextRow_ < end; ++nextRow_)
            filterRow(nextRow_);
        std::ranges::fill(sums_, PixelVector());
        for (std::int32_t sourceRow = row.first; sourceRow < end; ++sourceRow) {
            const float weight = row.weights[static_cast<std::size_t>(sourceRow - row.first)] * byteOfValue_;
            const PixelVector* kept = keptRow(sourceRow);
            for (PixelVector& sum : sums_)
                sum += *kept++ * weight;
        }
    }

    void blend(std::uint8_t* target, float alpha) const
    {
        for (std::int32_t position = 0; position < columns_.pixelCount(); ++position, target += 4) {
            const PixelVector::Channels sum = sums_[static_cast<std::size_t>(position)].channels;
            const float opacity = alpha * columns_.pixel(position).coverage;
            // The lobes of the filter go beyond what there is.
            const float full = std::clamp(sum[3], 0.0F, 255.0F);
            const float below = 1 - full / 255 * opacity;
            for (int channel = 0; channel < 4; ++channel) {
                const float over = std::clamp(sum[channel], 0.0F, full) * opacity;
                const auto result = over + static_cast<float>(target[channel]) * below;
                target[channel] = static_cast<std::uint8_t>(result + 0.5F);
            }
        }
    }

    const Picture& picture_;
    const AxisFilter& columns_;
    const AxisFilter& rows_;
    float byteOfValue_;
    std::vector<PixelVector> source_;
    std::vector<PixelVector> kept_;
    std::vector<PixelVector> sums_;
    std::int32_t nextRow_ = 0;
};

struct Placement {
    AxisPlacement across;
    AxisPlacement down;

    bool isDrawable() const
    {
        return std::isfinite(across.begin) && std::isfinite(across.end()) && across.length > 0
            && std::isfinite(down.begin) && std::isfinite(down.end()) && down.length > 0;
    }
};

template <typename Picture>
void drawPicture(const Picture& picture, float fullValue, ImageSamples::Extent horizontal,
    ImageSamples::Extent vertical, Bitmap& canvas, const Placement& placement, const DrawingOptions& options)
{
    const AxisFilter columns(picture.width(), horizontal, placement.across, canvas.width(), options.interpolation);
    const AxisFilter rows(picture.height(), vertical, placement.down, canvas.height(), options.interpolation);
    if (columns.pixelCount() > 0 && rows.pixelCount() > 0)
        Drawing(picture, fullValue, columns, rows)
            .drawInto(canvas, static_cast<float>(std::clamp(options.alpha, 0.0, 1.0)));
}

Placement placementOf(double x, double y, double width, double height, const DrawingOptions& options)
{
    const Placement placement{{x, width}, {y, height}};
    if (options.antialias || !placement.isDrawable())
        return placement;
    return {snapped(placement.across), snapped(placement.down)};
}

ImageSamples shrunk(const Bitmap& picture, const Placement& placement)
{
    BoxShrink shrink(placement.across.length, placement.down.length);
    shrink.begin({picture.width(), picture.height(), 1, 1, picture.hasAlpha()});
    for (std::int32_t y = 0; y < picture.height(); ++y)
        shrink.addPremultipliedRow(picture.row(y));
    return shrink.takeSamples();
}

bool isDrawn(bool pictureIsEmpty, const Placement& placement, const DrawingOptions& options)
{
    return !pictureIsEmpty && placement.isDrawable() && options.alpha > 0;
}

} // namespace

void drawImage(const ImageSamples& picture, Bitmap& canvas, double x, double y, double width, double height,
    const DrawingOptions& options)
{
    const Placement placement = placementOf(x, y, width, height, options);
    if (isDrawn(picture.isEmpty(), placement, options))
        drawPicture(picture, ImageSamples::Full, picture.horizontal(), picture.vertical(), canvas, placement, options);
}

void drawImage(const Bitmap& picture, Bitmap& canvas, double x, double y, double width, double height,
    const DrawingOptions& options)
{
    const Placement placement = placementOf(x, y, width, height, options);
    if (!isDrawn(picture.isEmpty(), placement, options))
        return;
    const bool isShrunk = BoxShrink::boxLength(picture.width(), placement.across.length) > 1
        || BoxShrink::boxLength(picture.height(), placement.down.length) > 1;
    // The nearest pixel is one of the picture's own.
    if (isShrunk && options.interpolation != DrawingOptions::Interpolation::None) {
        const ImageSamples samples = shrunk(picture, placement);
        drawPicture(samples, ImageSamples::Full, samples.horizontal(), samples.vertical(), canvas, placement, options);
    } else {
        drawPicture(picture, 255, {}, {}, canvas, placement, options);
    }
}

} // namespace tarn
