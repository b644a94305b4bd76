#include "tarnmodel/files/thumbnails/OVImageAlphaTrimmer.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace {

using Trimmer = OVImageAlphaTrimmer;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// Transparent but for a rectangle, in which the colour tells each row from the others.
Bitmap aPictureWithContent(std::int32_t width, std::int32_t height, const CropFrame& content, std::uint8_t alpha = 255)
{
    Bitmap picture(width, height, Bitmap::Alpha::Premultiplied);
    for (auto y = static_cast<std::int32_t>(content.y); y < content.y + content.height; ++y)
        for (auto x = static_cast<std::int32_t>(content.x); x < content.x + content.width; ++x) {
            std::uint8_t* pixel = picture.row(y) + std::ptrdiff_t{4} * x;
            pixel[0] = static_cast<std::uint8_t>(y % (alpha + 1));
            pixel[3] = alpha;
        }
    return picture;
}

/// The rows of a picture.
Bitmap rowsOf(const Bitmap& picture, std::int32_t first, std::int32_t end)
{
    return picture.cropped(0, first, picture.width(), end - first);
}

TEST(ACropFrame, OfASingleContentPixelIsThatPixel)
{
    for (const auto& [x, y] : {std::pair{0, 0}, {3, 5}, {8, 6}, {8, 0}, {0, 6}}) {
        const CropFrame pixel = {double(x), double(y), 1, 1};
        const Bitmap picture = aPictureWithContent(9, 7, pixel);
        EXPECT_EQ(Trimmer::cropFrameRequiringFullOpacity(false, picture), pixel);
        EXPECT_EQ(Trimmer::topBottomCropFrameRequiringFullOpacity(false, picture), (CropFrame{0, double(y), 9, 1}));
    }
}

TEST(ACropFrame, HoldsAllContent)
{
    Bitmap picture = aPictureWithContent(20, 10, {7, 4, 2, 1});
    picture.row(2)[4 * 11 + 3] = 9;
    picture.row(6)[4 * 3 + 3] = 9;
    EXPECT_EQ(Trimmer::cropFrameRequiringFullOpacity(false, picture), (CropFrame{3, 2, 9, 5}));
    EXPECT_EQ(Trimmer::topBottomCropFrameRequiringFullOpacity(false, picture), (CropFrame{0, 2, 20, 5}));
}

TEST(ACropFrame, OfAFullyTransparentPictureIsZero)
{
    const Bitmap picture(30, 20, Bitmap::Alpha::Premultiplied);
    EXPECT_EQ(Trimmer::cropFrameRequiringFullOpacity(false, picture), CropFrame{});
    EXPECT_EQ(Trimmer::topBottomCropFrameRequiringFullOpacity(false, picture), (CropFrame{0, 0, 30, 0}));
    EXPECT_EQ(Trimmer::cropFrameRequiringFullOpacity(false, Bitmap()), CropFrame{});
}

TEST(ACropFrame, CountsAnAlphaOf1UnlessFullOpacityIsRequired)
{
    Bitmap picture = aPictureWithContent(8, 8, {2, 3, 4, 2}, 1);
    EXPECT_EQ(Trimmer::cropFrameRequiringFullOpacity(false, picture), (CropFrame{2, 3, 4, 2}));
    EXPECT_EQ(Trimmer::cropFrameRequiringFullOpacity(true, picture), CropFrame{});
    picture.row(4)[4 * 5 + 3] = 254;
    EXPECT_EQ(Trimmer::cropFrameRequiringFullOpacity(true, picture), CropFrame{});
    picture.row(4)[4 * 5 + 3] = 255;
    EXPECT_EQ(Trimmer::cropFrameRequiringFullOpacity(true, picture), (CropFrame{5, 4, 1, 1}));
    EXPECT_EQ(Trimmer::topBottomCropFrameRequiringFullOpacity(true, picture), (CropFrame{0, 4, 8, 1}));
}

