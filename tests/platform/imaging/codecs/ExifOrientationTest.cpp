#include "tarnmodel/platform/imaging/codecs/ExifOrientation.h"
#include "tests/platform/imaging/makers/ImageBytes.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

TEST(ExifData, TellTheOrientationInBothByteOrders)
{
    for (int orientation = 1; orientation <= 8; ++orientation)
        for (const ByteOrder order : {ByteOrder::Little, ByteOrder::Big}) {
            EXPECT_EQ(exifOrientation(exifWith(orientation, order)), orientation);
            ImageBytes prefixed;
            append(prefixed, std::string_view("Exif\0\0", 6));
            append(prefixed, exifWith(orientation, order));
            EXPECT_EQ(exifOrientation(prefixed), orientation);
        }
}

TEST(ExifData, AreUprightWhenTheyTellNothing)
{
    EXPECT_EQ(exifOrientation({}), 1);
    EXPECT_EQ(exifOrientation(exifWith(0)), 1);
    EXPECT_EQ(exifOrientation(exifWith(9)), 1);
    EXPECT_EQ(exifOrientation(ImageBytes(100, 'x')), 1);
}

TEST(ExifData, AreUprightWhereverTheyEndTooEarly)
{
    const ImageBytes whole = exifWith(6);
    // The value is the tenth byte of the second entry.
    for (std::size_t length = 0; length < 10 + 12 + 12; ++length)
        EXPECT_EQ(exifOrientation(prefix(whole, length)), 1) << length;
    EXPECT_EQ(exifOrientation(prefix(whole, 10 + 12 + 12)), 6);
}

TEST(ExifData, AreNotFollowedBeyondTheirEnd)
{
    for (const std::uint8_t offset : {28U, 37U, 38U, 200U}) {
        ImageBytes bytes = exifWith(6);
        bytes[4] = offset;
        EXPECT_EQ(exifOrientation(bytes), 1);
    }
    ImageBytes bytes = exifWith(6);
    for (std::size_t at = 4; at < 8; ++at)
        bytes[at] = 0xFF;
    EXPECT_EQ(exifOrientation(bytes), 1);
}

TEST(ExifData, NeedAnOrientationOfOneShortNumber)
{
    constexpr std::size_t kSecondEntry = 10 + 12;
    ImageBytes ofLongs = exifWith(6);
    ofLongs[kSecondEntry + 2] = 4;
    EXPECT_EQ(exifOrientation(ofLongs), 1);
    ImageBytes ofTwo = exifWith(6);
    ofTwo[kSecondEntry + 4] = 2;
    EXPECT_EQ(exifOrientation(ofTwo), 1);
}

} // namespace
} // namespace tarn
