#include "tarnmodel/platform/imaging/ImageDrawing.h"
#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tarnmodel/platform/imaging/resampling/BoxShrink.h"
#include "tarnmodel/platform/imaging/resampling/Turning.h"
#include "tests/platform/imaging/ReferenceResampler.h"
#include "tests/platform/imaging/TestPictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tarn {
namespace {

using Interpolation = DrawingOptions::Interpolation;

Bitmap anEmptyCanvas(std::int32_t width, std::int32_t height)
{
    return Bitmap(width, height, Bitmap::Alpha::Premultiplied);
}

std::vector<int> pixelAt(const Bitmap& bitmap, std::int32_t x, std::int32_t y)
{
    const std::uint8_t* pixel = bitmap.row(y) + std::ptrdiff_t{4} * x;
    return {pixel[0], pixel[1], pixel[2], pixel[3]};
}

struct Place {
    const char* name;
    std::int32_t canvasWidth, canvasHeight;
    double x, y, width, height;
};

class DrawnAt : public testing::TestWithParam<Place> { };

std::string placeName(const testing::TestParamInfo<Place>& place)
{
    return place.param.name;
}

INSTANTIATE_TEST_SUITE_P(Places, DrawnAt,
    testing::Values(Place{"TheSameSize", 96, 64, 0, 0, 96, 64}, Place{"FittedInside", 50, 50, 0, 8.3333, 50, 33.3333},
        Place{"CoveringInTheMiddle", 40, 40, -10, 0, 60, 40}, Place{"CoveringAtTheEnd", 40, 40, -20, 0, 60, 40},
        Place{"AtAFraction", 60, 50, 3.37, 5.81, 41.18, 27.77},
        Place{"LargerThanItself", 200, 150, 0.25, 0.5, 199.1, 148.9},
        Place{"ManyTimesItsSize", 120, 90, -400, -300, 1500, 1000}, Place{"WithinOnePixel", 4, 4, 1.2, 2.3, 0.5, 0.4},
        Place{"AThird", 40, 30, 0, 0, 32, 21.5}, Place{"OneAxisOnly", 96, 30, 0, 0, 96, 25.6}),
    placeName);

TEST_P(DrawnAt, IsWhatTheFilterSays)
{
    const Place& place = GetParam();
    for (const Bitmap& picture : {aPhotograph(96, 64), aFadingPicture(96, 64)}) {
        Bitmap canvas = anEmptyCanvas(place.canvasWidth, place.canvasHeight);

        drawImage(picture, canvas, place.x, place.y, place.width, place.height);

        const Difference difference = differenceOf(canvas,
            drawnByReference(
                picture, place.canvasWidth, place.canvasHeight, place.x, place.y, place.width, place.height));
        const bool isAveragedFirst = picture.width() >= 6 * place.width || picture.height() >= 6 * place.height;
        // A half may be rounded either way, nothing else.
        EXPECT_LE(difference.most, isAveragedFirst ? 2 : 1);
        EXPECT_LT(difference.mean, isAveragedFirst ? 0.2 : 0.001);
    }
}

TEST(ADrawing, OfAPhotographMuchSmallerIsCloseToTheFilter)
{
    const Bitmap photograph = aPhotograph(480, 360);
    for (const auto& [width, height] : {std::pair(120.0, 90.0), {88.0, 66.0}, {59.5, 44.6}, {24.0, 18.0}, {5.7, 4.3}}) {
        Bitmap canvas
            = anEmptyCanvas(static_cast<std::int32_t>(std::ceil(width)), static_cast<std::int32_t>(std::ceil(height)));
        drawImage(photograph, canvas, 0, 0, width, height);
        const Difference difference
            = differenceOf(canvas, drawnByReference(photograph, canvas.width(), canvas.height(), 0, 0, width, height));
        EXPECT_LE(difference.most, 2) << width;
        EXPECT_LT(difference.mean, 0.4) << width;
    }
}

TEST(ADrawing, OfTurnedSamplesIsTheDrawingTurned)
{
    // The last of 11 boxes of 10 pixels reaches beyond the picture by nine of them, at either end of it.
    const Bitmap photograph = aPhotograph(101, 67);
    for (int orientation = 1; orientation <= 4; ++orientation) {
        BoxShrink rows(3.3, 2.1);
        rows.begin({101, 67, 1, 1, false});
        for (std::int32_t y = 0; y < 67; ++y)
            rows.addRow(photograph.row(y));
        Bitmap canvas = anEmptyCanvas(4, 3);
        drawImage(turned(rows.takeSamples(), orientation), canvas, 0, 0, 3.3, 2.1);
        const Bitmap expected = drawnByReference(turned(photograph, orientation), 4, 3, 0, 0, 3.3, 2.1);
        EXPECT_LE(differenceOf(canvas, expected).most, 2) << orientation;
    }
}

TEST(ADrawing, OfTheSameSizeChangesNothing)
{
    for (const Bitmap& picture : {aPhotograph(33, 21), aFadingPicture(33, 21)}) {
        Bitmap canvas = anEmptyCanvas(33, 21);
        drawImage(picture, canvas, 0, 0, 33, 21);
        EXPECT_EQ(differenceOf(canvas, picture).most, 0);
    }
}

TEST(ADrawing, CoversPixelsInPartAtFractionalEdges)
{
    Bitmap canvas = anEmptyCanvas(4, 4);

    drawImage(aPlainPicture(10, 10, 255, 255, 255), canvas, 0.5, 1.25, 2, 2);

    EXPECT_EQ(pixelAt(canvas, 0, 1)[3], std::lround(255 * 0.5 * 0.75));
    EXPECT_EQ(pixelAt(canvas, 1, 1)[3], std::lround(255 * 0.75));
    EXPECT_EQ(pixelAt(canvas, 1, 2)[3], 255);
    EXPECT_EQ(pixelAt(canvas, 2, 3)[3], std::lround(255 * 0.5 * 0.25));
    EXPECT_EQ(pixelAt(canvas, 3, 3)[3], 0);
    EXPECT_EQ(pixelAt(canvas, 0, 0)[3], 0);
}

TEST(ADrawing, TakesWholePixelsWithoutAntialiasing)
{
    Bitmap canvas = anEmptyCanvas(4, 4);

    drawImage(aPlainPicture(10, 10, 255, 255, 255), canvas, 0.6, 1.4, 2, 2, {.antialias = false});

    for (std::int32_t y = 0; y < 4; ++y)
        for (std::int32_t x = 0; x < 4; ++x)
            EXPECT_EQ(pixelAt(canvas, x, y)[3], x >= 1 && x < 3 && y >= 1 && y < 3 ? 255 : 0) << x << ", " << y;
}

TEST(ADrawing, OfALineIsSeenWithoutAntialiasing)
{
    Bitmap canvas = anEmptyCanvas(3, 3);

    drawImage(aPlainPicture(10, 1, 255, 255, 255), canvas, 0, 1.1, 3, 0.2, {.antialias = false});

    EXPECT_EQ(pixelAt(canvas, 1, 1)[3], 255);
    EXPECT_EQ(pixelAt(canvas, 1, 0)[3], 0);
    EXPECT_EQ(pixelAt(canvas, 1, 2)[3], 0);
}

TEST(ADrawing, LiesOverWhatIsThere)
{
    Bitmap canvas = aPlainPicture(2, 1, 0, 0, 200);

    drawImage(aPlainPicture(2, 1, 128, 0, 0, 128), canvas, 0, 0, 2, 1);

    EXPECT_THAT(pixelAt(canvas, 0, 0), testing::ElementsAre(128, 0, 100, 255));
}

TEST(ADrawing, IsAsFaintAsItsAlpha)
{
    Bitmap canvas = anEmptyCanvas(1, 1);
    drawImage(aPlainPicture(1, 1, 200, 100, 0), canvas, 0, 0, 1, 1, {.alpha = 0.5});
    EXPECT_THAT(pixelAt(canvas, 0, 0), testing::ElementsAre(100, 50, 0, 128));

    drawImage(aPlainPicture(1, 1, 9, 9, 9), canvas, 0, 0, 1, 1, {.alpha = 0});
    EXPECT_THAT(pixelAt(canvas, 0, 0), testing::ElementsAre(100, 50, 0, 128));
    drawImage(aPlainPicture(1, 1, 9, 9, 9), canvas, 0, 0, 1, 1, {.alpha = 7});
    EXPECT_THAT(pixelAt(canvas, 0, 0), testing::ElementsAre(9, 9, 9, 255));
}

TEST(ADrawing, OfAPlainColourStaysThatColourAtEachSize)
{
    for (const double side : {0.9, 3.0, 9.99, 10.0, 17.3, 64.0}) {
        const auto pixels = static_cast<std::int32_t>(std::floor(side)) + 1;
        for (const std::int32_t sourceSide : {1, 7, 300}) {
            Bitmap canvas = anEmptyCanvas(pixels, pixels);
            drawImage(
                aPlainPicture(sourceSide, sourceSide, 13, 250, 99), canvas, 0, 0, side, side, {.antialias = false});
            EXPECT_THAT(pixelAt(canvas, 0, 0), testing::ElementsAre(13, 250, 99, 255)) << side << ", " << sourceSide;
        }
    }
}

TEST(ADrawing, OfAWhiteDiscIsWhiteWhereverItIsSeen)
{
    for (const std::int32_t side : {40, 61, 640})
        for (const auto interpolation : {Interpolation::Low, Interpolation::High}) {
            Bitmap canvas = anEmptyCanvas(50, 50);
            drawImage(aWhiteDisc(side), canvas, 0.3, 0.7, 47.7, 48.1, {.interpolation = interpolation});
            int edges = 0;
            for (std::int32_t y = 0; y < 50; ++y)
                for (std::int32_t x = 0; x < 50; ++x) {
                    const std::vector<int> pixel = pixelAt(canvas, x, y);
                    edges += pixel[3] > 0 && pixel[3] < 255;
                    EXPECT_EQ(pixel[0], pixel[3]);
                    EXPECT_EQ(pixel[1], pixel[3]);
                    EXPECT_EQ(pixel[2], pixel[3]);
                }
            EXPECT_GT(edges, 50);
        }
}

TEST(ADrawing, NeverHasMoreColourThanAlpha)
{
    for (const double side : {11.0, 63.5, 190.0}) {
        Bitmap canvas = anEmptyCanvas(190, 190);
        drawImage(aFadingPicture(64, 64), canvas, 0, 0, side, side);
        for (std::int32_t y = 0; y < 190; ++y)
            for (std::int32_t x = 0; x < 190; ++x) {
                const std::vector<int> pixel = pixelAt(canvas, x, y);
                ASSERT_LE(std::max({pixel[0], pixel[1], pixel[2]}), pixel[3]);
            }
    }
}

TEST(ADrawing, TakesTheNearestPixelWithoutInterpolation)
{
    Bitmap picture(2, 1, Bitmap::Alpha::None);
    picture.row(0)[0] = 200;
    Bitmap canvas = anEmptyCanvas(6, 1);

    drawImage(picture, canvas, 0, 0, 6, 1, {.interpolation = Interpolation::None});

    for (std::int32_t x = 0; x < 6; ++x)
        EXPECT_EQ(pixelAt(canvas, x, 0)[0], x < 3 ? 200 : 0) << x;
}

TEST(ADrawing, GoesStraightBetweenPixelsAtLowInterpolation)
{
    Bitmap picture(2, 1, Bitmap::Alpha::None);
    picture.row(0)[0] = 200;
    Bitmap canvas = anEmptyCanvas(8, 1);

    drawImage(picture, canvas, 0, 0, 8, 1, {.interpolation = Interpolation::Low});

    std::vector<int> reds;
    for (std::int32_t x = 0; x < 8; ++x)
        reds.push_back(pixelAt(canvas, x, 0)[0]);
    EXPECT_THAT(reds, testing::ElementsAre(200, 200, 175, 125, 75, 25, 0, 0));
}

TEST(ADrawing, LeavesTheCanvasAloneWhereThereIsNothingToDraw)
{
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    constexpr double endless = std::numeric_limits<double>::infinity();
    const Bitmap picture = aPhotograph(5, 5);
    Bitmap canvas = aPlainPicture(4, 4, 1, 2, 3);
    const Bitmap before = canvas;

    drawImage(Bitmap(), canvas, 0, 0, 4, 4);
    drawImage(picture, canvas, 0, 0, 0, 4);
    drawImage(picture, canvas, 0, 0, 4, -1);
    drawImage(picture, canvas, none, 0, 4, 4);
    drawImage(picture, canvas, 0, 0, endless, 4);
    drawImage(picture, canvas, 4, 0, 4, 4);
    drawImage(picture, canvas, 0, -4, 4, 4);
    drawImage(picture, canvas, 1e300, 0, 1e300, 4);
    EXPECT_EQ(canvas, before);

    Bitmap nothing;
    drawImage(picture, nothing, 0, 0, 4, 4);
    EXPECT_TRUE(nothing.isEmpty());
}

TEST(ADrawing, BearsAnySize)
{
    const Bitmap picture = aPlainPicture(5, 5, 7, 8, 9);
    Bitmap canvas = anEmptyCanvas(4, 4);

    drawImage(picture, canvas, -1e15, -1e300, 2e15, 2e300);
    EXPECT_THAT(pixelAt(canvas, 2, 2), testing::ElementsAre(7, 8, 9, 255));

    drawImage(picture, canvas, 1, 1, 1e-300, 1e-300);
    EXPECT_THAT(pixelAt(canvas, 1, 1), testing::ElementsAre(7, 8, 9, 255));
}

} // namespace
} // namespace tarn