TEST(ACropFrame, OfAPictureWithoutAlphaIsThePicture)
{
    const Bitmap picture(6, 5, Bitmap::Alpha::None);
    EXPECT_EQ(Trimmer::cropFrameRequiringFullOpacity(true, picture), (CropFrame{0, 0, 6, 5}));
    EXPECT_EQ(Trimmer::imageByTrimmingTransparentPixels(picture), picture);
    EXPECT_EQ(Trimmer::imageByTrimmingTopBottomTransparentPixels(picture), picture);
    EXPECT_EQ(Trimmer::imageByTrimmingTopBottomTransparentPixels(picture, 3), picture);
}

TEST(Trimming, LeavesTheContent)
{
    const Bitmap picture = aPictureWithContent(20, 30, {4, 6, 10, 12});
    EXPECT_EQ(Trimmer::imageByTrimmingTransparentPixels(picture), picture.cropped(4, 6, 10, 12));
    EXPECT_EQ(Trimmer::imageByTrimmingTopBottomTransparentPixels(picture), rowsOf(picture, 6, 18));
}

TEST(Trimming, LeavesNothingOfAFullyTransparentPicture)
{
    const Bitmap picture(30, 20, Bitmap::Alpha::Premultiplied);
    EXPECT_TRUE(Trimmer::imageByTrimmingTransparentPixels(picture).isEmpty());
    EXPECT_TRUE(Trimmer::imageByTrimmingTopBottomTransparentPixels(picture).isEmpty());
    EXPECT_TRUE(Trimmer::imageByTrimmingTransparentPixels(Bitmap()).isEmpty());
    EXPECT_TRUE(Trimmer::imageByTrimmingTopBottomTransparentPixels(Bitmap(), 5).isEmpty());
}

TEST(Trimming, LeavesAStripOfAFullyTransparentPictureWithAMargin)
{
    const Bitmap picture(30, 20, Bitmap::Alpha::Premultiplied);
    const Bitmap strip = Trimmer::imageByTrimmingTopBottomTransparentPixels(picture, 7);
    EXPECT_EQ(strip.width(), 30);
    EXPECT_EQ(strip.height(), 7);
    EXPECT_EQ(Trimmer::imageByTrimmingTopBottomTransparentPixels(picture, 700).height(), 20);
}

TEST(Trimming, KeepsAMarginOfRows)
{
    const Bitmap middle = aPictureWithContent(12, 100, {3, 50, 4, 10});
    EXPECT_EQ(Trimmer::imageByTrimmingTopBottomTransparentPixels(middle, 10), rowsOf(middle, 40, 70));
    const Bitmap top = aPictureWithContent(12, 100, {3, 0, 4, 10});
    EXPECT_EQ(Trimmer::imageByTrimmingTopBottomTransparentPixels(top, 10), rowsOf(top, 0, 20));
    const Bitmap bottom = aPictureWithContent(12, 100, {3, 95, 4, 5});
    EXPECT_EQ(Trimmer::imageByTrimmingTopBottomTransparentPixels(bottom, 10), rowsOf(bottom, 85, 100));
}

TEST(Trimming, TakesAnyNumberForAMargin)
{
    const Bitmap picture = aPictureWithContent(12, 100, {3, 50, 4, 10});
    const auto trimmed
        = [&](double margin) { return Trimmer::imageByTrimmingTopBottomTransparentPixels(picture, margin); };
    EXPECT_EQ(trimmed(0.5), rowsOf(picture, 49, 61)) << "half a row is a row";
    EXPECT_EQ(trimmed(-2), rowsOf(picture, 52, 58)) << "a negative one cuts into the content";
    EXPECT_TRUE(trimmed(-5).isEmpty());
    EXPECT_TRUE(trimmed(-kInfinity).isEmpty());
    EXPECT_EQ(trimmed(kInfinity), picture);
    EXPECT_EQ(trimmed(1e300), picture);
    EXPECT_TRUE(trimmed(std::numeric_limits<double>::quiet_NaN()).isEmpty());
}

} // namespace
} // namespace tarn
