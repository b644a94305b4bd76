#include "tools/tarn/export/ExportNames.h"

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

namespace {

/// Gives a name to a note of this title where nobody has any.
std::string givenTo(ExportNames& names, const std::string& title)
{
    return names.noteFile({}, portableNoteName(title), [](const auto&) { return false; }).native();
}

} // namespace

TEST(ExportNames, AreGivenOutOnce)
{
    ExportNames names;
    EXPECT_EQ(givenTo(names, "a"), "a.md");
    EXPECT_EQ(givenTo(names, "A"), "A 2.md");
    EXPECT_EQ(givenTo(names, "a 2"), "a 2 2.md");
    EXPECT_EQ(givenTo(names, "a"), "a 3.md");
    EXPECT_EQ(givenTo(names, "\xC3\xA9"), "\xC3\xA9.md");
    EXPECT_EQ(givenTo(names, "E\xCC\x81"), "E\xCC\x81 2.md");
    EXPECT_EQ(givenTo(names,
                  "stra\xC3\x9F"
                  "e"),
        "stra\xC3\x9F"
        "e.md");
    EXPECT_EQ(givenTo(names, "STRASSE"), "STRASSE 2.md");
    EXPECT_EQ(givenTo(names, "a?"), "a_.md");
    EXPECT_EQ(givenTo(names, "a*"), "a_ 2.md");
    EXPECT_EQ(givenTo(names, "e"), "e.md");
}

TEST(ExportNames, StayWithinTheirLengthWithACounter)
{
    ExportNames names;
    const std::string title = repeated("\xE3\x82\xAC", 100);
    EXPECT_EQ(givenTo(names, title).size(), 255U);
    EXPECT_EQ(givenTo(names, title), repeated("\xE3\x82\xAC", 83) + " 2.md");
}

TEST(ExportNames, LeaveOutWhatOthersHave)
{
    ExportNames names;
    EXPECT_EQ(names.folder("Work/Home"), "Work/Home");
    EXPECT_EQ(names.folder("work/HOME/x"), "Work/Home/x");
    EXPECT_EQ(
        names.noteFile("Work", "home", [](const auto& path) { return path == "Work/home.md"; }), "Work/home 2.md");
    EXPECT_EQ(names.folder("a.md"), "a.md");
    EXPECT_EQ(givenTo(names, "A"), "A 2.md") << "a folder has it";
}

TEST(ExportNames, KeepFoldersOfNotesApartFromThoseOfAttachments)
{
    EXPECT_EQ(portableFolder("a: b/Attachments/.c"), "a_ b/_Attachments/_c");
    EXPECT_EQ(portableFolder("attached"), "attached");
}

} // namespace tarn::test
