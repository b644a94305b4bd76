#include "tests/platform/imaging/Loading.h"
#include "tests/platform/imaging/TestPictures.h"
#include "tests/platform/imaging/makers/JPEGMaker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarn {
namespace {

using Colours = JPEGKind::Colours;
using testing::HasSubstr;

Bitmap greyOf(Bitmap picture)
{
    for (std::int32_t y = 0; y < picture.height(); ++y)
        for (std::int32_t x = 0; x < picture.width(); ++x) {
            std::uint8_t* pixel = picture.row(y) + std::ptrdiff_t{4} * x;
            pixel[0] = pixel[2] = pixel[1];
        }
    return picture;
}

struct NamedKind {
    const char* name;
    JPEGKind kind;
};

class AJPEG : public testing::TestWithParam<NamedKind> { };

std::string kindName(const testing::TestParamInfo<NamedKind>& kind)
{
    return kind.param.name;
}

INSTANTIATE_TEST_SUITE_P(Kinds, AJPEG,
    testing::Values(NamedKind{"Usual", {}}, NamedKind{"WithWholeColours", {.isSubsampled = false}},
        NamedKind{"Progressive", {.isProgressive = true}}, NamedKind{"Arithmetic", {.isArithmetic = true}},
        NamedKind{"Grey", {.colours = Colours::Grey}},
        NamedKind{"RGB", {.colours = Colours::RGB, .isSubsampled = false}},
        NamedKind{"CMYK", {.colours = Colours::CMYK, .isSubsampled = false}},
        NamedKind{"YCCK", {.colours = Colours::YCCK}},
        NamedKind{"ProgressiveCMYK", {.colours = Colours::CMYK, .isProgressive = true, .isSubsampled = false}}),
    kindName);

TEST_P(AJPEG, IsDecoded)
{
    const JPEGKind& kind = GetParam().kind;
    const Bitmap photograph = aPhotograph(131, 67);
    const ImageBytes bytes = jpegOf(photograph, kind);

    EXPECT_EQ(headerOf(bytes), (ImageHeader{ImageFormat::JPEG, 131, 67, 1, false}));
    const auto picture = loaded(bytes);
    ASSERT_TRUE(picture);
    EXPECT_FALSE(picture->hasAlpha());
    const Difference difference
        = differenceOf(*picture, kind.colours == Colours::Grey ? greyOf(photograph) : photograph);
    EXPECT_LE(difference.most, 40);
    EXPECT_LT(difference.mean, 2.5);
}

TEST_P(AJPEG, IsShrunkWhileItIsDecoded)
{
    const JPEGKind& kind = GetParam().kind;
    const ImageBytes bytes = jpegOf(aPhotograph(331, 247), kind);
    const auto whole = loaded(bytes);
    ASSERT_TRUE(whole);
    for (const auto& [width, height] : {std::pair(160, 120), {83, 62}, {41, 31}, {20, 15}, {3, 2}}) {
        const auto picture = drawn(bytes, width, height);
        ASSERT_TRUE(picture);
        const Difference difference = differenceOf(*picture, drawnWhole(*whole, width, height));
        EXPECT_LE(difference.most, 3) << width;
        EXPECT_LT(difference.mean, 0.5) << width;
    }
}

TEST_P(AJPEG, IsTakenOnceARowIsThere)
{
    const ImageBytes bytes = jpegOf(aPhotograph(64, 200), GetParam().kind);
    const auto whole = loaded(bytes);
    const auto half = loaded(prefix(bytes, bytes.size() * 2 / 3));

    ASSERT_TRUE(half);
    ASSERT_TRUE(whole);
    if (!GetParam().kind.isProgressive)
        EXPECT_EQ(half->cropped(0, 0, 64, 70), whole->cropped(0, 0, 64, 70));
    else
        EXPECT_LT(differenceOf(*half, *whole).mean, 8);
}

TEST_P(AJPEG, IsNoImageWithoutARow)
{
    const ImageBytes bytes = jpegOf(aPhotograph(64, 200), GetParam().kind);
    std::size_t scan = 0;
    for (std::size_t at = 0; at + 1 < bytes.size() && scan == 0; ++at)
        if (bytes[at] == 0xFF && bytes[at + 1] == 0xDA)
            scan = at;
    ASSERT_GT(scan, 0U);
    NSError error;
    EXPECT_FALSE(loaded(prefix(bytes, scan + 30), &error));
    EXPECT_EQ(error.code(), ImagingErrorDamaged) << error;
    EXPECT_FALSE(loaded(prefix(bytes, scan), &error));
    EXPECT_EQ(error.code(), ImagingErrorDamaged) << error;
}

TEST(AJPEGFile, IsUprightWhicheverWayItIsStored)
{
    const Bitmap photograph = aPhotograph(48, 32);
    for (int orientation = 1; orientation <= 8; ++orientation) {
        JPEGKind kind;
        kind.orientation = orientation;
        const ImageBytes bytes = jpegOf(photograph, kind);
        const auto header = headerOf(bytes);
        ASSERT_TRUE(header);
        EXPECT_EQ(header->orientation, orientation);
        EXPECT_EQ(header->width, 48);
        EXPECT_EQ(header->uprightWidth(), orientation >= 5 ? 32 : 48);
        const auto picture = loaded(bytes);
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->width(), header->uprightWidth());
        EXPECT_EQ(picture->height(), header->uprightHeight());
        const auto width = static_cast<std::int32_t>(header->uprightWidth() / 2);
        const auto height = static_cast<std::int32_t>(header->uprightHeight() / 2);
        const auto small = drawn(bytes, width, height);
        ASSERT_TRUE(small);
        EXPECT_LT(differenceOf(*small, drawnWhole(*picture, width, height)).mean, 1.5) << orientation;
    }
}

