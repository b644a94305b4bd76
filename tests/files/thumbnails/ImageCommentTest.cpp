#include "tarnmodel/files/thumbnails/ImageComment.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace std::string_view_literals;

/// As much of a PNG as a comment needs: signature, header, end.
const std::string kPNG("\x89PNG\r\n\x1A\n"
                       "\0\0\0\rIHDR\0\0\0\x01\0\0\0\x01\x08\x06\0\0\0\x1F\x15\xC4\x89"
                       "\0\0\0\0IEND\xAE\x42\x60\x82"sv);
/// SOI, a JFIF header, EOI.
const std::string kJPEG("\xFF\xD8\xFF\xE0\0\x10JFIF\0\x01\x01\0\0\x01\0\x01\0\0\xFF\xD9"sv);
const std::string kJPEGWithoutJFIF("\xFF\xD8\xFF\xDB\0\x02\xFF\xD9"sv);

TEST(AnImageComment, IsReadAgain)
{
    for (const std::string& image : {kPNG, kJPEG, kJPEGWithoutJFIF})
        for (const std::string& comment :
            {std::string(), std::string("size 5"), std::string(LongestImageComment, 'x')}) {
            const auto commented = imageWithComment(image, comment);
            ASSERT_TRUE(commented);
            EXPECT_EQ(commentOfImage(*commented), comment);
            EXPECT_EQ(commentOfImage(commented->substr(0, ImageCommentReach)), comment);
        }
}

TEST(AnImageComment, StandsBehindTheHeader)
{
    // The last four bytes are the sum that zlib gives for the chunk.
    EXPECT_EQ(imageWithComment(kPNG, "hi"),
        kPNG.substr(0, 33) + std::string("\0\0\0\x0EtEXttarn-source\0hi\x18\xF0\xD4\x91"sv) + kPNG.substr(33));
    EXPECT_EQ(imageWithComment(kJPEG, "hi"),
        kJPEG.substr(0, 20) + std::string("\xFF\xFE\0\x10tarn-source hi"sv) + kJPEG.substr(20));
    EXPECT_EQ(imageWithComment(kJPEGWithoutJFIF, "hi"),
        kJPEGWithoutJFIF.substr(0, 2) + std::string("\xFF\xFE\0\x10tarn-source hi"sv) + kJPEGWithoutJFIF.substr(2));
}

TEST(AnImageComment, IsNoneWhereThereIsNoneOfOurs)
{
    EXPECT_EQ(commentOfImage(""), std::nullopt);
    EXPECT_EQ(commentOfImage("GIF89a"), std::nullopt);
    EXPECT_EQ(commentOfImage(kPNG), std::nullopt);
    EXPECT_EQ(commentOfImage(kJPEG), std::nullopt);
    EXPECT_EQ(commentOfImage(kJPEGWithoutJFIF), std::nullopt);
    for (const std::string& image : {kPNG, kJPEG}) {
        std::string other = *imageWithComment(image, "hi");
        other.replace(other.find("tarn-source"), 4, "barn");
        EXPECT_EQ(commentOfImage(other), std::nullopt);
    }
}

TEST(AnImageComment, IsNoneOfAFileThatEndsBeforeIt)
{
    for (const std::string& image : {kPNG, kJPEG, kJPEGWithoutJFIF}) {
        const std::string commented = *imageWithComment(image, "hi");
        const std::size_t end = commented.find("hi") + 2;
        for (std::size_t size = 0; size < end; ++size)
            EXPECT_EQ(commentOfImage(commented.substr(0, size)), std::nullopt) << size;
        EXPECT_EQ(commentOfImage(commented.substr(0, end)), "hi");
    }
}

TEST(AnImageComment, IsPutIntoNothingElse)
{
    EXPECT_EQ(imageWithComment("", "hi"), std::nullopt);
    EXPECT_EQ(imageWithComment("GIF89a", "hi"), std::nullopt);
    EXPECT_EQ(imageWithComment(kPNG.substr(0, 32), "hi"), std::nullopt);
    EXPECT_EQ(imageWithComment(kJPEG.substr(0, 19), "hi"), std::nullopt);
    EXPECT_EQ(imageWithComment(kPNG, std::string(LongestImageComment + 1, 'x')), std::nullopt);
}

} // namespace
} // namespace tarn
