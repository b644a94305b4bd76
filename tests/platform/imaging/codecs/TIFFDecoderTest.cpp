// Only where the library was built with TIFF.
#ifdef TARN_WITH_TIFF

#include "tests/platform/imaging/Loading.h"
#include "tests/platform/imaging/TestPictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>
#include <tiffio.h>

namespace tarn {
namespace {

/// Colours premultiplied as the bitmap's are.
ImageBytes tiffOf(const Bitmap& picture, int orientation = 1, int compression = COMPRESSION_LZW)
{
    const ImageOnDisk place({});
    TIFF* file = TIFFOpen(place.path().c_str(), "w");
    TIFFSetField(file, TIFFTAG_IMAGEWIDTH, picture.width());
    TIFFSetField(file, TIFFTAG_IMAGELENGTH, picture.height());
    TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(file, TIFFTAG_SAMPLESPERPIXEL, picture.hasAlpha() ? 4 : 3);
    TIFFSetField(file, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(file, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(file, TIFFTAG_COMPRESSION, compression);
    TIFFSetField(file, TIFFTAG_ORIENTATION, orientation);
    const std::uint16_t extra = EXTRASAMPLE_ASSOCALPHA;
    if (picture.hasAlpha())
        TIFFSetField(file, TIFFTAG_EXTRASAMPLES, 1, &extra);
    for (std::int32_t y = 0; y < picture.height(); ++y) {
        ImageBytes row;
        for (std::size_t at = 0; at < picture.bytesPerRow(); ++at)
            if (picture.hasAlpha() || at % 4 != 3)
                row.push_back(picture.row(y)[at]);
        TIFFWriteScanline(file, row.data(), static_cast<std::uint32_t>(y), 0);
    }
    TIFFClose(file);
    std::ifstream written(place.path(), std::ios::binary);
    return {std::istreambuf_iterator<char>(written), {}};
}

TEST(ATIFF, IsDecoded)
{
    for (const Bitmap& picture : {aPhotograph(37, 23), aFadingPicture(37, 23)}) {
        const ImageBytes bytes = tiffOf(picture);
        EXPECT_EQ(headerOf(bytes), (ImageHeader{ImageFormat::TIFF, 37, 23, 1, picture.hasAlpha()}));
        const auto read = loaded(bytes);
        ASSERT_TRUE(read);
        EXPECT_LE(differenceOf(*read, picture).most, picture.hasAlpha() ? 1 : 0);
    }
}

TEST(ATIFF, IsUprightWhicheverWayItIsStored)
{
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const Bitmap stored = aPhotograph(6, 4);
        const ImageBytes bytes = tiffOf(stored, orientation);
        EXPECT_EQ(headerOf(bytes), (ImageHeader{ImageFormat::TIFF, 6, 4, orientation, false}));
        const auto read = loaded(bytes);
        ASSERT_TRUE(read);
        EXPECT_EQ(read->width(), orientation >= 5 ? 4 : 6);
        // Where the first pixel of the file is seen.
        const bool isRight = orientation == 2 || orientation == 3 || orientation == 6 || orientation == 7;
        const bool isBelow = orientation == 3 || orientation == 4 || orientation == 7 || orientation == 8;
        EXPECT_EQ(read->cropped(isRight ? read->width() - 1 : 0, isBelow ? read->height() - 1 : 0, 1, 1),
            stored.cropped(0, 0, 1, 1));
    }
}

TEST(ATIFF, IsWithinTheLimits)
{
    ImageLimits limits;
    limits.bufferedPixels = 99;
    NSError error;
    EXPECT_FALSE(drawn(tiffOf(aPhotograph(10, 10)), 5, 5, &error, limits));
    EXPECT_EQ(error.code(), ImagingErrorTooLarge);
}

TEST(ATIFF, ThatIsHarmedIsAnImageOrAnError)
{
    const ImageBytes bytes = tiffOf(aFadingPicture(40, 30));
    ImageLimits limits;
    limits.pixels = limits.bufferedPixels = 300'000;
    int refused = 0;
    for (std::uint32_t round = 0; round < 200; ++round) {
        std::mt19937 random(round);
        ImageBytes harmed = prefix(bytes, round % 2 == 0 ? bytes.size() : random() % bytes.size());
        for (int flip = 0; flip < 4 && !harmed.empty(); ++flip)
            harmed[random() % harmed.size()] ^= static_cast<std::uint8_t>(1U << random() % 8);
        NSError error;
        const auto read = loaded(harmed, &error, limits);
        EXPECT_EQ(read.has_value(), error.code() == 0);
        refused += !read;
    }
    EXPECT_GT(refused, 50);
    EXPECT_LT(refused, 200);
}

} // namespace
} // namespace tarn

#endif
