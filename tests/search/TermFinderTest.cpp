#include "tarnmodel/search/TermFinder.h"

#include "tarnmodel/platform/predicate/StringTest.h"
#include "tarnmodel/search/OVNoteSearchManager.h"

#include <gtest/gtest.h>
#include <random>

namespace tarn {
namespace {

/// The text with all places in angle brackets.
std::string marked(std::string_view text, std::string_view query)
{
    const TermFinder finder(highlightTermsOfSearchString(query).terms);
    std::string result;
    std::size_t behind = 0;
    for (const FoldedRange& place : finder.places(text)) {
        result += std::string(text.substr(behind, place.location - behind)) + "<"
            + std::string(text.substr(place.location, place.length)) + ">";
        behind = place.location + place.length;
    }
    return result + std::string(text.substr(behind));
}

struct Marked {
    const char* query;
    const char* text;
};

TEST(TermFinder, FindsEachKindOfTermAsTheSearchLooksForIt)
{
    const std::vector<Marked> cases{
        {"pie", "a <pie>r, <Pie> and <píe>s"},
        {"\"pie\"", "a pier, <Pie> and píes, magpie _pie <pie>-<pie>"},
        {"\"pie\"", "pie\xCC\x81s p\xC2\xADier <p\xC2\xADie>"},
        {"\"big red\"", "<Big Red>dish big  red"},
        {"#fruit", "<#fruit> <#Frúit/pie>, #fruits (<#fruit>) a#fruit #fruit-x <#fruit>. <#fruit>.x"},
        {"#fruit/pie", "#fruit <#fruit/pie> <#fruit/pie/x> #fruit/pies"},
        {"#two words#", "<#two words#> #two words"},
        {"#one#", "<#one> <#one#> #ones"},
        {"#*/ideas", "<#work/ideas> #ideas <#a/ideas2/x> a/ideas"},
        {"!#work", "<#work> <#homework> work #wor"},
        {"-pie -#fruit -\"big red\" @todo or", "pie #fruit big red todo or"},
        {"", "anything"},
    };
    for (const Marked& one : cases) {
        std::string text = one.text;
        std::erase(text, '<');
        std::erase(text, '>');
        EXPECT_EQ(marked(text, one.query), one.text) << one.query;
    }
}

TEST(TermFinder, FirstPlaceIsTheFirstOfAll)
{
    const TermFinder finder(highlightTermsOfSearchString("\"pie\" apple apples").terms);
    EXPECT_EQ(finder.firstPlace("pier apples pie"), (FoldedRange{5, 6}));
    EXPECT_EQ(finder.firstPlace("pier apples pie", 6), (FoldedRange{12, 3}));
    EXPECT_EQ(finder.firstPlace("pier"), std::nullopt);
}

TEST(TermFinder, FindsAWholeWordExactlyWhereTheSearchDoes)
{
    std::mt19937 random(20261122);
    const std::vector<std::string> parts{
        "pie", "PIE", "r", " ", "-", "_", "\xC2\xAD", "\xCC\x81", "ß", "s", "1", "\xE2\x80\x8D", "か", "\n", "é", "ﬁ"};
    const StringTest test(ComparisonOperator::Matches, {.caseInsensitive = true, .diacriticInsensitive = true},
        R"((?mis).*?(?:^|[^\w])pie(?:[^\w]|$).*)");
    const TermFinder finder(highlightTermsOfSearchString("\"pie\"").terms);
    int found = 0;
    for (int i = 0; i < 20'000; ++i) {
        std::string text;
        for (auto count = random() % 8; count > 0; --count)
            text += parts[random() % parts.size()];
        ASSERT_EQ(finder.firstPlace(text).has_value(), test.matches(text)) << i << ": " << text;
        found += test.matches(text) ? 1 : 0;
    }
    EXPECT_GT(found, 1000);
}

} // namespace
} // namespace tarn
