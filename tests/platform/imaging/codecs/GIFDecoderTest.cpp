#include "tests/platform/imaging/Loading.h"
#include "tests/platform/imaging/makers/GIFMaker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarn {
namespace {

const std::vector<std::string> kManyRows{"rg", "gb", "bw", "wk", "kr", "rb", "gw", "bk", "wr", "kg", "rr"};

std::string joined(const std::vector<std::string>& rows)
{
    std::string text;
    for (const std::string& row : rows)
        text += (text.empty() ? "" : "/") + row;
    return text;
}

TEST(AGIF, IsDecoded)
{
    const ImageBytes bytes = gifOf(3, 2, {{0, 0, {"rgb", "wkr"}}});

    EXPECT_EQ(headerOf(bytes), (ImageHeader{ImageFormat::GIF, 3, 2, 1, false}));
    const auto picture = loaded(bytes);
    ASSERT_TRUE(picture);
    EXPECT_FALSE(picture->hasAlpha());
    EXPECT_EQ(lettersOf(*picture), "rgb/wkr");
}

TEST(AGIF, HasATransparentColour)
{
    const ImageBytes bytes = gifOf(3, 2, {{0, 0, {"r.b", ".k."}}});

    EXPECT_TRUE(headerOf(bytes)->hasAlpha);
    EXPECT_EQ(lettersOf(*loaded(bytes)), "r.b/.k.");
}

TEST(AGIF, ThatIsInterlacedIsPutInOrder)
{
    const ImageBytes bytes = gifOf(2, 11, {{0, 0, kManyRows, true}});
    EXPECT_EQ(lettersOf(*loaded(bytes)), joined(kManyRows));
}

TEST(AGIF, LeavesTheRestOfItsScreenTransparent)
{
    for (const bool isInterlaced : {false, true}) {
        const ImageBytes bytes = gifOf(4, 3, {{1, 1, {"rg"}, isInterlaced}});
        EXPECT_TRUE(headerOf(bytes)->hasAlpha);
        EXPECT_EQ(lettersOf(*loaded(bytes)), "..../.rg./....");
    }
}

TEST(AGIF, ShowsOnlyWhatIsOnItsScreen)
{
    for (const bool isInterlaced : {false, true}) {
        EXPECT_EQ(lettersOf(*loaded(gifOf(3, 2, {{2, 1, {"rg", "bw"}, isInterlaced}}))), ".../..r");
        EXPECT_EQ(lettersOf(*loaded(gifOf(2, 1, {{0, 0, {"rgb", "bwk"}, isInterlaced}}))), "rg");
        EXPECT_EQ(lettersOf(*loaded(gifOf(2, 1, {{9, 9, {"rgb"}, isInterlaced}}))), "..");
        EXPECT_EQ(lettersOf(*loaded(gifOf(2, 1, {{9, 0, {"rgb"}, isInterlaced}}))), "..");
    }
}

TEST(AGIF, OfManyFramesIsItsFirst)
{
    std::vector<GIFFrame> frames(10'000, {0, 0, {"kkk", "kkk"}});
    frames[0] = {0, 0, {"rgb", "wkr"}};
    EXPECT_EQ(lettersOf(*loaded(gifOf(3, 2, frames))), "rgb/wkr");
}

TEST(AGIF, ThatEndsEarlyKeepsItsFirstRows)
{
    std::vector<std::string> rows;
    for (int row = 0; row < 60; ++row) {
        rows.emplace_back("rg");
        for (int column = 0; column < 20; ++column)
            rows.back() += kManyRows[static_cast<std::size_t>((row * row + column * column * column) % 11)];
    }
    const ImageBytes opaque = gifOf(42, 60, {{0, 0, rows}});
    const ImageBytes partly = gifOf(42, 61, {{0, 0, rows}});

    const auto half = loaded(prefix(opaque, opaque.size() * 2 / 3));
    ASSERT_TRUE(half);
    EXPECT_THAT(lettersOf(*half),
        testing::AllOf(testing::StartsWith(rows[0] + "/" + rows[1] + "/"), testing::EndsWith("????")));
    EXPECT_EQ(half->row(59)[0], 128);
    const auto transparent = loaded(prefix(partly, partly.size() * 2 / 3));
    ASSERT_TRUE(transparent);
    EXPECT_THAT(lettersOf(*transparent),
        testing::AllOf(testing::StartsWith(rows[0] + "/"), testing::EndsWith("./" + std::string(42, '.'))));
}

TEST(AGIF, WithoutARowIsNoImage)
{
    NSError error;
    for (const bool isInterlaced : {false, true}) {
        const ImageBytes bytes = gifOf(2, 11, {{0, 0, kManyRows, isInterlaced}});
        EXPECT_FALSE(loaded(prefix(bytes, 6 + 7 + 24 + 10 + 2), &error));
        EXPECT_EQ(error.code(), ImagingErrorDamaged);
        EXPECT_FALSE(loaded(prefix(bytes, 6 + 7 + 24), &error));
        EXPECT_EQ(error.code(), ImagingErrorDamaged);
    }
}

TEST(AGIF, WithoutAScreenIsNoImage)
{
    EXPECT_FALSE(headerOf(gifOf(0, 5, {{0, 0, {"r"}}})));
    EXPECT_FALSE(loaded(gifOf(5, 0, {{0, 0, {"r"}}})));
}

} // namespace
} // namespace tarn
