#include "tarnmodel/files/thumbnails/ImageScaling.h"

#include "tarnmodel/platform/imaging/ImageLimits.h"
#include "tests/platform/imaging/ReferenceResampler.h"
#include "tests/platform/imaging/TestPictures.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace {

/// A canvas of a thumbnail, and where a photograph should lie on it, from its top left corner.
struct Golden {
    const char* name;
    ImageFitting fitting;
    std::int32_t width, height; ///< of the photograph
    PixelSize canvas;
    double left, top, drawnWidth, drawnHeight;
};

class AScaledImage : public testing::TestWithParam<Golden> { };

constexpr PixelSize kAsked = {40, 30};

INSTANTIATE_TEST_SUITE_P(Goldens, AScaledImage,
    testing::Values( //
        Golden{"Stretched", {}, 96, 64, {40, 30}, 0, 0, 40, 30},
        Golden{"FittedInWidth", {.preserveRatio = true}, 96, 48, {40, 20}, 0, 0, 40, 20},
        Golden{"FittedInHeight", {.preserveRatio = true}, 64, 96, {20, 30}, 0, 0, 20, 30},
        Golden{"FittedAndCutToWholePixels", {.preserveRatio = true}, 96, 50, {40, 20}, 0, 0, 40, 20},
        Golden{"ContainedAtTheBottom", {.contain = true}, 96, 48, {40, 30}, 0, 10, 40, 20},
        Golden{"ContainedInTheMiddle", {.contain = true, .yAlignment = 0.5}, 96, 48, {40, 30}, 0, 5, 40, 20},
        Golden{"ContainedAtTheTop", {.contain = true, .yAlignment = 1}, 96, 48, {40, 30}, 0, 0, 40, 20},
        Golden{"ContainedAtTheLeft", {.contain = true}, 48, 72, {40, 30}, 0, 0, 20, 30},
        Golden{"ContainedBetweenLeftAndRight", {.contain = true, .xAlignment = 0.5}, 48, 72, {40, 30}, 10, 0, 20, 30},
        Golden{"ContainedAtTheRight", {.contain = true, .xAlignment = 1}, 48, 72, {40, 30}, 20, 0, 20, 30},
        Golden{"ContainedBetweenPixels", {.contain = true, .yAlignment = 0.5}, 96, 50, {40, 30}, 0, 15 - 50 / 4.8, 40,
            100 / 4.8},
        Golden{"CoveredFromTheLeft", {.cover = true}, 96, 48, {40, 30}, 0, 0, 60, 30},
        Golden{"CoveredByItsMiddle", {.cover = true, .xAlignment = 0.5}, 96, 48, {40, 30}, -10, 0, 60, 30},
        Golden{"CoveredFromTheRight", {.cover = true, .xAlignment = 1}, 96, 48, {40, 30}, -20, 0, 60, 30},
        Golden{"CoveredFromTheBottom", {.cover = true}, 48, 72, {40, 30}, 0, -30, 40, 60},
        Golden{"CoveredByItsWaist", {.cover = true, .yAlignment = 0.5}, 48, 72, {40, 30}, 0, -15, 40, 60},
        Golden{"CoveredFromTheTop", {.cover = true, .yAlignment = 1}, 48, 72, {40, 30}, 0, 0, 40, 60}),
    [](const testing::TestParamInfo<Golden>& golden) { return golden.param.name; });

// Rounding may go either way; where pixels are averaged before the filter it may add up to 2.
TEST_P(AScaledImage, IsWhatTheFilterSaysAtItsPlace)
{
    const Golden& golden = GetParam();
    for (const Bitmap& picture :
        {aPhotograph(golden.width, golden.height), aFadingPicture(golden.width, golden.height)}) {
        const Bitmap scaled = ovCreateScaledCGImageFromCGImage(picture, kAsked, golden.fitting);

        const Bitmap expected = drawnByReference(picture, static_cast<std::int32_t>(golden.canvas.width),
            static_cast<std::int32_t>(golden.canvas.height), golden.left, golden.top, golden.drawnWidth,
            golden.drawnHeight);
        const Difference difference = differenceOf(scaled, expected);
        EXPECT_LE(difference.most, 2);
        EXPECT_LT(difference.mean, 0.2);
    }
}

