#include "tarnmodel/platform/foundation/text/UTF.h"

#include <gtest/gtest.h>
#include <unicode/unistr.h>

#include <random>
#include <vector>

using namespace tarn;
using namespace std::string_literals;

namespace {

struct ReplacementCase {
    std::string bytes;
    std::string expected;
};

const std::vector<ReplacementCase> kReplacements = {
    {"", ""},
    {"plain", "plain"},
    {"é日😀", "é日😀"},
    {"\0a"s, "\0a"s},
    {"\x80", "\uFFFD"},
    {"a\xFFz", "a\uFFFDz"},
    {"\xC0\x80", "\uFFFD\uFFFD"}, // overlong
    {"\xE0\x80\x80", "\uFFFD\uFFFD\uFFFD"},
    {"\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},           // a surrogate
    {"\xF4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"}, // beyond U+10FFFF
    {"\xF5\x80", "\uFFFD\uFFFD"},
    {"\xE2\x82", "\uFFFD"}, // one maximal part
    {"\xE2\x82z", "\uFFFDz"},
    {"\xF0\x9F\x98", "\uFFFD"},
    {"\xF0\x9F\x98\xE2\x82\xAC", "\uFFFD\u20AC"},
    {"long ascii run \xC3 then more", "long ascii run \uFFFD then more"},
};

std::string randomBytes(std::mt19937& random)
{
    static constexpr std::string_view kBytes = "a \x80\xBF\x9F\xA0\xC2\xC3\xE0\xE2\xED\xEF\xF0\xF4\xF5\xFF";
    std::string bytes;
    for (std::size_t count = random() % 12; count > 0; --count)
        bytes.push_back(kBytes[random() % kBytes.size()]);
    return bytes;
}

TEST(UTF, ReplacesEachMaximalIllFormedPart)
{
    for (const auto& [bytes, expected] : kReplacements) {
        EXPECT_EQ(validUTF8(bytes), expected);
        EXPECT_EQ(isValidUTF8(bytes), bytes == expected);
    }
}

TEST(UTF, AgreesWithICUOnIllFormedBytes)
{
    std::mt19937 random(4711);
    for (int round = 0; round < 20'000; ++round) {
        const std::string bytes = randomBytes(random);
        std::string expected;
        icu::UnicodeString::fromUTF8(bytes).toUTF8String(expected);
        ASSERT_EQ(validUTF8(bytes), expected) << "round " << round << " of seed 4711";
        ASSERT_EQ(utf8FromUTF16(utf16FromUTF8(bytes)), expected);
        ASSERT_EQ(utf16Length(bytes), utf16FromUTF8(bytes).size());
    }
}

TEST(UTF, ReadsBackEveryCodePoint)
{
    for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
        if (codePoint >= 0xD800 && codePoint <= 0xDFFF)
            continue;
        std::string text;
        appendCodePoint(text, codePoint);
        const DecodedCodePoint decoded = decodeCodePoint(text, 0);
        ASSERT_EQ(decoded.codePoint, codePoint);
        ASSERT_EQ(decoded.length, text.size());
        ASSERT_TRUE(decoded.valid);
    }
}

TEST(UTF, WritesNoSurrogatesAndNothingBeyondUnicode)
{
    for (const char32_t codePoint : {char32_t(0xD800), char32_t(0xDFFF), char32_t(0x110000), char32_t(0xFFFFFFFF)}) {
        std::string text;
        appendCodePoint(text, codePoint);
        EXPECT_EQ(text, "\uFFFD");
    }
}

TEST(UTF, GivesNothingAtTheEndOfTheText)
{
    EXPECT_EQ(decodeCodePoint("ab", 2).length, 0U);
    EXPECT_EQ(decodeCodePoint("", 0).length, 0U);
}

TEST(UTF, MapsUTF16OffsetsToBytes)
{
    const std::string text = "aé日😀z"; // bytes 0 1 3 6 10 11, units 0 1 2 3 5 6
    const std::vector<std::size_t> expected = {0, 1, 3, 6, 6, 10, 11, 11};
    for (std::size_t offset = 0; offset < expected.size(); ++offset)
        EXPECT_EQ(byteOffsetForUTF16Offset(text, offset), expected[offset]) << offset;
    EXPECT_EQ(utf16Length(text), 6U);
}

TEST(UTF, MapsUTF16OffsetsInsideLongAsciiRuns)
{
    const std::string text = "0123456789abcdefé0123456789";
    EXPECT_EQ(byteOffsetForUTF16Offset(text, 9), 9U);
    EXPECT_EQ(byteOffsetForUTF16Offset(text, 17), 18U);
    EXPECT_EQ(byteOffsetForUTF16Offset(text, 20), 21U);
}

TEST(UTF, ReplacesLoneSurrogates)
{
    EXPECT_EQ(utf8FromUTF16(u"a\xD83D"), "a\uFFFD");
    EXPECT_EQ(utf8FromUTF16(u"\xDE00z"), "\uFFFDz");
    EXPECT_EQ(utf8FromUTF16(u"\xD83D\xD83D\xDE00"), "\uFFFD😀");
}

TEST(UTF, KnowsWhiteSpace)
{
    std::vector<char32_t> found;
    for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
        if (isWhiteSpace(codePoint))
            found.push_back(codePoint);
    }
    const std::vector<char32_t> expected = {0x09, 0x0A, 0x0B, 0x0C, 0x0D, 0x20, 0x85, 0xA0, 0x1680, 0x2000, 0x2001,
        0x2002, 0x2003, 0x2004, 0x2005, 0x2006, 0x2007, 0x2008, 0x2009, 0x200A, 0x2028, 0x2029, 0x202F, 0x205F, 0x3000};
    EXPECT_EQ(found, expected);
}

TEST(UTF, TrimsWhiteSpaceAtBothEnds)
{
    const std::vector<std::pair<std::string_view, std::string_view>> cases = {
        {"", ""},
        {" \t\n", ""},
        {"a", "a"},
        {"  a b  ", "a b"},
        {"\u3000\u00A0x\u2028\u0085", "x"},
        {"\u200Bx\u200B", "\u200Bx\u200B"},
        {"é ", "é"},
        {" \xA0", "\xA0"}, // a stray byte is no white space
        {"x\x80\x80\x80\x80 ", "x\x80\x80\x80\x80"},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(trimmed(text), expected);
}

} // namespace
