#include "tarnmodel/platform/imaging/resampling/Turning.h"
#include "tarnmodel/platform/imaging/resampling/BoxShrink.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace {

/// Letters as grey pixels, rows one below the other.
Bitmap lettersOf(const std::vector<std::string>& rows)
{
    Bitmap bitmap(
        static_cast<std::int32_t>(rows[0].size()), static_cast<std::int32_t>(rows.size()), Bitmap::Alpha::None);
    for (std::size_t y = 0; y < rows.size(); ++y)
        for (std::size_t x = 0; x < rows[y].size(); ++x)
            bitmap.row(static_cast<std::int32_t>(y))[4 * x] = static_cast<std::uint8_t>(rows[y][x]);
    return bitmap;
}

struct Stored {
    int orientation;
    std::vector<std::string> rows;
};

class Turned : public testing::TestWithParam<Stored> { };

std::string turnName(const testing::TestParamInfo<Stored>& stored)
{
    return "FromOrientation" + std::to_string(stored.param.orientation);
}

// How cameras store what reads "abc" over "def".
INSTANTIATE_TEST_SUITE_P(Turns, Turned,
    testing::Values(Stored{1, {"abc", "def"}}, Stored{2, {"cba", "fed"}}, Stored{3, {"fed", "cba"}},
        Stored{4, {"def", "abc"}}, Stored{5, {"ad", "be", "cf"}}, Stored{6, {"cf", "be", "ad"}},
        Stored{7, {"fc", "eb", "da"}}, Stored{8, {"da", "eb", "fc"}}),
    turnName);

TEST_P(Turned, IsUpright)
{
    EXPECT_EQ(turned(lettersOf(GetParam().rows), GetParam().orientation), lettersOf({"abc", "def"}));
}

TEST_P(Turned, TakesSamplesAndTheirExtentAlong)
{
    const Bitmap stored = lettersOf(GetParam().rows);
    BoxShrink rows(100, 100);
    rows.begin({stored.width(), stored.height(), 1.25, 1.5, false});
    for (std::int32_t y = 0; y < stored.height(); ++y)
        rows.addRow(stored.row(y));
    const int orientation = GetParam().orientation;

    const ImageSamples upright = turned(rows.takeSamples(), orientation);

    ASSERT_EQ(upright.width(), 3);
    ASSERT_EQ(upright.height(), 2);
    std::string letters;
    for (std::int32_t y = 0; y < 2; ++y)
        for (std::size_t x = 0; x < 3; ++x)
            letters += static_cast<char>(upright.row(y)[4 * x] / 255);
    EXPECT_EQ(letters, "abcdef");
    const bool isSideways = orientation >= 5;
    EXPECT_DOUBLE_EQ(upright.horizontal().end - upright.horizontal().begin, isSideways ? 1.5 : 1.25);
    EXPECT_DOUBLE_EQ(upright.vertical().end - upright.vertical().begin, isSideways ? 1.25 : 1.5);
    const bool beginsAtTheRight = orientation == 2 || orientation == 3 || orientation == 6 || orientation == 7;
    EXPECT_EQ(upright.horizontal().begin == 0, !beginsAtTheRight);
    const bool beginsAtTheBottom = orientation == 3 || orientation == 4 || orientation == 7 || orientation == 8;
    EXPECT_EQ(upright.vertical().begin == 0, !beginsAtTheBottom);
}

TEST(TurningAPicture, LeavesItWhenTheNumberIsUnknown)
{
    EXPECT_EQ(turned(lettersOf({"ab"}), 0), lettersOf({"ab"}));
    EXPECT_EQ(turned(lettersOf({"ab"}), 9), lettersOf({"ab"}));
    EXPECT_EQ(turned(lettersOf({"ab"}), -1), lettersOf({"ab"}));
}

} // namespace
} // namespace tarn