TEST(AScaledImage, OfTheSameSizeIsACopy)
{
    const Bitmap picture = aFadingPicture(400, 300);
    for (const ImageFitting& fitting :
        {ImageFitting{}, ImageFitting{.cover = true, .xAlignment = 1}, ImageFitting{.contain = true}})
        EXPECT_EQ(ovCreateScaledCGImageFromCGImage(picture, {400, 300}, fitting, {.alpha = 0.5}), picture);
    const Bitmap opaque = aPhotograph(40, 30);
    EXPECT_EQ(ovCreateScaledCGImageFromCGImage(opaque, {40, 30}, {}), opaque);
}

TEST(AScaledImage, IsTransparentWhereNothingIsDrawn)
{
    const Bitmap scaled
        = ovCreateScaledCGImageFromCGImage(aPlainPicture(50, 50, 9, 8, 7), {100, 50}, {.contain = true});
    ASSERT_EQ(scaled.width(), 100);
    for (std::int32_t y = 0; y < 50; ++y) {
        EXPECT_EQ(scaled.row(y)[4 * 49 + 3], 255);
        EXPECT_EQ(scaled.row(y)[4 * 50 + 3], 0);
    }
}

TEST(AScaledImage, TakesTheAlphaThatItIsGiven)
{
    const Bitmap scaled
        = ovCreateScaledCGImageFromCGImage(aPlainPicture(50, 50, 200, 100, 0), {10, 10}, {}, {.alpha = 0.5});
    EXPECT_NEAR(scaled.row(5)[4 * 5], 100, 1);
    EXPECT_NEAR(scaled.row(5)[4 * 5 + 3], 128, 1);
}

TEST(AScaledImage, IsNoneWithoutAPicture)
{
    EXPECT_TRUE(ovCreateScaledCGImageFromCGImage(Bitmap(), {10, 10}, {}).isEmpty());
    EXPECT_TRUE(ovCreateScaledCGImageFromCGImage(aPhotograph(8, 8), {0, 10}, {}).isEmpty());
    EXPECT_TRUE(ovCreateScaledCGImageFromCGImage(aPhotograph(8, 8), {10, -1}, {}).isEmpty());
    EXPECT_TRUE(ovCreateScaledCGImageFromCGImage(aPhotograph(1000, 1), {20, 20}, {.preserveRatio = true}).isEmpty());
}

TEST(AScaledImage, IsNoneWhenItsCanvasIsOverALimit)
{
    const Bitmap picture = aPhotograph(8, 8);
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    for (const PixelSize asked : {PixelSize{kMost, kMost}, {100'000, 100'000}, {2'000'000, 2'000'000},
             {std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::max()}})
        for (const ImageFitting& fitting :
            {ImageFitting{}, {.preserveRatio = true}, {.contain = true}, {.cover = true}})
            EXPECT_TRUE(ovCreateScaledCGImageFromCGImage(picture, asked, fitting).isEmpty());
    EXPECT_TRUE(ovCreateScaledCGImageFromCGImage(picture, {2'000'000, 1}, {}).isEmpty()) << "one side is too long";
    EXPECT_TRUE(ovCreateScaledCGImageFromCGImage(picture, {1, kMost}, {.cover = true}).isEmpty());

    const ImageLimits before = ImageLimits::current();
    ImageLimits limits = before;
    limits.pixels = 99;
    ImageLimits::setCurrent(limits);
    EXPECT_TRUE(ovCreateScaledCGImageFromCGImage(picture, {10, 10}, {}).isEmpty());
    EXPECT_FALSE(ovCreateScaledCGImageFromCGImage(picture, {9, 11}, {}).isEmpty());
    ImageLimits::setCurrent(before);
}

TEST(AnOrientation, IsLeftAsItWasLoaded)
{
    const Bitmap picture = aFadingPicture(7, 5);
    EXPECT_EQ(fixOrientation(picture), picture);
}

} // namespace
} // namespace tarn
