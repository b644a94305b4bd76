#include "tools/tarn/ExportNames.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tarn::test {

namespace {

std::string repeated(std::string_view text, int times)
{
    std::string all;
    for (int time = 0; time < times; ++time)
        all += text;
    return all;
}

} // namespace

TEST(ExportNames, AreLegalEverywhere)
{
    const std::vector<std::pair<std::string, std::string>> names{{"plain", "plain"}, {"a<b>:\"/\\|?*c", "a_b________c"},
        {"tab\there\x7F\xC2\x85", "tab_here__"}, {"dot.", "dot_"}, {"blank ", "blank_"}, {".hidden", "_hidden"},
        {"..", "__"}, {"", "Untitled"}, {"con", "_con"}, {"CON.tar.gz", "_CON.tar.gz"}, {"Lpt9.txt", "_Lpt9.txt"},
        {"com\xC2\xB9", "_com\xC2\xB9"}, {"NUL .txt", "_NUL .txt"}, {"console", "console"}, {"com10", "com10"},
        {"\xFF", "\xEF\xBF\xBD"}, {"\xC3\xA9\xE3\x82\xAC\xF0\x9F\x98\x80", "\xC3\xA9\xE3\x82\xAC\xF0\x9F\x98\x80"}};
    for (const auto& [name, portable] : names)
        EXPECT_EQ(portableFileName(name, 255), portable) << name;
}

TEST(ExportNames, AreCutBetweenCharactersBeforeTheExtension)
{
    EXPECT_EQ(portableFileName(repeated("\xE3\x82\xAC", 100) + ".jpeg", 255), repeated("\xE3\x82\xAC", 83) + ".jpeg");
    EXPECT_EQ(portableFileName(repeated("a", 300), 255), repeated("a", 255));
    EXPECT_EQ(portableFileName("a." + repeated("b", 300), 255).size(), 255U);
}

TEST(ExportNames, AreGivenOutOnce)
{
    ExportNames names;
    EXPECT_EQ(names.fileName("a.png"), "a.png");
    EXPECT_EQ(names.fileName("A.PNG"), "A (2).PNG");
    EXPECT_EQ(names.fileName("a (2).png"), "a (2) (2).png");
    EXPECT_EQ(names.fileName("a.png"), "a (3).png");
    EXPECT_EQ(names.fileName("\xC3\xA9"), "\xC3\xA9");
    EXPECT_EQ(names.fileName("E\xCC\x81"), "E\xCC\x81 (2)");
    EXPECT_EQ(names.fileName("stra\xC3\x9F"
                             "e"),
        "stra\xC3\x9F"
        "e");
    EXPECT_EQ(names.fileName("STRASSE"), "STRASSE (2)");
    EXPECT_EQ(names.fileName("a?"), "a_");
    EXPECT_EQ(names.fileName("a*"), "a_ (2)");
    EXPECT_EQ(names.fileName("e"), "e");
}

TEST(ExportNames, StayWithinTheirLengthWithACounter)
{
    ExportNames names;
    const std::string title = repeated("\xE3\x82\xAC", 100);
    EXPECT_EQ(names.noteName(title).size(), 240U);
    EXPECT_EQ(names.noteName(title), repeated("\xE3\x82\xAC", 78) + " (2)");
}

} // namespace tarn::test
