// The vocabulary, row by row and spelling by spelling: tests/cases/search-terms.cases.

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/text/Characters.h"
#include "tarnmodel/search/OVNoteSearchManager.h"
#include "tarnmodel/search/SearchCompiler.h"
#include "tests/search/SearchCases.h"
#include "tests/support/CaseName.h"

#include <gtest/gtest.h>

#include <functional>

namespace tarn {

namespace {

using Manager = OVNoteSearchManager;

struct Spelling {
    std::string text;
    std::string argument; ///< what a date term needs behind it
    std::string term;
};

class SpecialSearches : public testing::Test {
protected:
    SpecialSearches()
    {
        world_.setTimeZoneIdentifier("Europe/Berlin");
        world_.setLocaleIdentifier("en_US");
        world_.setNow(dateFromISO8601String("2021-03-15T10:00:00+01:00").value());
    }

    static std::vector<Spelling> spellingsOf(const SearchCase& row)
    {
        std::vector<std::string> texts = listOf(*row.value("also"));
        texts.insert(texts.begin(), *row.value("term"));
        const std::vector<std::string> suffixes = listOf(row.value("suffixes").value_or(""));
        std::vector<Spelling> spellings;
        for (std::size_t index = 0; index < texts.size(); ++index) {
            if (texts[index] != "none")
                spellings.push_back({texts[index], suffixes.empty() ? "" : *row.value("argument") + suffixes.at(index),
                    *row.value("term")});
        }
        return spellings;
    }

    EnvironmentOverride world_;
};

/// One row of the vocabulary.
class SpecialSearch : public SpecialSearches, public testing::WithParamInterface<SearchCase> {
protected:
    void expectOneFragment() const;
    void expectOneMeaningOfTheArgument() const;

