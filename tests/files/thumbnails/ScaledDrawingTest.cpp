#include "tarnmodel/files/thumbnails/ScaledDrawing.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace tarn {
namespace {

constexpr ImageFitting kStretch = {};
constexpr ImageFitting kFit = {.preserveRatio = true};

ImageFitting containing(double x, double y)
{
    return {.preserveRatio = true, .contain = true, .xAlignment = x, .yAlignment = y};
}

ImageFitting covering(double x, double y)
{
    return {.preserveRatio = true, .cover = true, .xAlignment = x, .yAlignment = y};
}

PixelSize canvasOf(PixelSize picture, PixelSize asked, const ImageFitting& fitting)
{
    const auto drawing = scaledDrawing(picture, asked, fitting);
    return drawing ? drawing->canvas : PixelSize{};
}

TEST(AScaledDrawing, ShrinksTheCanvasToTheFittedSize)
{
    EXPECT_EQ(scaledDrawing({1000, 500}, {200, 200}, kFit),
        (ScaledDrawing{.canvas = {200, 100}, .width = 200, .height = 100}));
    EXPECT_EQ(scaledDrawing({500, 1000}, {200, 200}, kFit),
        (ScaledDrawing{.canvas = {100, 200}, .width = 100, .height = 200}));
    EXPECT_EQ(scaledDrawing({100, 50}, {1000, 1000}, kFit),
        (ScaledDrawing{.canvas = {1000, 500}, .width = 1000, .height = 500}))
        << "a small picture is enlarged";
}

TEST(AScaledDrawing, FillsACanvasThatLosesFractionsOfAPixel)
{
    EXPECT_EQ(
        scaledDrawing({1000, 333}, {100, 100}, kFit), (ScaledDrawing{.canvas = {100, 33}, .width = 100, .height = 33}));
    EXPECT_EQ(canvasOf({333, 1000}, {100, 199}, kFit), (PixelSize{66, 199}));
}

TEST(AScaledDrawing, StretchesWithoutOptions)
{
    EXPECT_EQ(
        scaledDrawing({1000, 500}, {30, 70}, kStretch), (ScaledDrawing{.canvas = {30, 70}, .width = 30, .height = 70}));
}

TEST(AScaledDrawing, KeepsWholeSidesWhole)
{
    // 1 / 49 * 49 is less than 1 in doubles.
    EXPECT_EQ(canvasOf({49, 49}, {1, 1}, kFit), (PixelSize{1, 1}));
    std::mt19937 random(1);
    std::uniform_int_distribution<std::int64_t> side(1, 5000);
    for (int round = 0; round < 20'000; ++round) {
        const PixelSize picture = {side(random), side(random)};
        const PixelSize asked = {side(random), side(random)};
        const auto drawing = scaledDrawing(picture, asked, kFit);
        const bool isWider = picture.width * asked.height > asked.width * picture.height;
        const std::int64_t other
            = isWider ? asked.width * picture.height / picture.width : asked.height * picture.width / picture.height;
        ASSERT_EQ(drawing.has_value(), other > 0);
        const PixelSize expected = isWider ? PixelSize{asked.width, other} : PixelSize{other, asked.height};
        ASSERT_EQ(drawing.value_or(ScaledDrawing{.canvas = expected}).canvas, expected);
    }
}

TEST(AScaledDrawing, KeepsTheWholeCanvasToContainThePicture)
{
    EXPECT_EQ(scaledDrawing({400, 100}, {100, 100}, containing(0, 0)),
        (ScaledDrawing{.canvas = {100, 100}, .width = 100, .height = 25}));
    EXPECT_EQ(scaledDrawing({100, 400}, {100, 100}, containing(0, 0)),
        (ScaledDrawing{.canvas = {100, 100}, .width = 25, .height = 100}));
    EXPECT_EQ(scaledDrawing({3, 1}, {100, 100}, containing(0, 0))->height, 100.0 / 3);
    EXPECT_EQ(scaledDrawing({400, 100}, {100, 100}, {.contain = true}),
        scaledDrawing({400, 100}, {100, 100}, containing(0, 0)))
        << "the ratio is kept anyway";
}

TEST(AScaledDrawing, CutsOffWhatCoversMoreThanTheCanvas)
{
    EXPECT_EQ(scaledDrawing({400, 100}, {100, 100}, covering(0.5, 0)),
        (ScaledDrawing{.canvas = {100, 100}, .x = -150, .width = 400, .height = 100}));
    EXPECT_EQ(scaledDrawing({100, 400}, {50, 50}, covering(0, 0.5)),
        (ScaledDrawing{.canvas = {50, 50}, .y = -75, .width = 50, .height = 200}));
    ImageFitting both = covering(0.5, 0);
    both.contain = true;
    EXPECT_EQ(scaledDrawing({400, 100}, {100, 100}, both), scaledDrawing({400, 100}, {100, 100}, covering(0.5, 0)))
        << "what covers the canvas is not contained";
}

TEST(AScaledDrawing, LiesWhereTheAlignmentSays)
{
    for (const double align : {0.0, 0.25, 0.5, 1.0}) {
        EXPECT_EQ(scaledDrawing({50, 100}, {80, 100}, containing(align, 0))->x, 30 * align);
        EXPECT_EQ(scaledDrawing({100, 50}, {100, 80}, containing(0, align))->y, 30 * align);
        EXPECT_EQ(scaledDrawing({200, 100}, {50, 100}, covering(align, 0))->x, -150 * align);
        EXPECT_EQ(scaledDrawing({100, 200}, {100, 50}, covering(0, align))->y, -150 * align);
    }
}

TEST(AScaledDrawing, IsAtTheBottomWithoutAnAlignmentAndAtTheTopWithOne)
{
    EXPECT_EQ(scaledDrawing({100, 50}, {100, 80}, containing(0, 0))->top(), 30);
    EXPECT_EQ(scaledDrawing({100, 50}, {100, 80}, containing(0, 0.5))->top(), 15);
    EXPECT_EQ(scaledDrawing({100, 50}, {100, 80}, containing(0, 1))->top(), 0);
    EXPECT_EQ(scaledDrawing({100, 200}, {100, 50}, covering(0, 0))->top(), -150);
    EXPECT_EQ(scaledDrawing({100, 200}, {100, 50}, covering(0, 1))->top(), 0);
}

TEST(AScaledDrawing, CopiesAPictureOfTheSizeThatWasAskedFor)
{
    for (const ImageFitting& fitting : {kStretch, kFit, containing(1, 1), covering(1, 1)}) {
        const auto drawing = scaledDrawing({400, 300}, {400, 300}, fitting);
        ASSERT_TRUE(drawing);
        EXPECT_TRUE(drawing->isCopy);
        EXPECT_EQ(drawing->canvas, (PixelSize{400, 300}));
    }
    EXPECT_FALSE(scaledDrawing({400, 300}, {400, 301}, kFit)->isCopy);
}

TEST(AScaledDrawing, IsNoneWithoutAPixel)
{
    EXPECT_FALSE(scaledDrawing({0, 10}, {10, 10}, kFit));
    EXPECT_FALSE(scaledDrawing({10, 10}, {10, 0}, kFit));
    EXPECT_FALSE(scaledDrawing({10, 10}, {-10, 10}, kStretch));
    EXPECT_FALSE(scaledDrawing({0, 0}, {0, 0}, kFit)) << "nor is it a copy";
    EXPECT_FALSE(scaledDrawing({10'000, 1}, {200, 200}, kFit)) << "the canvas would be 0.02 pixels high";
    EXPECT_TRUE(scaledDrawing({10'000, 1}, {200, 200}, containing(0, 0)));
}

TEST(AScaledDrawing, IsNoneWhereNumbersEnd)
{
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    EXPECT_TRUE(scaledDrawing({kMost, kMost}, {kMost, kMost - 1}, kStretch));
    EXPECT_FALSE(scaledDrawing({kMost + 1, 1}, {10, 10}, kStretch));
    EXPECT_FALSE(scaledDrawing({1, 10}, {std::numeric_limits<std::int64_t>::max(), 10}, kStretch));
    EXPECT_TRUE(scaledDrawing({kMost, 1}, {10, 10}, covering(0, 0))) << "only the canvas counts";
    for (const double align :
        {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), -1e308 * 10}) {
        EXPECT_FALSE(scaledDrawing({10, 10}, {20, 10}, containing(align, 0)));
        EXPECT_FALSE(scaledDrawing({10, 10}, {20, 10}, covering(0, align)));
    }
}

} // namespace
} // namespace tarn
