#include "tarnmodel/platform/foundation/text/Characters.h"

#include <gtest/gtest.h>

namespace tarn {

TEST(Characters, KnowWhatIsNotSeen)
{
    for (const char32_t codePoint :
        {U'\0', U'\t', U'\n', U'\x7F', U'\u0085', U'\u00AD', U'\u200B', U'\u200D', U'\u200E', U'\uFEFF', U'\U000E0001'})
        EXPECT_TRUE(isControlOrFormat(codePoint)) << static_cast<unsigned>(codePoint);
    for (const char32_t codePoint : {U' ', U'a', U'\u00A0', U'\u2028', U'\u0301', U'\U0001F600'})
        EXPECT_FALSE(isControlOrFormat(codePoint)) << static_cast<unsigned>(codePoint);
}

TEST(Characters, KnowBlanks)
{
    for (const char32_t codePoint : {U' ', U'\t', U'\u00A0', U'\u2003', U'\u3000'})
        EXPECT_TRUE(isBlank(codePoint)) << static_cast<unsigned>(codePoint);
    for (const char32_t codePoint : {U'\n', U'\r', U'\v', U'\u0085', U'\u2028', U'\u200B', U'a'})
        EXPECT_FALSE(isBlank(codePoint)) << static_cast<unsigned>(codePoint);
}

TEST(Characters, ReadDigitsOfEveryScript)
{
    EXPECT_EQ(decimalDigitValue(U'7'), 7);
    EXPECT_EQ(decimalDigitValue(U'７'), 7);
    EXPECT_EQ(decimalDigitValue(U'٧'), 7);
    EXPECT_EQ(decimalDigitValue(U'𝟟'), 7);
    for (const char32_t codePoint : {U'a', U'七', U'²', U'Ⅶ', U'½'})
        EXPECT_EQ(decimalDigitValue(codePoint), std::nullopt) << static_cast<unsigned>(codePoint);
}

TEST(Characters, HaveALowerCaseOfNoLanguage)
{
    EXPECT_EQ(lowercased("Apple @TAGGED 12"), "apple @tagged 12");
    EXPECT_EQ(lowercased("ÄÖÜ ẞ Ж"), "äöü ß ж");
    EXPECT_EQ(lowercased("I"), "i");
    EXPECT_EQ(lowercased("İ"), "i\u0307");
    EXPECT_EQ(lowercased("ΟΔΟΣ"), "οδος");
    EXPECT_EQ(lowercased("日本😀"), "日本😀");
    EXPECT_EQ(lowercased("A\xFF"), "a\uFFFD");
    EXPECT_EQ(lowercased(""), "");
}

} // namespace tarn
