#include "tests/platform/imaging/Loading.h"
#include "tests/platform/imaging/TestPictures.h"
#include "tests/platform/imaging/makers/PNGMaker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::HasSubstr;

TEST(APNG, IsExactWithAndWithoutAlpha)
{
    for (const bool isInterlaced : {false, true})
        for (const Bitmap& picture : {aPhotograph(37, 23), aFadingPicture(37, 23)}) {
            PNGKind form;
            form.isInterlaced = isInterlaced;
            const ImageBytes bytes = pngOf(picture, form);
            EXPECT_EQ(headerOf(bytes), (ImageHeader{ImageFormat::PNG, 37, 23, 1, picture.hasAlpha()}));
            const auto read = loaded(bytes);
            ASSERT_TRUE(read);
            EXPECT_EQ(read->hasAlpha(), picture.hasAlpha());
            // Colours are divided by their alpha and multiplied again.
            EXPECT_LE(differenceOf(*read, picture).most, picture.hasAlpha() ? 1 : 0);
        }
}

struct PackedKind {
    const char* name;
    PNGKind kind;
    ImageBytes row;
    const char* letters;
};

class APackedPNG : public testing::TestWithParam<PackedKind> { };

std::string packedName(const testing::TestParamInfo<PackedKind>& kind)
{
    return kind.param.name;
}

const ImageBytes kRedGreenBlue{255, 0, 0, 0, 255, 0, 0, 0, 255};

INSTANTIATE_TEST_SUITE_P(Kinds, APackedPNG,
    testing::Values(PackedKind{"GreyOf1Bit", {4, 1, 1, 0}, {0b10100000}, "wkwk"},
        PackedKind{"GreyOf2Bits", {4, 1, 2, 0}, {0b11001100}, "wkwk"},
        PackedKind{"GreyOf4Bits", {4, 1, 4, 0}, {0xF0, 0xF0}, "wkwk"},
        PackedKind{"GreyOf8Bits", {4, 1, 8, 0}, {255, 0, 255, 0}, "wkwk"},
        PackedKind{"GreyOf16Bits", {2, 1, 16, 0}, {255, 255, 0, 0}, "wk"},
        PackedKind{"GreyWithATransparentOne", {4, 1, 8, 0, false, {}, {0, 0}}, {255, 0, 255, 0}, "w.w."},
        PackedKind{"GreyOf1BitWithATransparentOne", {4, 1, 1, 0, false, {}, {0, 1}}, {0b10100000}, ".k.k"},
        PackedKind{"GreyAndAlpha", {3, 1, 8, 4}, {255, 255, 0, 255, 77, 0}, "wk."},
        PackedKind{"GreyAndAlphaOf16Bits", {1, 1, 16, 4}, {255, 255, 255, 255}, "w"},
        PackedKind{"PaletteOf1Bit", {4, 1, 1, 3, false, {255, 0, 0, 0, 255, 0}}, {0b01100000}, "rggr"},
        PackedKind{"PaletteOf2Bits", {4, 1, 2, 3, false, kRedGreenBlue}, {0b00011000}, "rgbr"},
        PackedKind{"PaletteOf4Bits", {3, 1, 4, 3, false, kRedGreenBlue}, {0x01, 0x20}, "rgb"},
        PackedKind{"PaletteOf8Bits", {3, 1, 8, 3, false, kRedGreenBlue}, {2, 1, 0}, "bgr"},
        PackedKind{"PaletteWithTransparency", {3, 1, 8, 3, false, kRedGreenBlue, {255, 0}}, {0, 1, 2}, "r.b"},
        PackedKind{"PaletteInterlaced", {3, 1, 8, 3, true, kRedGreenBlue}, {2, 1, 0}, "bgr"},
        PackedKind{"RGBOf16Bits", {2, 1, 16, 2}, {255, 255, 0, 0, 0, 0, 0, 0, 255, 255, 0, 0}, "rg"},
        PackedKind{
            "RGBWithATransparentOne", {2, 1, 8, 2, false, {}, {0, 255, 0, 0, 0, 0}}, {255, 0, 0, 0, 255, 0}, ".g"},
        PackedKind{"RGBAOf16Bits", {2, 1, 16, 6}, {255, 255, 0, 0, 0, 0, 255, 255, 9, 9, 9, 9, 9, 9, 0, 0}, "r."}),
    packedName);

TEST_P(APackedPNG, BecomesChannels)
{
    const ImageBytes bytes = pngOf(GetParam().kind, [](std::uint32_t) { return GetParam().row; });

    const auto picture = loaded(bytes);

    ASSERT_TRUE(picture);
    EXPECT_EQ(lettersOf(*picture), GetParam().letters);
    EXPECT_EQ(headerOf(bytes)->hasAlpha, picture->hasAlpha());
}

