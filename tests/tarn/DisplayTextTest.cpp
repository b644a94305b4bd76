#include "tools/tarn/commandline/DisplayText.h"

#include <gtest/gtest.h>

namespace tarn {

TEST(DisplayText, StaysOnOneLineAndMovesNoCursor)
{
    EXPECT_EQ(displayText("a\nb\tc\r\nd"), "a b c  d");
    EXPECT_EQ(displayText("\x1b[31mred\x07"), "\xEF\xBF\xBD[31mred\xEF\xBF\xBD");
    EXPECT_EQ(displayText("a\xFFz"), "a\xEF\xBF\xBDz");
    EXPECT_EQ(displayText("file\xE2\x80\xAEgpj.exe"), "file\xEF\xBF\xBDgpj.exe");
}

TEST(DisplayWidth, CountsColumns)
{
    EXPECT_EQ(displayWidth("abc"), 3U);
    EXPECT_EQ(displayWidth("äöü"), 3U);
    EXPECT_EQ(displayWidth("a\xCC\x88"), 1U); // decomposed
    EXPECT_EQ(displayWidth("番茄"), 4U);
    EXPECT_EQ(displayWidth("한국"), 4U);
    EXPECT_EQ(displayWidth("😀"), 2U);
    EXPECT_EQ(displayWidth("❤\xEF\xB8\x8F"), 2U);
    EXPECT_EQ(displayWidth(""), 0U);
}

TEST(TextFittedToWidth, CutsBetweenCharactersAndSaysSo)
{
    EXPECT_EQ(textFittedToWidth("abcdef", 6), "abcdef");
    EXPECT_EQ(textFittedToWidth("abcdef", 5), "abcd…");
    EXPECT_EQ(textFittedToWidth("番茄炒蛋", 5), "番茄…");
    EXPECT_EQ(textFittedToWidth("番茄炒蛋", 4), "番…");
    EXPECT_EQ(textFittedToWidth("ab", 1), "…");
    EXPECT_EQ(textFittedToWidth("ab", 0), "");
}

TEST(TextPaddedToWidth, FillsUpToTheColumn)
{
    EXPECT_EQ(textPaddedToWidth("番", 4), "番  ");
    EXPECT_EQ(textPaddedToWidth("long", 2), "long");
}

} // namespace tarn
