#include "tarnmodel/files/thumbnails/OVImageAlphaTrimmer.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tarn {

namespace {

constexpr std::int32_t kBytesOfAPixel = 4;
constexpr std::int32_t kAlphaByte = 3;

/// Looks for content in single rows of a picture.
class ContentScan {
public:
    ContentScan(const Bitmap& image, bool fullOpacity) : image_(image), least_(fullOpacity ? 255 : 1) { }

    /// The first column with content from the left, looked for before `end`, else `end`.
    std::int32_t firstColumn(std::int32_t y, std::int32_t end) const
    {
        const std::uint8_t* alpha = image_.row(y) + kAlphaByte;
        for (std::int32_t x = 0; x < end; ++x)
            if (alpha[std::ptrdiff_t{x} * kBytesOfAPixel] >= least_)
                return x;
        return end;
    }

    /// The last column with content, looked for behind `before`, else `before`.
    std::int32_t lastColumn(std::int32_t y, std::int32_t before) const
    {
        const std::uint8_t* alpha = image_.row(y) + kAlphaByte;
        for (std::int32_t x = image_.width() - 1; x > before; --x)
            if (alpha[std::ptrdiff_t{x} * kBytesOfAPixel] >= least_)
                return x;
        return before;
    }

    bool hasContent(std::int32_t y) const { return firstColumn(y, image_.width()) < image_.width(); }

private:
    const Bitmap& image_;
    int least_;
};

CropFrame wholeFrame(const Bitmap& image)
{
    return {0, 0, static_cast<double>(image.width()), static_cast<double>(image.height())};
}

/// The pixels that the frame touches, as far as the picture has them. What is not a number touches none.
Bitmap croppedToFrame(const Bitmap& image, const CropFrame& frame)
{
    const auto within = [](double edge, std::int32_t size) {
        return static_cast<std::int32_t>(std::clamp(edge, 0.0, static_cast<double>(size)));
    };
    if (!(frame.width > 0) || !(frame.height > 0))
        return {};
    const std::int32_t left = within(std::floor(frame.x), image.width());
    const std::int32_t right = within(std::ceil(frame.x + frame.width), image.width());
    const std::int32_t top = within(std::floor(frame.y), image.height());
    const std::int32_t bottom = within(std::ceil(frame.y + frame.height), image.height());
    return image.cropped(left, top, right - left, bottom - top);
}

} // namespace

Bitmap OVImageAlphaTrimmer::imageByTrimmingTransparentPixels(const Bitmap& image)
{
    return croppedToFrame(image, cropFrameRequiringFullOpacity(false, image));
}

Bitmap OVImageAlphaTrimmer::imageByTrimmingTopBottomTransparentPixels(const Bitmap& image)
{
    return imageByTrimmingTopBottomTransparentPixels(image, 0);
}

Bitmap OVImageAlphaTrimmer::imageByTrimmingTopBottomTransparentPixels(const Bitmap& image, double horizontalMargin)
{
    if (std::isnan(horizontalMargin))
        return {};
    // An infinite margin would leave the frame without a place.
    const auto height = static_cast<double>(image.height());
    const double margin = std::clamp(horizontalMargin, -height, height);
    CropFrame frame = topBottomCropFrameRequiringFullOpacity(false, image);
    frame.y -= margin;
    frame.height += 2 * margin;
    return croppedToFrame(image, frame);
}

CropFrame OVImageAlphaTrimmer::cropFrameRequiringFullOpacity(bool fullOpacity, const Bitmap& image)
{
    if (image.isEmpty())
        return {};
    if (!image.hasAlpha())
        return wholeFrame(image);

    const ContentScan scan(image, fullOpacity);
    std::int32_t top = 0;
    while (top < image.height() && !scan.hasContent(top))
        ++top;
    if (top == image.height())
        return {};
    std::int32_t bottom = image.height() - 1;
    while (!scan.hasContent(bottom))
        --bottom;

    std::int32_t left = image.width();
    for (std::int32_t y = top; y <= bottom && left > 0; ++y)
        left = scan.firstColumn(y, left);
    std::int32_t right = -1;
    for (std::int32_t y = top; y <= bottom && right < image.width() - 1; ++y)
        right = scan.lastColumn(y, right);
    return {static_cast<double>(left), static_cast<double>(top), static_cast<double>(right - left + 1),
        static_cast<double>(bottom - top + 1)};
}

CropFrame OVImageAlphaTrimmer::topBottomCropFrameRequiringFullOpacity(bool fullOpacity, const Bitmap& image)
{
    CropFrame frame = cropFrameRequiringFullOpacity(fullOpacity, image);
    frame.x = 0;
    frame.width = static_cast<double>(image.width());
    return frame;
}

} // namespace tarn