TEST(APNG, OfSixteenBitsIsRounded)
{
    const PNGKind kind{4, 1, 16, 0};
    // 0x00FF of 65535 is nearly 1 of 255.
    const auto picture = loaded(pngOf(kind, [](std::uint32_t) {
        return ImageBytes{0, 0xFF, 0x7F, 0xFF, 0x80, 0, 0xFE, 0xFF};
    }));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->row(0)[0], 1);
    EXPECT_EQ(picture->row(0)[4], 127);
    EXPECT_EQ(picture->row(0)[8], 128);
    EXPECT_EQ(picture->row(0)[12], 254);
}

TEST(APNG, IsUprightWhicheverWayItIsStored)
{
    for (int orientation = 1; orientation <= 8; ++orientation)
        for (const bool isBehind : {false, true}) {
            PNGKind form;
            form.orientation = orientation;
            form.isExifBehind = isBehind;
            const ImageBytes bytes = pngOf(aPhotograph(6, 4), form);
            const auto header = headerOf(bytes);
            ASSERT_TRUE(header);
            EXPECT_EQ(header->orientation, orientation);
            const auto picture = loaded(bytes);
            ASSERT_TRUE(picture);
            EXPECT_EQ(picture->width(), orientation >= 5 ? 4 : 6);
            EXPECT_EQ(picture->height(), header->uprightHeight());
        }
}

TEST(APNG, ThatEndsEarlyIsTransparentOrGreyFromThere)
{
    PNGKind stored;
    stored.compression = 0;
    for (const Bitmap& picture : {aPhotograph(40, 100), aFadingPicture(40, 100)}) {
        const ImageBytes bytes = pngOf(picture, stored);
        const auto half = loaded(prefix(bytes, bytes.size() / 2));
        ASSERT_TRUE(half);
        EXPECT_EQ(half->hasAlpha(), picture.hasAlpha());
        EXPECT_LE(differenceOf(half->cropped(0, 0, 40, 40), picture.cropped(0, 0, 40, 40)).most, 1);
        const Bitmap missing
            = picture.hasAlpha() ? Bitmap(40, 1, Bitmap::Alpha::Premultiplied) : aPlainPicture(40, 1, 128, 128, 128);
        EXPECT_EQ(half->cropped(0, 99, 40, 1), missing);
    }
}

TEST(APNG, ThatIsInterlacedAndEndsEarlyIsCoarse)
{
    PNGKind form;
    form.isInterlaced = true;
    const Bitmap photograph = aPhotograph(64, 64);
    const ImageBytes bytes = pngOf(photograph, form);
    const auto half = loaded(prefix(bytes, bytes.size() / 2));
    ASSERT_TRUE(half);
    EXPECT_LT(differenceOf(*half, photograph).mean, 60);
    EXPECT_EQ(half->cropped(0, 0, 1, 1), photograph.cropped(0, 0, 1, 1));
}

TEST(APNG, WithoutARowIsNoImage)
{
    const ImageBytes bytes = pngOf(aPhotograph(40, 100));
    NSError error;
    EXPECT_FALSE(loaded(prefix(bytes, 60), &error));
    EXPECT_EQ(error.code(), ImagingErrorDamaged);
    EXPECT_FALSE(loaded(prefix(bytes, 20), &error));
    EXPECT_EQ(error.code(), ImagingErrorDamaged);
}

TEST(APNG, WhoseProfileOrTextGrowsHugelyIsReadAllTheSame)
{
    const ImageBytes bytes = pngOf(aPhotograph(8, 8));
    ImageBytes profile;
    append(profile, std::string_view("Profile\0\0", 9));
    append(profile, compressedZeros(60'000'000));
    ImageBytes text;
    append(text, std::string_view("Comment\0\0", 9));
    append(text, compressedZeros(60'000'000));

    const auto picture = loaded(pngWithChunk(pngWithChunk(bytes, "zTXt", text), "iCCP", profile));

    ASSERT_TRUE(picture);
    EXPECT_EQ(*picture, aPhotograph(8, 8));
}

TEST(APNG, ThatIsInterlacedIsHeldWithinTheLimit)
{
    ImageLimits limits;
    limits.bufferedPixels = 99 * 100;
    PNGKind form;
    form.isInterlaced = true;
    NSError error;
    EXPECT_FALSE(drawn(pngOf(aPhotograph(100, 100), form), 10, 10, &error, limits));
    EXPECT_THAT(error.localizedDescription(), HasSubstr("(bufferedPixels)"));
    EXPECT_TRUE(drawn(pngOf(aPhotograph(100, 100)), 10, 10, nullptr, limits));
}

TEST(APNG, IsDrawnAsItWouldBeWhole)
{
    for (const Bitmap& picture : {aPhotograph(311, 213), aFadingPicture(311, 213)}) {
        const ImageBytes bytes = pngOf(picture);
        const auto whole = loaded(bytes);
        for (const auto& [width, height] : {std::pair(311, 213), {100, 70}, {40, 27}, {9, 6}, {400, 300}}) {
            const auto small = drawn(bytes, width, height);
            ASSERT_TRUE(small && whole);
            // Premultiplied bytes were rounded once more.
            EXPECT_LE(differenceOf(*small, drawnWhole(*whole, width, height)).most, 1) << width;
        }
    }
}

} // namespace
} // namespace tarn
