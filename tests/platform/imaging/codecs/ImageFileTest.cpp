#include "tarnmodel/platform/imaging/ImageFile.h"
#include "tarnmodel/platform/imaging/ImageDrawing.h"
#include "tarnmodel/platform/imaging/codecs/HeaderReader.h"
#include "tarnmodel/platform/imaging/codecs/ImageDecoder.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"
#include "tarnmodel/platform/imaging/codecs/WholeImage.h"
#include "tests/platform/imaging/Loading.h"
#include "tests/platform/imaging/TestPictures.h"
#include "tests/platform/imaging/makers/BMPMaker.h"
#include "tests/platform/imaging/makers/GIFMaker.h"
#include "tests/platform/imaging/makers/JPEGMaker.h"
#include "tests/platform/imaging/makers/PNGMaker.h"
#include "tests/platform/imaging/makers/WebPMaker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <sys/stat.h>

namespace tarn {
namespace {

using testing::HasSubstr;

/// The limits of the process, put back at the end.
class WithLimits {
public:
    explicit WithLimits(const ImageLimits& limits) : before_(ImageLimits::current())
    {
        ImageLimits::setCurrent(limits);
    }
    ~WithLimits() { ImageLimits::setCurrent(before_); }
    WithLimits(const WithLimits&) = delete;
    WithLimits& operator=(const WithLimits&) = delete;

private:
    ImageLimits before_;
};

TEST(AFile, IsKnownByWhatIsInIt)
{
    const Bitmap picture = aPhotograph(8, 8);
    const std::pair<ImageFormat, ImageBytes> files[]{{ImageFormat::JPEG, jpegOf(picture)},
        {ImageFormat::PNG, pngOf(picture)}, {ImageFormat::GIF, gifOf(2, 1, {{0, 0, {"rg"}}})},
        {ImageFormat::WebP, webPOf(picture)}, {ImageFormat::BMP, bmpOf({1, 1, 24, 0, 40, {}, {}, {{1, 2, 3}}})}};
    for (const auto& [format, bytes] : files) {
        const ImageOnDisk file(bytes, "misleading.png");
        NSError error;
        EXPECT_EQ(imageFormatOfFile(file.path(), &error), format) << error;
        const auto header = readImageHeader(file.path(), &error);
        ASSERT_TRUE(header) << error;
        EXPECT_EQ(header->format, format);
        const auto bitmap = loadImage(file.path(), &error);
        ASSERT_TRUE(bitmap) << error;
        EXPECT_EQ(bitmap->width(), header->width);
        const auto samples = loadImageForDrawing(file.path(), 1, 1, &error);
        ASSERT_TRUE(samples) << error;
        Bitmap canvas(1, 1, Bitmap::Alpha::Premultiplied);
        drawImage(*samples, canvas, 0, 0, 1, 1);
        EXPECT_EQ(canvas.row(0)[3], 255);
    }
}

TEST(AFile, ThatIsNoImageIsToldApartFromOneThatIsNotThere)
{
    NSError error;
    for (const ImageBytes& bytes : {ImageBytes(), ImageBytes{0xFF}, ImageBytes(5'000, 'x')}) {
        const ImageOnDisk file(bytes, "text.png");
        EXPECT_FALSE(imageFormatOfFile(file.path(), &error));
        EXPECT_EQ(error.code(), ImagingErrorUnknownFormat);
        EXPECT_FALSE(readImageHeader(file.path(), &error));
        EXPECT_EQ(error.code(), ImagingErrorUnknownFormat);
        EXPECT_FALSE(loadImage(file.path(), &error));
        EXPECT_EQ(error.code(), ImagingErrorUnknownFormat);
    }
    const ImageOnDisk file({});
    EXPECT_FALSE(loadImage(file.path().parent_path() / "gone.png", &error));
    EXPECT_EQ(error.code(), ImagingErrorCannotRead);
    EXPECT_THAT(error.localizedDescription(), HasSubstr("gone.png: No such file"));
    EXPECT_FALSE(loadImageForDrawing(file.path().parent_path(), 1, 1, &error));
    EXPECT_EQ(error.code(), ImagingErrorCannotRead);
    EXPECT_FALSE(readImageHeader(file.path().parent_path() / "gone.png"));
}

TEST(AFile, ThatIsAPipeIsNotWaitedFor)
{
    const ImageOnDisk file({});
    const std::filesystem::path pipe = file.path().parent_path() / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    NSError error;
    EXPECT_FALSE(loadImage(pipe, &error));
    EXPECT_EQ(error.code(), ImagingErrorCannotRead);
}

#ifndef TARN_WITH_TIFF
TEST(AFile, OfAFormatThatIsNotBuiltInSaysSo)
{
    ImageBytes bytes;
    append(bytes, std::string_view("II*\0\10\0\0\0", 8));
    const ImageOnDisk file(bytes);
    NSError error;
    EXPECT_EQ(imageFormatOfFile(file.path()), ImageFormat::TIFF);
    EXPECT_FALSE(readImageHeader(file.path(), &error));
    EXPECT_EQ(error.code(), ImagingErrorUnknownFormat);
    EXPECT_EQ(error.localizedDescription(), "The library was built without TIFF.");
    EXPECT_FALSE(loadImage(file.path(), &error));
    EXPECT_EQ(error.code(), ImagingErrorUnknownFormat);
}
#endif

TEST(Limits, AreAskedOfTheHeaderBeforeAnythingIsDecoded)
{
    // Tiny files.
    ImageBytes png;
    append(png, "\x89PNG\r\n\x1A\n");
    ImageBytes sizes;
    appendBigEndian32(sizes, 100'000);
    appendBigEndian32(sizes, 100'000);
    append(sizes, ImageBytes{8, 6, 0, 0, 0});
    append(png, pngChunk("IHDR", sizes));
    append(png, pngChunk("IDAT", compressedZeros(1'000)));
    const ImageBytes jpeg = jpegClaiming(jpegOf(aPhotograph(16, 16)), 65'500, 65'500);

    NSError error;
    const ImageOnDisk pngFile(png);
    EXPECT_EQ(readImageHeader(pngFile.path())->width, 100'000);
    for (const bool isDrawn : {false, true}) {
        EXPECT_FALSE(isDrawn ? loadImageForDrawing(pngFile.path(), 10, 10, &error).has_value()
                             : loadImage(pngFile.path(), &error).has_value());
        EXPECT_EQ(error.code(), ImagingErrorTooLarge);
        EXPECT_EQ(error.localizedDescription(),
            "The image has 100000 x 100000 pixels; at most 268402689 are decoded (pixels).");
    }
    const ImageOnDisk jpegFile(jpeg);
    EXPECT_FALSE(loadImageForDrawing(jpegFile.path(), 10, 10, &error));
    EXPECT_THAT(error.localizedDescription(), HasSubstr("65500 x 65500"));
    EXPECT_FALSE(imageIsWithinLimits(*readImageHeader(jpegFile.path()), {}, &error));
    EXPECT_TRUE(imageIsWithinLimits({ImageFormat::PNG, 16'383, 16'383}, {}));
    EXPECT_FALSE(imageIsWithinLimits({ImageFormat::PNG, 16'384, 16'383}, {}));
    EXPECT_FALSE(imageIsWithinLimits({ImageFormat::PNG, 1'000'001, 1}, {}, &error));
    EXPECT_EQ(
        error.localizedDescription(), "The image has 1000001 x 1 pixels; at most 1000000 a side are decoded (side).");
}

TEST(Limits, AreAskedByEachDecoderItself)
{
    // Headers are read by other code than pixels: the two may not agree about a file that is made to deceive.
    const Bitmap picture = aPhotograph(8, 8);
    const BMPKind bmp{1, 2, 24, 0, 40, {}, {}, {{1, 2, 3}, {1, 2, 3}}};
    const std::pair<ImageFormat, ImageBytes> files[]{{ImageFormat::JPEG, jpegOf(picture)},
        {ImageFormat::PNG, pngOf(picture)}, {ImageFormat::GIF, gifOf(2, 1, {{0, 0, {"rg"}}})},
        {ImageFormat::WebP, webPOf(picture)}, {ImageFormat::BMP, bmpOf(bmp)}};
    for (const auto& [format, bytes] : files) {
        ImageInput input(sourceOfBytes(bytes));
        DecodeRequest request;
        WholeImage rows;
        NSError error;
        EXPECT_TRUE(decodeImage(input, format, request, rows, &error)) << error;
        request.limits.pixels = 1;
        EXPECT_FALSE(decodeImage(input, format, request, rows, &error));
        EXPECT_EQ(error.code(), ImagingErrorTooLarge) << nameOf(format);
    }
}

TEST(Limits, AreThoseThatTheHostSets)
{
    const ImageOnDisk file(pngOf(aPhotograph(100, 100)));
    ImageLimits limits;
    limits.pixels = 9'999;
    const WithLimits within(limits);
    EXPECT_EQ(ImageLimits::current(), limits);
    NSError error;
    EXPECT_FALSE(loadImage(file.path(), &error));
    EXPECT_EQ(error.localizedDescription(), "The image has 100 x 100 pixels; at most 9999 are decoded (pixels).");
    EXPECT_TRUE(readImageHeader(file.path()));
}

TEST(Limits, HoldForImagesThatAreLoadedWhole)
{
    const ImageBytes bytes = pngOf(aPhotograph(100, 100));
    ImageLimits limits;
    limits.bufferedPixels = 9'999;
    NSError error;
    EXPECT_FALSE(loaded(bytes, &error, limits));
    EXPECT_THAT(error.localizedDescription(), HasSubstr("(bufferedPixels)"));
    EXPECT_FALSE(drawn(bytes, 90, 90, &error, limits));
    EXPECT_THAT(error.localizedDescription(), HasSubstr("(bufferedPixels)"));
    EXPECT_TRUE(drawn(bytes, 10, 10, &error, limits));
}

TEST(AFile, IsLoadedForAnySize)
{
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    constexpr double endless = std::numeric_limits<double>::infinity();
    for (const ImageBytes& bytes : {jpegOf(aPhotograph(40, 30)), pngOf(aPhotograph(40, 30))}) {
        const ImageOnDisk file(bytes);
        for (const double side : {0.0, -5.0, none, endless, 1e-300, 1e300}) {
            const auto samples = loadImageForDrawing(file.path(), side, side);
            ASSERT_TRUE(samples) << side;
            EXPECT_FALSE(samples->isEmpty());
            EXPECT_LE(samples->width(), 40);
        }
    }
}

TEST(AFile, ThatClaimsMoreThanItHoldsCostsLittle)
{
    const ImageBytes jpeg = jpegClaiming(jpegOf(aPhotograph(16, 16)), 16, 17'000);
    NSError error;
    const auto picture = drawn(jpeg, 10, 100, &error);
    ASSERT_TRUE(picture) << error;
    // What is missing is grey.
    EXPECT_NEAR(picture->row(99)[0], 128, 40);
    EXPECT_FALSE(loaded(bmpOf({100'000, 500, 24, 0, 40, {}, {}, {{1, 2, 3}}}), &error));
    EXPECT_THAT(error.localizedDescription(), HasSubstr("ends early"));
}

} // namespace
} // namespace tarn
