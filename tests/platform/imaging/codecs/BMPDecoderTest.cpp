#include "tests/platform/imaging/Loading.h"
#include "tests/platform/imaging/makers/BMPMaker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

namespace tarn {
namespace {

const std::vector<std::array<std::uint8_t, 3>> kRedGreenBlueWhite{
    {0, 0, 255}, {0, 255, 0}, {255, 0, 0}, {255, 255, 255}};
const std::vector<ImageBytes> kPlainRows{{0, 0, 255, 0, 255, 0, 255, 0, 0}, {255, 255, 255, 0, 0, 0, 0, 0, 255}};

struct NamedBMP {
    const char* name;
    BMPKind kind;
    const char* letters;
    bool hasAlpha = false;
};

class ABMP : public testing::TestWithParam<NamedBMP> { };

std::string bmpName(const testing::TestParamInfo<NamedBMP>& kind)
{
    return kind.param.name;
}

INSTANTIATE_TEST_SUITE_P(Kinds, ABMP,
    testing::Values(NamedBMP{"Of24Bits", {3, 2, 24, 0, 40, {}, {}, kPlainRows}, "rgb/wkr"},
        NamedBMP{"FromTheTop", {3, -2, 24, 0, 40, {}, {}, kPlainRows}, "rgb/wkr"},
        NamedBMP{"OfTheOldestKind", {3, 2, 24, 0, 12, {}, {}, kPlainRows}, "rgb/wkr"},
        NamedBMP{"WithALongHeader", {3, 2, 24, 0, 124, {}, {}, kPlainRows}, "rgb/wkr"},
        NamedBMP{"Of1Bit", {5, 1, 1, 0, 40, {}, {{0, 0, 0}, {255, 255, 255}}, {{0b01101000}}}, "kwwkw"},
        NamedBMP{"Of4Bits", {3, 1, 4, 0, 40, {}, kRedGreenBlueWhite, {{0x01, 0x20}}}, "rgb"},
        NamedBMP{"Of8Bits", {3, 1, 8, 0, 40, {}, kRedGreenBlueWhite, {{3, 1, 0}}}, "wgr"},
        NamedBMP{"Of8BitsOfTheOldestKind",
            {3, 1, 8, 0, 12, {}, std::vector<std::array<std::uint8_t, 3>>(256, {255, 0, 0}), {{3, 1, 0}}}, "bbb"},
        NamedBMP{"WithAnIndexBeyondItsPalette", {2, 1, 8, 0, 40, {}, kRedGreenBlueWhite, {{0, 200}}}, "rk"},
        NamedBMP{"Of16Bits", {4, 1, 16, 0, 40, {}, {}, {{0x00, 0x7C, 0xE0, 0x03, 0x1F, 0x00, 0xFF, 0x7F}}}, "rgbw"},
        NamedBMP{"Of16BitsWithFields",
            {3, 1, 16, 3, 40, {0xF800, 0x07E0, 0x001F}, {}, {{0x00, 0xF8, 0xE0, 0x07, 0x1F, 0x00}}}, "rgb"},
        NamedBMP{"Of32Bits", {2, 1, 32, 0, 40, {}, {}, {{0, 0, 255, 0, 0, 255, 0, 77}}}, "rg"},
        NamedBMP{"Of32BitsWithFieldsAndAlpha",
            {3, 1, 32, 3, 124, {0xFF000000, 0xFF0000, 0xFF00, 0xFF}, {},
                {{255, 0, 0, 255, 255, 255, 0, 0, 0, 9, 9, 9}}},
            "rb.", true},
        NamedBMP{"Of32BitsWithFieldsBehindTheHeader",
            {2, 1, 32, 6, 40, {0xFF, 0xFF00, 0xFF0000, 0xFF000000}, {}, {{255, 0, 0, 255, 0, 0, 255, 255}}}, "rb",
            true}),
    bmpName);

TEST_P(ABMP, IsDecoded)
{
    const NamedBMP& kind = GetParam();
    const ImageBytes bytes = bmpOf(kind.kind);

    EXPECT_EQ(headerOf(bytes),
        (ImageHeader{ImageFormat::BMP, kind.kind.width, std::abs(kind.kind.height), 1, kind.hasAlpha}));
    const auto picture = loaded(bytes);
    ASSERT_TRUE(picture);
    EXPECT_EQ(lettersOf(*picture), kind.letters);
}

TEST(ABMPFile, ThatIsCompressedIsRefused)
{
    for (const std::uint32_t compression : {1U, 2U, 4U, 5U, 77U}) {
        NSError error;
        EXPECT_FALSE(
            headerOf(bmpOf({3, 2, 8, compression, 40, {}, kRedGreenBlueWhite, {{0, 0, 0}, {0, 0, 0}}}), &error));
        EXPECT_EQ(error.code(), ImagingErrorDamaged);
        EXPECT_THAT(error.localizedDescription(), testing::HasSubstr("of a kind that is not decoded"));
    }
}

TEST(ABMPFile, IsWholeOrNotAtAll)
{
    const ImageBytes bytes = bmpOf({3, 2, 24, 0, 40, {}, {}, kPlainRows});
    NSError error;
    EXPECT_FALSE(loaded(prefix(bytes, bytes.size() - 1), &error));
    EXPECT_EQ(error.code(), ImagingErrorDamaged);
    EXPECT_THAT(error.localizedDescription(), testing::HasSubstr("ends early"));
}

TEST(ABMPFile, OfOddSizesAndDepthsIsRefused)
{
    EXPECT_FALSE(headerOf(bmpOf({0, 2, 24, 0, 40, {}, {}, kPlainRows})));
    EXPECT_FALSE(headerOf(bmpOf({-3, 2, 24, 0, 40, {}, {}, kPlainRows})));
    EXPECT_FALSE(headerOf(bmpOf({3, 0, 24, 0, 40, {}, {}, kPlainRows})));
    EXPECT_FALSE(headerOf(bmpOf({3, 2, 2, 0, 40, {}, {}, kPlainRows})));
    EXPECT_FALSE(headerOf(bmpOf({3, 2, 24, 0, 13, {}, {}, kPlainRows})));
    EXPECT_FALSE(headerOf(bmpOf({3, 2, 24, 0, 400, {}, {}, kPlainRows})));
    EXPECT_EQ(headerOf(bmpOf({3, std::numeric_limits<std::int32_t>::min(), 24, 0, 40, {}, {}, kPlainRows}))->height,
        2'147'483'648);
}

} // namespace
} // namespace tarn
