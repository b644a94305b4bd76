// What `tarn search` tells of words that look like terms and are none, and of names that are near.

#include "tools/tarn/listing/SearchHints.h"
#include "tests/tarn/TarnCommandTest.h"
#include "tools/tarn/listing/SpellingDistance.h"

namespace tarn::test {

namespace {

struct HintCase {
    const char* search;
    const char* kind; ///< empty where there is nothing to tell
    const char* word;
    const char* suggestion; ///< empty where there is none
};

constexpr HintCase kHintCases[]{
    {"@todos", "term", "@todos", "@todo"},
    {"apple @Taged", "term", "@Taged", "@tagged"},
    {"-@images2", "term", "@images2", "-@images"},
    {"@attach", "term", "@attach", "@attachments"},
    {"@тег", "term", "@тег", "@теги"},
    {"@Заблокировано", "term", "@Заблокировано", "@locked"},
    {"@nobody", "term", "@nobody", ""},
    {"@date(soon)", "date", "@date(soon)", "@date(2021)"},
    {"@cdate(2021-13)", "date", "@cdate(2021-13)", "@cdate(2021)"},
    {"@date(2021-02-31)", "date", "@date(2021-02-31)", "@date(2021)"},
    {"@date(", "date", "@date(", "@date(2021)"},
    {"@dates(2021)", "date", "@dates(2021)", "@date(2021)"},
    {"@last0days", "date", "@last0days", "@last7days"},
    {"@lastweek", "date", "@lastweek", "@last7days"},
    {"apple AND pear", "operator", "AND", ""},
    {"apple NOT pear", "operator", "NOT", ""},
    {"apple || pear", "operator", "||", ""},
    {"title:apple", "keyword", "title:apple", "@title apple"},
    {"-Tag:home", "keyword", "Tag:home", "-#home"},
    {"is:pinned", "keyword", "is:pinned", "@pinned"},
    {"has:image", "keyword", "has:image", "@images"},
    {"before:2020", "keyword", "before:2020", "@date(<2020)"},
    {"before:then", "keyword", "before:then", ""},
    {"folder:work", "keyword", "folder:work", ""},
    {"work*", "wildcard", "work*", "work"},
    {"-*work", "wildcard", "*work", "-work"},
    {"w*rk", "wildcard", "w*rk", ""},
    {"(apple or pear)", "parenthesis", "(apple", ""},
    {"apple or -(pear)", "parenthesis", "(pear)", ""},
    {"", "", "", ""},
    {"apple or pear OR plum and not", "", "", ""},
    {"@todo -@done @last7days @date(2021) @date(>2021-03-15) @пиннед(", "term", "@пиннед(", ""},
    {"@タグ付き @pinned! @", "", "", ""},
    {"\"AND title:x (work*\" #work* #a(b# -#c*", "", "", ""},
    {"http://x 10:30 note: f(x) **bold** * title:", "", "", ""},
};

/// Between two words as they are typed.
std::size_t numberOfSlips(std::string_view left, std::string_view right, std::size_t limit = 9)
{
    return spellingDistance(spellingOf(left), spellingOf(right), limit);
}

} // namespace

TEST(SearchHint, TellsWhatLooksLikeATermAndIsNone)
{
    for (const HintCase& row : kHintCases) {
        SCOPED_TRACE(row.search);
        const std::vector<SearchHint> hints = hintsForSearch(row.search);
        ASSERT_EQ(hints.size(), *row.kind ? 1U : 0U) << jsonOfHints(hints).dump();
        if (hints.empty())
            continue;
        EXPECT_EQ(hints.front().kind, row.kind);
        EXPECT_EQ(hints.front().word, row.word);
        EXPECT_EQ(hints.front().suggestions.empty() ? "" : hints.front().suggestions.front(), row.suggestion);
        EXPECT_FALSE(hints.front().text.empty());
    }
}

TEST(SearchHint, IsGivenOnceForAWordAndForAFewWords)
{
    EXPECT_EQ(hintsForSearch("@todos AND @todos AND").size(), 2U);
    std::string many;
    for (int number = 0; number < 10'000; ++number)
        many += "@todos" + std::string(static_cast<std::size_t>(number % 50), 'x') + " w" + std::to_string(number)
            + "* ";
    EXPECT_EQ(hintsForSearch(many).size(), 5U);
    EXPECT_LT(hintsForSearch("@" + std::string(100'000, 'x')).at(0).text.size(), 200U);
}

TEST(SearchHint, CountsSlipsOfTheKeyboard)
{
    EXPECT_EQ(numberOfSlips("", ""), 0U);
    EXPECT_EQ(numberOfSlips("Étude", "etude"), 0U);
    EXPECT_EQ(numberOfSlips("pears", "pear"), 1U);
    EXPECT_EQ(numberOfSlips("pear", "pears"), 1U);
    EXPECT_EQ(numberOfSlips("pear", "peat"), 1U);
    EXPECT_EQ(numberOfSlips("pear", "paer"), 1U) << "neighbours";
    EXPECT_EQ(numberOfSlips("kitten", "sitting"), 3U);
    EXPECT_EQ(numberOfSlips("kitten", "sitting", 2), 3U) << "more than the limit";
    EXPECT_EQ(numberOfSlips("kitten", "completely other", 2), 3U);
    EXPECT_EQ(numberOfSlips("дело", "дела"), 1U);
}

class SearchHints : public TarnCommandTest {
protected:
    SearchHints()
    {
        note("# Groceries\n\npears #home/kitchen");
        note("# Packing list\n\n#two words#");
        note("# Grocery bills\n\nthrown away");
        output({"trash", "Grocery bills"});
    }
};

TEST_F(SearchHints, StandOnStandardErrorAndInJSON)
{
    note("# Odd\n\nwrite to @todos");
    const TarnResult result = run({"search", "@todos"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.output.find("Odd"), std::string::npos) << "it is looked for all the same";
    EXPECT_EQ(
        result.errors, "tarn: \"@todos\" is no term of a search, and is looked for as a word; did you mean @todo?\n");
    const nlohmann::json document = json({"search", "@todos"});
    EXPECT_EQ(document.at("count"), 1);
    const nlohmann::json& hint = document.at("hints").at(0);
    EXPECT_EQ(hint.at("kind"), "term");
    EXPECT_EQ(hint.at("word"), "@todos");
    EXPECT_EQ(hint.at("text"), "\"@todos\" is no term of a search, and is looked for as a word; did you mean @todo?");
    EXPECT_EQ(hint.at("suggestions"), nlohmann::json::array({"@todo"}));
    EXPECT_TRUE(json({"search", "odd"}).at("hints").empty());
    EXPECT_EQ(run({"search", "--count", "@todos"}).output, "1\n");
}

TEST_F(SearchHints, NameTheNearestTitlesAndTagsWhereNothingIsFound)
{
    const std::string nothing = "tarn: nothing found; --all looks into archive and trash as well\n";
    EXPECT_EQ(run({"search", "grocreies"}).errors, nothing + "tarn: the nearest titles: Groceries\n");
    EXPECT_EQ(run({"search", "Pakcing"}).errors, nothing + "tarn: the nearest titles: Packing list\n");
    EXPECT_EQ(run({"search", "list zebra"}).errors, nothing + "tarn: the nearest titles: Packing list\n");
    EXPECT_EQ(run({"search", "#kitchn"}).errors, nothing + "tarn: the nearest tags: #home/kitchen\n");
    EXPECT_EQ(run({"search", "#wrds"}).errors, nothing + "tarn: the nearest tags: #two words#\n");
    EXPECT_EQ(run({"search", "zebra"}).errors, nothing);
    EXPECT_EQ(run({"search", "@code"}).errors, nothing);
    EXPECT_EQ(run({"search", "pears"}).errors, "");
    const nlohmann::json hints = json({"search", "grocry"}).at("hints");
    EXPECT_EQ(hints.size(), 0U) << "the one title with this word is in the trash: " << hints;
    const nlohmann::json all = json({"search", "--all", "grocry"}).at("hints");
    EXPECT_EQ(all.at(0).at("kind"), "titles");
    EXPECT_EQ(all.at(0).at("suggestions"), nlohmann::json::array({"Grocery bills"}));
}

TEST_F(SearchHints, NameTheNearestFirstAndNotMany)
{
    for (const char* title : {"Kitchen", "Kitchens", "Kitcher", "Kutchin", "Chicken"})
        note("# " + std::string(title));
    const nlohmann::json hints = json({"search", "kitchenn"}).at("hints");
    EXPECT_EQ(hints.at(0).at("suggestions").size(), 3U);
    EXPECT_EQ(hints.at(0).at("suggestions").at(2), "Kitcher") << "two slips, the others one";
}

TEST_F(SearchHints, AreTheOnesOfTheWordsInAMissingStore)
{
    TarnProcess process({"--store", (folder() / "none").string(), "--json", "search", "@todos", "grocreies"});
    const TarnResult result = process.finish();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(nlohmann::json::parse(result.output).at("hints").size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(folder() / "none"));
}

} // namespace tarn::test