TEST(AJPEGFile, OfInksWithoutTheMakersMarkerIsTheOtherWayRound)
{
    const JPEGKind kind{.colours = Colours::CMYK, .isSubsampled = false};
    ImageBytes bytes = jpegOf(aPlainPicture(16, 16, 255, 0, 0), kind);
    const auto marked = loaded(bytes);
    // The marker becomes one that nobody reads.
    for (std::size_t at = 0; at + 1 < 100; ++at)
        if (bytes[at] == 0xFF && bytes[at + 1] == 0xEE)
            bytes[at + 1] = 0xE9;
    const auto unmarked = loaded(bytes);

    ASSERT_TRUE(marked && unmarked);
    EXPECT_LT(differenceOf(*marked, aPlainPicture(16, 16, 255, 0, 0)).most, 3);
    // All black ink now.
    EXPECT_LT(differenceOf(*unmarked, aPlainPicture(16, 16, 0, 0, 0)).most, 3);
}

TEST(AJPEGFile, KeepsWhatCameBeforeDamage)
{
    ImageBytes bytes = jpegOf(aPhotograph(64, 200));
    const auto whole = loaded(bytes);
    for (std::size_t at = bytes.size() / 2; at < bytes.size() / 2 + 40; ++at)
        bytes[at] = 0x55;
    const auto damaged = loaded(bytes);
    ASSERT_TRUE(damaged && whole);
    EXPECT_EQ(damaged->cropped(0, 0, 64, 40), whole->cropped(0, 0, 64, 40));
}

TEST(AJPEGFile, HasNoMoreScansThanTheLimit)
{
    NSError error;
    const Bitmap picture = aPhotograph(16, 16);
    EXPECT_TRUE(loaded(jpegWithScans(picture, 50), &error)) << error;

    EXPECT_FALSE(loaded(jpegWithScans(picture, 10'000), &error));
    EXPECT_EQ(error.code(), ImagingErrorTooLarge);
    EXPECT_THAT(error.localizedDescription(), HasSubstr("100 scans (scansOfAJPEG)"));
    EXPECT_THAT(error.localizedDescription(), HasSubstr("16 x 16"));

    ImageLimits limits;
    limits.scansOfAJPEG = 20'000;
    // Most of these scans say what others said before.
    limits.warningsOfAJPEG = 100'000'000;
    EXPECT_TRUE(loaded(jpegWithScans(picture, 10'000), &error, limits)) << error;
}

TEST(AJPEGFile, IsNoImageWhereTooMuchIsDamaged)
{
    // Each of these scans says what others said before, which is a warning.
    const ImageBytes bytes = jpegWithScans(aPhotograph(16, 16), 50);
    ImageLimits limits;
    EXPECT_TRUE(loaded(bytes, nullptr, limits));
    limits.warningsOfAJPEG = 10;
    NSError error;
    EXPECT_FALSE(loaded(bytes, &error, limits));
    EXPECT_EQ(error.code(), ImagingErrorDamaged);
}

TEST(AJPEGFile, ThatIsProgressiveIsHeldWithinTheLimit)
{
    ImageLimits limits;
    limits.bufferedPixels = 100 * 99;
    NSError error;
    const ImageBytes progressive = jpegOf(aPhotograph(100, 100), {.isProgressive = true});
    EXPECT_FALSE(drawn(progressive, 10, 10, &error, limits));
    EXPECT_THAT(error.localizedDescription(),
        testing::AllOf(HasSubstr("100 x 100"), HasSubstr("9900"), HasSubstr("(bufferedPixels)")));
    EXPECT_TRUE(drawn(jpegOf(aPhotograph(100, 100)), 10, 10, nullptr, limits));
}

} // namespace
} // namespace tarn
