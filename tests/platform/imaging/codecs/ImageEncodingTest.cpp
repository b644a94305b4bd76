#include "tarnmodel/platform/imaging/ImageEncoding.h"
#include "tests/platform/imaging/Loading.h"
#include "tests/platform/imaging/TestPictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace tarn {
namespace {

ImageBytes bytesOfFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(AWrittenPNG, IsExactWithoutAlpha)
{
    const ImageOnDisk file({});
    const Bitmap picture = aPhotograph(45, 30);
    NSError error;
    ASSERT_TRUE(writePNG(picture, file.path(), &error)) << error;

    EXPECT_EQ(*loadImage(file.path()), picture);
}

TEST(AWrittenPNG, IsExactWithAlphaToo)
{
    const ImageOnDisk file({});
    const Bitmap picture = aFadingPicture(256, 64);
    ASSERT_TRUE(writePNG(picture, file.path()));

    const auto read = loadImage(file.path());
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->hasAlpha());
    // A premultiplied colour comes back as it was: what is lost is only what it had lost before.
    EXPECT_EQ(*read, picture);
}

TEST(AWrittenPNG, OfEqualBitmapsHasEqualBytes)
{
    const ImageOnDisk one({});
    const ImageOnDisk other({});
    ASSERT_TRUE(writePNG(aFadingPicture(50, 50), one.path()));
    ASSERT_TRUE(writePNG(aFadingPicture(50, 50), other.path()));
    EXPECT_EQ(bytesOfFile(one.path()), bytesOfFile(other.path()));
}

TEST(AWrittenPNG, BearsMoreColourThanAlpha)
{
    Bitmap picture(1, 1, Bitmap::Alpha::Premultiplied);
    std::fill_n(picture.row(0), 3, std::uint8_t{200});
    picture.row(0)[3] = 100;
    const ImageOnDisk file({});
    ASSERT_TRUE(writePNG(picture, file.path()));
    EXPECT_EQ(loadImage(file.path())->row(0)[0], 100);
}

TEST(AWrittenJPEG, IsClose)
{
    const ImageOnDisk file({});
    const Bitmap picture = aPhotograph(120, 80);
    NSError error;
    ASSERT_TRUE(writeJPEG(picture, file.path(), &error)) << error;
    EXPECT_EQ(imageFormatOfFile(file.path()), ImageFormat::JPEG);
    EXPECT_LT(differenceOf(*loadImage(file.path()), picture).mean, 4);
}

TEST(AWrittenJPEG, IsLargerAndBetterWithMoreQuality)
{
    const ImageOnDisk poor({});
    const ImageOnDisk good({});
    const Bitmap picture = aPhotograph(120, 80);
    ASSERT_TRUE(writeJPEG(picture, poor.path(), nullptr, 20));
    ASSERT_TRUE(writeJPEG(picture, good.path(), nullptr, 100));
    EXPECT_LT(std::filesystem::file_size(poor.path()) * 2, std::filesystem::file_size(good.path()));
    EXPECT_LT(differenceOf(*loadImage(good.path()), picture).mean, differenceOf(*loadImage(poor.path()), picture).mean);
}

TEST(AWrittenJPEG, IsBlackWhereTheBitmapIsTransparent)
{
    const ImageOnDisk file({});
    ASSERT_TRUE(writeJPEG(aPlainPicture(16, 16, 100, 0, 0, 128), file.path()));
    EXPECT_LE(differenceOf(*loadImage(file.path()), aPlainPicture(16, 16, 100, 0, 0)).most, 3);
    ASSERT_TRUE(writeJPEG(Bitmap(16, 16, Bitmap::Alpha::Premultiplied), file.path()));
    EXPECT_LE(differenceOf(*loadImage(file.path()), aPlainPicture(16, 16, 0, 0, 0)).most, 1);
}

TEST(AnImage, ThatCannotBeWrittenSaysSo)
{
    const Bitmap picture = aPhotograph(4, 4);
    const ImageOnDisk file({1, 2, 3});
    for (const auto write : {+[](const Bitmap&bitmap, const std::filesystem::path&path, NSError*error) {
                                 return writePNG(bitmap, path, error);
                             },
             +[](const Bitmap&bitmap, const std::filesystem::path&path, NSError*error) {
                 return writeJPEG(bitmap, path, error);
             }}) {
        NSError error;
        EXPECT_FALSE(write(picture, file.path() / "below a file", &error));
        EXPECT_EQ(error.code(), ImagingErrorCannotWrite);
        EXPECT_FALSE(write(picture, "/dev/full", &error));
        EXPECT_EQ(error.code(), ImagingErrorCannotWrite);
        EXPECT_FALSE(write(Bitmap(), file.path(), &error));
        EXPECT_EQ(error.code(), ImagingErrorCannotWrite);
        EXPECT_EQ(bytesOfFile(file.path()), (ImageBytes{1, 2, 3}));
    }
    // More than the format holds.
    NSError error;
    EXPECT_FALSE(writeJPEG(Bitmap(70'000, 1, Bitmap::Alpha::None), file.path(), &error));
    EXPECT_EQ(error.code(), ImagingErrorCannotWrite);
}

} // namespace
} // namespace tarn
