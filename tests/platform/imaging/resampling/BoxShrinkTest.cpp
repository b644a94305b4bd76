#include "tarnmodel/platform/imaging/resampling/BoxShrink.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace {

using testing::ElementsAre;

std::vector<int> valuesOf(const ImageSamples& samples, std::int32_t y)
{
    return {samples.row(y), samples.row(y) + samples.valuesPerRow()};
}

TEST(ABoxShrink, LeavesThreeTimesTheSizeDrawn)
{
    EXPECT_EQ(BoxShrink::boxLength(4000, 200), 6);
    EXPECT_EQ(BoxShrink::boxLength(4000, 141.18), 9);
    EXPECT_EQ(BoxShrink::boxLength(1200, 200), 2);
    EXPECT_EQ(BoxShrink::boxLength(1199, 200), 1);
    EXPECT_EQ(BoxShrink::boxLength(100, 200), 1);
}

TEST(ABoxShrink, KeepsAllPixelsForWhatIsNoSize)
{
    EXPECT_EQ(BoxShrink::boxLength(100, std::numeric_limits<double>::quiet_NaN()), 1);
    EXPECT_EQ(BoxShrink::boxLength(100, -5), 1);
    EXPECT_EQ(BoxShrink::boxLength(100, std::numeric_limits<double>::infinity()), 1);
    EXPECT_EQ(BoxShrink::boxLength(1'000'000, 0), 256);
}

TEST(ABoxShrink, AveragesBoxesAndTellsHowFarTheyReach)
{
    BoxShrink shrink(0.8, 1);
    shrink.begin({5, 3, 1, 1, false});
    const std::vector<std::uint8_t> row{10, 0, 0, 255, 30, 0, 0, 255, 50, 0, 0, 255, 70, 0, 0, 255, 90, 0, 0, 255};
    for (int y = 0; y < 3; ++y)
        shrink.addRow(row.data());

    const ImageSamples samples = shrink.takeSamples();

    ASSERT_EQ(samples.width(), 3);
    ASSERT_EQ(samples.height(), 3);
    EXPECT_THAT(valuesOf(samples, 2), ElementsAre(20 * 255, 0, 0, 65025, 60 * 255, 0, 0, 65025, 90 * 255, 0, 0, 65025));
    EXPECT_EQ(samples.horizontal(), (ImageSamples::Extent{0, 6.0 / 5}));
    EXPECT_EQ(samples.vertical(), (ImageSamples::Extent{0, 1}));
}

TEST(ABoxShrink, LeavesOutTheColourOfTransparentPixels)
{
    BoxShrink shrink(0.3, 0.3);
    shrink.begin({2, 2, 1, 1, true});
    // White, and a green that nobody sees.
    const std::vector<std::uint8_t> row{255, 255, 255, 255, 0, 255, 0, 0};
    shrink.addRow(row.data());
    shrink.addRow(row.data());

    const ImageSamples samples = shrink.takeSamples();

    EXPECT_THAT(valuesOf(samples, 0), ElementsAre(32513, 32513, 32513, 32513));
}

TEST(ABoxShrink, PremultipliesWithoutRounding)
{
    BoxShrink shrink(1, 1);
    shrink.begin({1, 1, 1, 1, true});
    const std::vector<std::uint8_t> pixel{201, 3, 255, 77};
    shrink.addRow(pixel.data());

    EXPECT_THAT(valuesOf(shrink.takeSamples(), 0), ElementsAre(201 * 77, 3 * 77, 255 * 77, 77 * 255));
}

TEST(ABoxShrink, OfAnyLengthKeepsAPlainColour)
{
    for (const std::int32_t width : {257, 5'000, 70'000}) {
        BoxShrink shrink(1, 1);
        shrink.begin({width, 300, 1, 1, true});
        std::vector<std::uint8_t> row(4 * static_cast<std::size_t>(width), 255);
        for (int y = 0; y < 300; ++y)
            shrink.addRow(row.data());
        const ImageSamples samples = shrink.takeSamples();
        EXPECT_THAT(valuesOf(samples, 0), testing::Each(65025)) << width;
    }
}

TEST(ABoxShrink, IgnoresRowsThatWereNotAnnounced)
{
    BoxShrink shrink(1, 1);
    shrink.begin({1, 1, 1, 1, false});
    const std::vector<std::uint8_t> first{1, 2, 3, 255};
    const std::vector<std::uint8_t> more{9, 9, 9, 255};
    shrink.addRow(first.data());
    shrink.addRow(more.data());

    EXPECT_THAT(valuesOf(shrink.takeSamples(), 0), ElementsAre(255, 510, 765, 65025));
}

} // namespace
} // namespace tarn
