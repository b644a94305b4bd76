#include "tests/platform/imaging/TestPictures.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tarn {

namespace {

std::uint8_t byteOf(double value)
{
    return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0, 255.0)));
}

void setPixel(Bitmap& bitmap, std::int32_t x, std::int32_t y, double red, double green, double blue, double alpha)
{
    std::uint8_t* pixel = bitmap.row(y) + std::ptrdiff_t{4} * x;
    pixel[0] = byteOf(red * alpha / 255);
    pixel[1] = byteOf(green * alpha / 255);
    pixel[2] = byteOf(blue * alpha / 255);
    pixel[3] = byteOf(alpha);
}

/// -1 to 1, of whole coordinates.
double noiseAt(std::uint32_t x, std::uint32_t y)
{
    std::uint32_t bits = x * 0x9E3779B1U + y * 0x85EBCA77U + 12345U;
    bits = (bits ^ (bits >> 15)) * 0x2C1B3C6DU;
    bits = (bits ^ (bits >> 12)) * 0x297A2D39U;
    return static_cast<double>(bits ^ (bits >> 15)) / 2147483648.0 - 1;
}

double eased(double part)
{
    return part * part * (3 - 2 * part);
}

double softNoise(double x, double y)
{
    const auto column = static_cast<std::uint32_t>(x);
    const auto row = static_cast<std::uint32_t>(y);
    const double across = eased(x - column);
    const double down = eased(y - row);
    return std::lerp(std::lerp(noiseAt(column, row), noiseAt(column + 1, row), across),
        std::lerp(noiseAt(column, row + 1), noiseAt(column + 1, row + 1), across), down);
}

} // namespace

Bitmap aPhotograph(std::int32_t width, std::int32_t height)
{
    Bitmap picture(width, height, Bitmap::Alpha::None);
    const double size = std::max(width, height);
    for (std::int32_t y = 0; y < height; ++y)
        for (std::int32_t x = 0; x < width; ++x) {
            double light = 0;
            double strength = 60;
            for (double cells = 3; cells < size / 2; cells *= 2, strength *= 0.55)
                light += strength * softNoise(x / size * cells + cells, y / size * cells);
            // A dark post, and a bright field below a line that rises.
            if (x > width * 0.7 && x < width * 0.74)
                light -= 70;
            if (y > height * 0.8 - x * 0.2)
                light += 60;
            setPixel(picture, x, y, 120 + light + 40.0 * x / width, 128 + light, 110 + light + 50.0 * y / height, 255);
        }
    return picture;
}

Bitmap aWhiteDisc(std::int32_t side)
{
    Bitmap picture(side, side, Bitmap::Alpha::Premultiplied);
    const double middle = side / 2.0;
    for (std::int32_t y = 0; y < side; ++y)
        for (std::int32_t x = 0; x < side; ++x) {
            const double beyond = std::hypot(x + 0.5 - middle, y + 0.5 - middle) - (middle - 1);
            setPixel(picture, x, y, 255, 255, 255, 255 * std::clamp(0.5 - beyond, 0.0, 1.0));
        }
    return picture;
}

Bitmap aFadingPicture(std::int32_t width, std::int32_t height)
{
    Bitmap picture(width, height, Bitmap::Alpha::Premultiplied);
    for (std::int32_t y = 0; y < height; ++y)
        for (std::int32_t x = 0; x < width; ++x)
            setPixel(picture, x, y, 255.0 * y / height, 255.0 - 200.0 * x / width, (x / 8 + y / 8) % 2 == 0 ? 230 : 20,
                255.0 * x / std::max(1, width - 1));
    return picture;
}

Bitmap aPlainPicture(std::int32_t width, std::int32_t height, std::uint8_t red, std::uint8_t green, std::uint8_t blue,
    std::uint8_t alpha)
{
    Bitmap picture(width, height, alpha == 255 ? Bitmap::Alpha::None : Bitmap::Alpha::Premultiplied);
    for (std::int32_t y = 0; y < height; ++y)
        for (std::int32_t x = 0; x < width; ++x) {
            std::uint8_t* pixel = picture.row(y) + std::ptrdiff_t{4} * x;
            pixel[0] = red;
            pixel[1] = green;
            pixel[2] = blue;
            pixel[3] = alpha;
        }
    return picture;
}

Difference differenceOf(const Bitmap& one, const Bitmap& other)
{
    if (one.width() != other.width() || one.height() != other.height() || one.isEmpty())
        return {};
    Difference difference{0, 0};
    for (std::int32_t y = 0; y < one.height(); ++y)
        for (std::size_t at = 0; at < one.bytesPerRow(); ++at) {
            const int apart = std::abs(int{one.row(y)[at]} - int{other.row(y)[at]});
            difference.most = std::max(difference.most, apart);
            difference.mean += apart;
        }
    difference.mean /= static_cast<double>(one.bytesPerRow()) * one.height();
    return difference;
}

} // namespace tarn
