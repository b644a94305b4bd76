#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tests/platform/imaging/TestPictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <new>

namespace tarn {
namespace {

using testing::Each;

std::vector<std::uint8_t> rowOf(const Bitmap& bitmap, std::int32_t y)
{
    return {bitmap.row(y), bitmap.row(y) + bitmap.bytesPerRow()};
}

TEST(ABitmap, IsNoImageUntilItHasASize)
{
    for (const Bitmap& bitmap : {Bitmap(), Bitmap(0, 5, Bitmap::Alpha::None), Bitmap(5, -1, Bitmap::Alpha::None)}) {
        EXPECT_TRUE(bitmap.isEmpty());
        EXPECT_EQ(bitmap.width(), 0);
        EXPECT_EQ(bitmap.height(), 0);
    }
}

TEST(ABitmap, BeginsTransparent)
{
    const Bitmap bitmap(3, 2, Bitmap::Alpha::Premultiplied);

    EXPECT_TRUE(bitmap.hasAlpha());
    EXPECT_THAT(rowOf(bitmap, 1), Each(0));
    EXPECT_EQ(bitmap.bytesPerRow(), 12U);
}

TEST(ABitmap, BeginsBlackWithoutAlpha)
{
    const Bitmap bitmap(2, 2, Bitmap::Alpha::None);

    EXPECT_FALSE(bitmap.hasAlpha());
    EXPECT_THAT(rowOf(bitmap, 1), testing::ElementsAre(0, 0, 0, 255, 0, 0, 0, 255));
}

TEST(ABitmap, RaisesWhenThereIsNoMemoryForIt)
{
    constexpr auto most = std::numeric_limits<std::int32_t>::max();
    EXPECT_THROW(Bitmap(most, most, Bitmap::Alpha::None), std::bad_alloc);
}

TEST(ABitmap, IsCutToAPart)
{
    const Bitmap picture = aFadingPicture(8, 6);

    const Bitmap part = picture.cropped(2, 1, 3, 4);

    ASSERT_EQ(part.width(), 3);
    ASSERT_EQ(part.height(), 4);
    EXPECT_TRUE(part.hasAlpha());
    for (std::int32_t y = 0; y < 4; ++y)
        EXPECT_EQ(rowOf(part, y), std::vector<std::uint8_t>(picture.row(y + 1) + 8, picture.row(y + 1) + 20));
}

TEST(ABitmap, IsCutWithinItsBounds)
{
    const Bitmap picture = aFadingPicture(8, 6);
    constexpr auto most = std::numeric_limits<std::int32_t>::max();

    EXPECT_EQ(picture.cropped(-3, -4, 5, 6), picture.cropped(0, 0, 2, 2));
    EXPECT_EQ(picture.cropped(6, 5, most, most), picture.cropped(6, 5, 2, 1));
    EXPECT_EQ(picture.cropped(-most, -most, most, most), Bitmap().cropped(0, 0, 1, 1));
    EXPECT_TRUE(picture.cropped(8, 0, 1, 1).isEmpty());
    EXPECT_TRUE(picture.cropped(1, 1, 0, 3).isEmpty());
    EXPECT_EQ(picture.cropped(0, 0, 8, 6), picture);
}

} // namespace
} // namespace tarn
