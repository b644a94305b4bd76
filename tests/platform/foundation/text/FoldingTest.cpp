#include "tarnmodel/platform/foundation/text/FoldingInternal.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <gtest/gtest.h>

#include <vector>

using namespace tarn;

namespace {

struct TextPair {
    std::string_view text;
    std::string_view expected;
};

constexpr TextPair kFolds[] = {
    {"", ""},
    {"Plain ASCII, 123 [~]", "plain ascii, 123 [~]"},
    {"Ärger", "arger"},
    {"Straße", "strasse"},
    {"STRASSE", "strasse"},
    {"\u1E9E", "ss"},
    {"ﬁn", "fin"},
    {"İstanbul", "istanbul"},
    {"ısı", "ısı"},                   // the dotless i is a letter of its own
    {"Việt Đổi mới", "viet đoi moi"}, // so is đ
    {"Øl łæ", "øl łæ"},
    {"Ёлка Йод", "елка иод"},
    {"Σίσυφος", "σισυφοσ"},
    {"ΐ", "ι"},
    {"\u1FF7", "ω"}, // omega with iota subscript
    {"A\u0345", "a"},
    {"e\u0301\u0323", "e"},
    {"バ", "バ"},
    {"パ", "パ"},
    {"カ", "カ"},
    {"か\u3099", "が"},
    {"ﾊﾞ", "ﾊﾞ"}, // half width stays
    {"각", "각"},
    {"\u1100\u1161\u11A8", "각"},
    {"Ⅳ ①", "ⅳ ①"},
    {"a\u200Db", "a\u200Db"}, // the joiner shapes some scripts, it stays
    {"a\u200Cb", "ab"},
    {"Donau\u00ADdampf", "donaudampf"},
    {"\uFEFFa", "a"},
    {"か\u00AD\u3099", "が"},
    {"か\u0345", "かι"},
    {"か\u0345\u20DD", "かι"}, // the iota is the base of what follows
    {"\u0345", "ι"},
    {"\u0301", "\u0301"},                 // no base, nothing to drop it for
    {"か\u0301\u0323", "か\u0323\u0301"}, // canonical order
    {"\u212B \u2126 \u212A", "a ω k"},
    {"\u2260", "="},
    {"\u03F4", "θ"},
    {"\u023A\u0301", "\u2C65\u0301"},   // folds to a base that keeps marks
    {"שָׁלוֹם", "ש\u05B8\u05C1לו\u05B9ם"}, // vowels stay, in canonical order
    {"กี่", "กี่"},
    {"bad\xFF\xC3", "bad\uFFFD\uFFFD"},
};

TEST(Folding, GivesTheKeyOfATable)
{
    for (const auto& [text, expected] : kFolds) {
        EXPECT_EQ(fold(text), expected) << text;
        EXPECT_EQ(foldByReference(text), expected) << text;
    }
}

TEST(Folding, AppendsToWhatIsThere)
{
    std::string result = "か";
    appendFolded(result, "\u3099B"); // does not join what was there before
    EXPECT_EQ(result, "か\u3099b");
}

TEST(Folding, OfCaseAloneKeepsMarks)
{
    for (const auto& [text, expected] :
        std::vector<TextPair>{{"ÄRGER", "ärger"}, {"A\u0308", "ä"}, {"Straße", "strasse"},
            {"Donau\u00ADDampf", "donau\u00ADdampf"}, {"バ", "バ"}, {"İ", "i\u0307"}, {"ABC", "abc"}, {"", ""}})
        EXPECT_EQ(foldCase(text), expected) << text;
}

TEST(Folding, OfDiacriticsAloneKeepsCase)
{
    for (const auto& [text, expected] :
        std::vector<TextPair>{{"ÄRGER", "ARGER"}, {"A\u0308", "A"}, {"Straße", "Straße"},
            {"Donau\u00ADDampf", "DonauDampf"}, {"バ", "バ"}, {"İ", "I"}, {"ABC", "ABC"}, {"", ""}})
        EXPECT_EQ(foldDiacritics(text), expected) << text;
}

TEST(Folding, FollowsTheOptions)
{
    EXPECT_EQ(folded("Äb", {}), "Äb");
    EXPECT_EQ(folded("Äb", {.caseInsensitive = true}), "äb");
    EXPECT_EQ(folded("Äb", {.diacriticInsensitive = true}), "Ab");
    EXPECT_EQ(folded("Äb", {.caseInsensitive = true, .diacriticInsensitive = true}), "ab");
}

TEST(Folding, FindsAFoldedNeedle)
{
    EXPECT_TRUE(foldedContains("Die STRAßE", fold("strasse")));
    EXPECT_TRUE(foldedContains("ﬁn", "f")); // a part of the folded text
    EXPECT_TRUE(foldedContains("x", "x"));
    EXPECT_FALSE(foldedContains("が", "か"));
    EXPECT_FALSE(foldedContains("각", fold("가")));
    EXPECT_FALSE(foldedContains("", "x"));
    EXPECT_FALSE(foldedContains("abc", ""));
    EXPECT_FALSE(foldedContains("", ""));
    EXPECT_FALSE(foldedContains("ab", "abc"));
}

TEST(Folding, HasAVersionThatIsPinned)
{
    // Rules 1 with Unicode 15.0. Another value means that stores fold their texts again.
    EXPECT_EQ(foldingVersion(), 0x10F00);
}

struct FindCase {
    std::string_view needle;
    std::string_view text;
    std::optional<FoldedRange> expected;
};

const FindCase kFinds[] = {
    {"STRASSE", "die Straße", FoldedRange{4, 7}},
    {"ss", "Straße", FoldedRange{4, 2}},
    {"s", "die Straße", FoldedRange{4, 1}},
    {"CAFÉ", "cafe\u0301 x", FoldedRange{0, 6}},
    {"i", "İstanbul", FoldedRange{0, 2}},
    {"i", "ısı", std::nullopt},
    {"가", "각", std::nullopt},
    {"か", "か\u3099", std::nullopt},
    {"が", "か\u3099", FoldedRange{0, 6}},
    {"f", "ﬁn", std::nullopt},
    {"fi", "ﬁn", FoldedRange{0, 3}},
    {"и", "й", FoldedRange{0, 2}},
    {"ก", "กี่ก", FoldedRange{9, 3}},
    {"a", "\u00ADa\u00ADb", FoldedRange{2, 3}},
    {"b", "a\xFF\xFF b", FoldedRange{4, 1}},
    {"aab", "aaab", FoldedRange{1, 3}},
    {"", "abc", std::nullopt},
    {"x", "", std::nullopt},
    {"xyz", "xy", std::nullopt},
};

TEST(FoldedRange, ShowsWholeSourceCharacters)
{
    for (const FindCase& row : kFinds)
        EXPECT_EQ(rangeOfFolded(row.text, fold(row.needle)), row.expected) << row.needle << " in " << row.text;
}

TEST(FoldedRange, GoesOnFromAnOffset)
{
    const std::string_view text = "Äpfel, apfel, ÄPFEL";
    std::vector<FoldedRange> found;
    for (auto range = rangeOfFolded(text, "apfel"); range;
         range = rangeOfFolded(text, "apfel", range->location + range->length))
        found.push_back(*range);
    EXPECT_EQ(found, (std::vector<FoldedRange>{{0, 6}, {8, 5}, {15, 6}}));
    EXPECT_EQ(rangeOfFolded(text, "apfel", 1000), std::nullopt);
}

TEST(FoldedRange, DoesNotStartWithinACharacter)
{
    EXPECT_EQ(rangeOfFolded("か\u3099か", "か", 3), (FoldedRange{6, 3}));
}

TEST(FoldedRange, OfAHitIsWhatFoldsToTheNeedle)
{
    const std::string text = "Größe und Straße: ﬁn, CAFE\u0301, が각 İ ﬃ Ελλάδα";
    for (std::size_t start = 0; start < text.size(); ++start) {
        for (std::size_t length = 1; start + length <= text.size(); ++length) {
            const std::string part = text.substr(start, length);
            if (!isValidUTF8(part))
                continue;
            const std::string needle = fold(part);
            if (const auto range = rangeOfFolded(text, needle)) {
                EXPECT_EQ(fold(text.substr(range->location, range->length)), needle);
            }
        }
    }
}

} // namespace
