#include "tarnmodel/platform/foundation/filetypes/UTType.h"

#include "tarnmodel/platform/foundation/filetypes/FileTypeTableInternal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tarn {
namespace {

std::string identifierOf(std::string_view extension)
{
    const auto type = UTType::typeWithFilenameExtension(extension);
    return type ? std::string(type->identifier()) : "none";
}

std::string preferredFor(std::string_view extension)
{
    const auto type = UTType::typeWithFilenameExtension(extension);
    return type ? std::string(type->preferredFilenameExtension()) : "none";
}

TEST(FileTypes, AreSortedByExtensionsInLowerCaseASCII)
{
    EXPECT_GT(fileTypes().size(), 1200U);
    const auto disorder = std::ranges::adjacent_find(fileTypes(), std::ranges::greater_equal{}, &FileType::extension);
    EXPECT_EQ(disorder, fileTypes().end()) << disorder->extension << " stands before what is not greater";
    for (const FileType& type : fileTypes()) {
        EXPECT_FALSE(type.extension.empty());
        EXPECT_TRUE(std::ranges::none_of(type.extension, [](char letter) {
            return letter <= ' ' || letter > '~' || letter == '.' || (letter >= 'A' && letter <= 'Z');
        })) << type.extension;
    }
}

TEST(FileTypes, PreferAnExtensionThatLeadsToThemAgain)
{
    for (const FileType& type : fileTypes()) {
        const auto again = UTType::typeWithFilenameExtension(type.preferredExtension);
        ASSERT_TRUE(again) << type.extension;
        EXPECT_EQ(*again, UTType::typeWithFilenameExtension(type.extension)) << type.extension;
        EXPECT_EQ(again->preferredFilenameExtension(), type.preferredExtension) << type.extension;
    }
}

TEST(FileTypes, AreFoundByExtensionsInAnyCase)
{
    EXPECT_EQ(identifierOf("JPG"), "image/jpeg");
    EXPECT_EQ(identifierOf("pNg"), "image/png");
    EXPECT_EQ(identifierOf("7Z"), "application/x-7z-compressed");
    EXPECT_EQ(UTType::typeWithFilenameExtension("JPG"), UTType::typeWithFilenameExtension("jpe"));
    EXPECT_NE(UTType::typeWithFilenameExtension("jpg"), UTType::typeWithFilenameExtension("png"));
}

TEST(FileTypes, AreNoneForWhatIsNotKnown)
{
    for (const std::string_view extension :
        {"", "j", "jpgg", ".jpg", "jpg ", "no-such-type", "zzzz", "0", "JPÉG", "ſvg"})
        EXPECT_EQ(identifierOf(extension), "none") << extension;
    EXPECT_EQ(identifierOf(std::string_view("jpg\0", 4)), "none");
}

TEST(FileTypes, PreferTheExtensionsThatPeopleKnow)
{
    for (const std::string_view extension : {"JPG", "jpg", "jpeg", "jpe", "jfif", "pjpeg", "pjp"})
        EXPECT_EQ(preferredFor(extension), "jpeg") << extension;
    const std::vector<std::pair<std::string_view, std::string_view>> expected
        = {{"tif", "tiff"}, {"qt", "mov"}, {"mp4v", "mp4"}, {"mpga", "mp3"}, {"htm", "html"}, {"text", "txt"},
            {"markdown", "md"}, {"aac", "aac"}, {"oga", "ogg"}, {"hif", "heif"}, {"heic", "heic"}, {"onetoc", "one"},
            {"eps", "ps"}, {"tr", "man"}, {"svgz", "svg"}, {"png", "png"}};
    for (const auto& [extension, preferred] : expected)
        EXPECT_EQ(preferredFor(extension), preferred) << extension;
}

TEST(FileTypes, AreWhatPeopleMeanWhereAnExtensionHasSeveral)
{
    const std::vector<std::pair<std::string_view, std::string_view>> expected
        = {{"mp4", "video/mp4"}, {"mp3", "audio/mpeg"}, {"3gpp", "video/3gpp"}, {"mts", "video/mp2t"},
            {"asc", "application/pgp-signature"}, {"org", "text/x-org"}, {"sub", "text/vnd.dvb.subtitle"},
            {"js", "text/javascript"}, {"vsdx", "application/vnd.ms-visio.drawing.main+xml"}, {"bmp", "image/bmp"},
            {"ico", "image/vnd.microsoft.icon"}, {"dmg", "application/x-apple-diskimage"}, {"m4a", "audio/mp4"}};
    for (const auto& [extension, identifier] : expected)
        EXPECT_EQ(identifierOf(extension), identifier) << extension;
}

TEST(FileTypes, TellImagesRawPicturesOfCamerasAmongThem)
{
    for (const std::string_view extension :
        {"jpg", "png", "gif", "webp", "bmp", "ico", "tif", "heic", "heif", "hif", "avif", "apng", "svg", "svgz", "arw",
            "cr2", "cr3", "crw", "dng", "mrw", "nef", "nrw", "orf", "pef", "raf", "raw", "rw2", "srw"})
        EXPECT_TRUE(UTType::typeWithFilenameExtension(extension)->conformsToImage()) << extension;
    for (const std::string_view extension : {"pdf", "mp4", "mp3", "txt", "md", "html", "zip", "sub"})
        EXPECT_FALSE(UTType::typeWithFilenameExtension(extension)->conformsToImage()) << extension;
}

TEST(FileTypes, TellJPEGFromWhatHasASimilarName)
{
    for (const std::string_view extension : {"jpg", "jpeg", "jpe", "jfif", "pjpeg", "pjp"})
        EXPECT_TRUE(UTType::typeWithFilenameExtension(extension)->conformsToJPEG()) << extension;
    for (const std::string_view extension : {"jp2", "jpx", "jxl", "png", "heic"})
        EXPECT_FALSE(UTType::typeWithFilenameExtension(extension)->conformsToJPEG()) << extension;
}

TEST(FileTypes, TellSVGDrawings)
{
    EXPECT_TRUE(UTType::typeWithFilenameExtension("svg")->conformsToSVG());
    EXPECT_TRUE(UTType::typeWithFilenameExtension("SVGZ")->conformsToSVG());
    EXPECT_FALSE(UTType::typeWithFilenameExtension("png")->conformsToSVG());
}

} // namespace
} // namespace tarn