    const SearchCase& row_ = GetParam();
    std::vector<Spelling> spellings_ = spellingsOf(row_);
};

/// One row that is no switch.
class TermOfASearch : public SpecialSearch { };

std::vector<SearchCase> rowsThatAreNoSwitches()
{
    std::vector<SearchCase> rows = readSearchCases("search-terms.cases");
    std::erase_if(rows, [](const SearchCase& row) { return row.value("switch").has_value(); });
    return rows;
}

std::string nameOfTerm(const testing::TestParamInfo<SearchCase>& info)
{
    return nameOfCase(*info.param.value("term"));
}

INSTANTIATE_TEST_SUITE_P(Rows, SpecialSearch, testing::ValuesIn(readSearchCases("search-terms.cases")), nameOfTerm);
INSTANTIATE_TEST_SUITE_P(Rows, TermOfASearch, testing::ValuesIn(rowsThatAreNoSwitches()), nameOfTerm);

std::string orNil(const std::optional<std::string>& text)
{
    return text.value_or("nil");
}

void SpecialSearch::expectOneFragment() const
{
    const std::string plain = row_.value("plain").value_or("nil");
    for (const Spelling& spelling : spellings_) {
        SCOPED_TRACE(spelling.text);
        EXPECT_EQ(orNil(Manager::predicateStringForSpecialSearch(spelling.text)), plain);
        EXPECT_EQ(orNil(Manager::predicateStringForSpecialSearch(spelling.text, false)), plain);
        EXPECT_EQ(orNil(Manager::predicateStringForSpecialSearch(spelling.text, true)),
            row_.value("negated").value_or("nil"));
    }
}

void SpecialSearch::expectOneMeaningOfTheArgument() const
{
    const std::string english = spellings_.front().text + spellings_.front().argument;
    const auto plain = Manager::predicateStringForSpecialSearch(english);
    const auto negated = Manager::predicateStringForSpecialSearch(english, true);
    ASSERT_TRUE(plain && negated) << english;
    EXPECT_NE(plain, negated);
    EXPECT_TRUE(plain->starts_with("( ") && plain->ends_with(" )")) << *plain;
    for (const Spelling& spelling : spellings_) {
        SCOPED_TRACE(spelling.text);
        EXPECT_EQ(Manager::predicateStringForSpecialSearch(spelling.text + spelling.argument), plain);
        EXPECT_EQ(Manager::predicateStringForSpecialSearch(spelling.text + spelling.argument, true), negated);
        if (!spelling.argument.empty()) {
            EXPECT_EQ(Manager::predicateStringForSpecialSearch(spelling.text), std::nullopt);
            EXPECT_EQ(Manager::predicateStringForSpecialSearch(spelling.text + spelling.argument + "x"), std::nullopt);
        }
    }
}

} // namespace

TEST_F(SpecialSearches, HaveTwentyFiveRowsInSixLanguages)
{
    const std::vector<SearchCase> rows = readSearchCases("search-terms.cases");
    ASSERT_EQ(rows.size(), 25U);
    std::size_t spellings = 0;
    for (const SearchCase& row : rows) {
        EXPECT_EQ(listOf(*row.value("also")).size(), 5U) << row.line;
        spellings += spellingsOf(row).size();
    }
    EXPECT_EQ(spellings, 25U * 6 - 5 - 4);
}

TEST_P(SpecialSearch, IsKnownInEverySpelling)
{
    for (const Spelling& spelling : spellings_) {
        SCOPED_TRACE(spelling.text);
        EXPECT_EQ(orNil(Manager::mainSpecialForString(spelling.text)), spelling.term);
        EXPECT_EQ(orNil(Manager::mainSpecialForString(spelling.text + spelling.argument)), spelling.term);
        const std::string known = row_.value("unknown") ? "nil" : spelling.text;
        EXPECT_EQ(orNil(Manager::isString(spelling.text, spelling.term)), known);
        EXPECT_EQ(orNil(Manager::isString(spelling.text + spelling.argument, spelling.term)), known);
    }
}

TEST_P(SpecialSearch, TakesMoreBehindAPrefixAlone)
{
    const bool isPrefix = *row_.value("match") == "prefix";
    for (const Spelling& spelling : spellings_) {
        SCOPED_TRACE(spelling.text);
        const auto found = Manager::mainSpecialForString(spelling.text + "~");
        EXPECT_EQ(orNil(found), isPrefix ? spelling.term : "nil");
        EXPECT_EQ(
            Manager::isString(spelling.text + "~", spelling.term).has_value(), isPrefix && !row_.value("unknown"));
    }
}

TEST_P(SpecialSearch, StandsAtTheBeginningOfAWord)
{
    for (const Spelling& spelling : spellings_) {
        for (const std::string& word : {"x" + spelling.text, "-" + spelling.text, "@" + spelling.text,
                 spelling.text.substr(1), spelling.text.substr(0, spelling.text.size() - 1)}) {
            SCOPED_TRACE(word);
            const auto found = Manager::mainSpecialForString(word);
            EXPECT_NE(orNil(found), spelling.term);
            EXPECT_EQ(Manager::isString(word, spelling.term), std::nullopt);
        }
    }
}

TEST_P(SpecialSearch, HasOnePredicateInAllLanguages)
{
    if (row_.value("plain") || row_.value("switch"))
        expectOneFragment();
    else
        expectOneMeaningOfTheArgument();
}

TEST_P(TermOfASearch, WorksUnlessItHasCapitals)
{
    for (const Spelling& spelling : spellings_) {
        const std::string word = spelling.text + spelling.argument;
        const std::string lower = lowercased(word);
        SCOPED_TRACE(word);
        const auto plain = Manager::predicateStringForSpecialSearch(lower);
        const std::string text = SearchCompiler(word, false).predicateText();
        const std::string negatedText = SearchCompiler("-" + word, false).predicateText();
        // "@ToDo" in lower case is the English word.
        EXPECT_EQ(plain.has_value(), lower == word || word == "@ToDo");
        EXPECT_EQ(text == plain.value_or(""), plain.has_value());
        EXPECT_EQ(negatedText == Manager::predicateStringForSpecialSearch(lower, true).value_or(""), plain.has_value());
        EXPECT_EQ(negatedText.starts_with("NOT "), !plain.has_value());
    }
}

TEST_F(SpecialSearches, AreComparedToTheLetter)
{
    for (const std::string_view word :
        {"@Tagged", "@TOdo", "@заблокировано", "@wikiリンク", "@wiki連結", "@", "", "tagged", "@@tagged", "x@tagged",
            "@todos", "@过去", "@date", "@cdate", "@日期(", "@date（", "@ocrx", "@Ocr", "＠tagged"})
        EXPECT_EQ(Manager::mainSpecialForString(word), std::nullopt) << word;
    // Composed, as the spelling is; the same letters decomposed are another word.
    EXPECT_EQ(orNil(Manager::mainSpecialForString("@ピン留めしました")), "@pinned");
    EXPECT_EQ(Manager::mainSpecialForString("@ヒ\u309Aン留めしました"), std::nullopt);
    EXPECT_EQ(orNil(Manager::mainSpecialForString("@lastweek")), "@last");
    EXPECT_EQ(orNil(Manager::mainSpecialForString("@pinned2")), "@pinned");
    EXPECT_EQ(orNil(Manager::mainSpecialForString("@今日")), "@today");
    EXPECT_EQ(orNil(Manager::mainSpecialForString("@今日作成されました")), "@ctoday");
}

TEST_F(SpecialSearches, AreAskedForByTheirEnglishSpelling)
{
    EXPECT_EQ(orNil(Manager::isString("@過去7日間", "@last")), "@過去");
    EXPECT_EQ(orNil(Manager::isString("@日期（2021）", "@date(")), "@日期（");
    EXPECT_EQ(orNil(Manager::isString("@ocr", "@ocr")), "@ocr");
    EXPECT_EQ(Manager::isString("@ocr2", "@ocr"), std::nullopt);
    EXPECT_EQ(Manager::isString("@過去7日間", "@過去"), std::nullopt);
    EXPECT_EQ(Manager::isString("@tagged", "@todo"), std::nullopt);
    EXPECT_EQ(Manager::isString("@tagged", "@nothing"), std::nullopt);
    EXPECT_EQ(Manager::isString("@tagged", ""), std::nullopt);
    EXPECT_EQ(Manager::isString("", ""), std::nullopt);
}

TEST_F(SpecialSearches, EndCountsOfDaysInTheirLanguage)
{
    const std::vector<std::pair<std::string, std::string>> last{{"@last", "days"}, {"@過去", "日間"}, {"@과거", "일"},
        {"@посл", "дн"}, {"@前", "天"}, {"@created", "days"}, {"", "days"}, {"@已创建", "days"}};
    for (const auto& [initial, suffix] : last)
        EXPECT_EQ(Manager::lastDaySpecialSearchEndPartWithInitialPart(initial), suffix) << initial;
    const std::vector<std::pair<std::string, std::string>> created{{"@created", "days"}, {"@作成済み", "日間"},
        {"@생성됨", "일"}, {"@создано", "дн"}, {"@已创建", "天"}, {"@已建立", "天"}, {"@前", "days"}, {"", "days"}};
    for (const auto& [initial, suffix] : created)
        EXPECT_EQ(Manager::createdSpecialSearchEndPartWithInitialPart(initial), suffix) << initial;
}

TEST_F(SpecialSearches, NameTheAttributesOfTheSearchField)
{
    EXPECT_EQ(OVSearchQuoteAttribute, "Search Quote Attribute");
    EXPECT_EQ(OVSearchTagAttribute, "Search Tag Attribute");
    EXPECT_EQ(OVSearchSpecialAttribute, "Search Special Attribute");
    EXPECT_EQ(Manager::orConjunction(), "or");
}

TEST_F(SpecialSearches, AreFoundAmongWords)
{
    for (const std::string_view text : {"a or", "OR", "a @todo", "@last7days", "  @done  ", "@date(2021)"})
        EXPECT_TRUE(Manager::searchStringContainsSpecialSearches(text)) << text;
    for (const std::string_view text :
        {"", " ", "a b", "-@todo", "@title", "@ocr", "@title foo", "@Todo", "@lastweek", "a\tor", "\"@todo\"", "oreo"})
        EXPECT_FALSE(Manager::searchStringContainsSpecialSearches(text)) << text;
    EXPECT_EQ(Manager::searchStringWithoutSpecialSearches("Apples @todo -pears or #fruit"), "Apples #fruit");
    EXPECT_EQ(Manager::searchStringWithoutSpecialSearches("  a   -  @title @ocr @lastweek @date(x) @Todo "),
        "a - @title @ocr @lastweek @date(x) @Todo");
    EXPECT_EQ(Manager::searchStringWithoutSpecialSearches(""), "");
    EXPECT_EQ(Manager::searchStringWithoutSpecialSearches("@todo -x Or"), "");
}

} // namespace tarn
