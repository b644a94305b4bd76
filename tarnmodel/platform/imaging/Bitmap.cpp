#include "tarnmodel/platform/imaging/Bitmap.h"

#include <algorithm>
#include <new>

namespace tarn {

namespace {

std::size_t bytesOfPixels(std::int32_t width, std::int32_t height)
{
    if (width <= 0 || height <= 0)
        return 0;
    // The largest sides give 2^64 bytes nearly: no overflow, but nothing that a vector would take.
    const std::size_t bytes = static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4;
    if (bytes > std::vector<std::uint8_t>().max_size())
        throw std::bad_alloc();
    return bytes;
}

} // namespace

Bitmap::Bitmap(std::int32_t width, std::int32_t height, Alpha alpha)
    : alpha_(alpha), bytes_(bytesOfPixels(width, height))
{
    if (bytes_.empty())
        return;
    width_ = width;
    height_ = height;
    if (alpha == Alpha::None)
        for (std::size_t at = 3; at < bytes_.size(); at += 4)
            bytes_[at] = 255;
}

Bitmap Bitmap::cropped(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height) const
{
    const auto left = std::clamp<std::int64_t>(x, 0, width_);
    const auto top = std::clamp<std::int64_t>(y, 0, height_);
    const auto right = std::clamp<std::int64_t>(std::int64_t{x} + width, left, width_);
    const auto bottom = std::clamp<std::int64_t>(std::int64_t{y} + height, top, height_);
    Bitmap part(static_cast<std::int32_t>(right - left), static_cast<std::int32_t>(bottom - top), alpha_);
    for (std::int32_t line = 0; line < part.height(); ++line)
        std::copy_n(row(static_cast<std::int32_t>(top) + line) + left * 4, part.bytesPerRow(), part.row(line));
    return part;
}

} // namespace tarn
