#include "tests/platform/imaging/Loading.h"
#include "tests/platform/imaging/TestPictures.h"
#include "tests/platform/imaging/makers/WebPMaker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarn {
namespace {

TEST(AWebP, WithoutLossIsExact)
{
    for (const Bitmap& picture : {aPhotograph(37, 23), aFadingPicture(37, 23)}) {
        const ImageBytes bytes = webPOf(picture);
        EXPECT_EQ(headerOf(bytes), (ImageHeader{ImageFormat::WebP, 37, 23, 1, picture.hasAlpha()}));
        const auto read = loaded(bytes);
        ASSERT_TRUE(read);
        EXPECT_EQ(read->hasAlpha(), picture.hasAlpha());
        EXPECT_LE(differenceOf(*read, picture).most, picture.hasAlpha() ? 1 : 0);
    }
}

TEST(AWebP, WithLossIsClose)
{
    for (const Bitmap& picture : {aPhotograph(133, 71), aFadingPicture(133, 71)}) {
        const ImageBytes bytes = webPOf(picture, 95);
        EXPECT_EQ(headerOf(bytes), (ImageHeader{ImageFormat::WebP, 133, 71, 1, picture.hasAlpha()}));
        const auto read = loaded(bytes);
        ASSERT_TRUE(read);
        EXPECT_LT(differenceOf(*read, picture).mean, 4);
    }
}

TEST(AWebP, IsUprightWhicheverWayItIsStored)
{
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const ImageBytes bytes = webPTurned(aPhotograph(6, 4), orientation);
        const auto header = headerOf(bytes);
        ASSERT_TRUE(header);
        EXPECT_EQ(*header, (ImageHeader{ImageFormat::WebP, 6, 4, orientation, false}));
        const auto picture = loaded(bytes);
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->width(), orientation >= 5 ? 4 : 6);
    }
    EXPECT_EQ(*loaded(webPTurned(aPhotograph(6, 4), 1)), aPhotograph(6, 4));
}

TEST(AWebP, ThatMovesIsItsFirstFrameInItsPlace)
{
    const ImageBytes bytes
        = webPAnimation(6, 4, {{2, 2, aPlainPicture(2, 1, 255, 0, 0)}, {0, 0, aPlainPicture(6, 4, 0, 0, 255)}});

    EXPECT_EQ(headerOf(bytes), (ImageHeader{ImageFormat::WebP, 6, 4, 1, true}));
    const auto picture = loaded(bytes);
    ASSERT_TRUE(picture);
    EXPECT_EQ(lettersOf(*picture), "....../....../..rr../......");
}

TEST(AWebP, ThatSaysToHaveNoAlphaHasNone)
{
    ImageBytes bytes = webPOf(aFadingPicture(16, 16));
    constexpr std::size_t kAlphaByte = 20 + 4;
    ASSERT_NE(bytes[kAlphaByte] & 0x10, 0);
    bytes[kAlphaByte] &= 0xEF;

    EXPECT_FALSE(headerOf(bytes)->hasAlpha);
    const auto picture = loaded(bytes);
    ASSERT_TRUE(picture);
    EXPECT_FALSE(picture->hasAlpha());
    EXPECT_EQ(picture->row(0)[3], 255);
}

TEST(AWebP, IsWholeOrNotAtAll)
{
    const ImageBytes bytes = webPOf(aPhotograph(100, 100), 80);
    NSError error;
    EXPECT_FALSE(loaded(prefix(bytes, bytes.size() / 2), &error));
    EXPECT_EQ(error.code(), ImagingErrorDamaged);
}

TEST(AWebP, IsHeldWithinTheLimits)
{
    const ImageBytes bytes = webPOf(aPhotograph(100, 100));
    ImageLimits limits;
    limits.heldFileBytes = static_cast<std::int64_t>(bytes.size()) - 1;
    NSError error;
    EXPECT_FALSE(drawn(bytes, 10, 10, &error, limits));
    EXPECT_THAT(error.localizedDescription(), testing::HasSubstr("(heldFileBytes)"));
    limits = {};
    limits.bufferedPixels = 9'999;
    EXPECT_FALSE(drawn(bytes, 10, 10, &error, limits));
    EXPECT_THAT(error.localizedDescription(), testing::HasSubstr("(bufferedPixels)"));
}

} // namespace
} // namespace tarn
