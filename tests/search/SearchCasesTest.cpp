// Every block of tests/cases/search.cases: text, predicate, hits, and what is highlighted.

#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/search/SearchCompiler.h"
#include "tests/search/SearchFixture.h"

#include <algorithm>
#include <functional>

namespace tarn {

namespace {

using CaseCheck = std::function<void(const SearchCase&)>;

std::string orDash(const std::string& text)
{
    return text.empty() ? "-" : text;
}

std::string canonical(const std::string& format)
{
    return NSPredicate::predicateWithFormat(format).predicateFormat();
}

} // namespace

class SearchCases : public SearchFixture {
protected:
    /// Runs `check` on every block that has one of the fields; how many there were.
    std::size_t forEachCase(const std::vector<std::string>& keys, const CaseCheck& check)
    {
        std::size_t count = 0;
        for (const SearchCase& block :
            readSearchCases("search.cases", {"let", "text", "prints", "hits", "pattern", "raises"})) {
            for (const auto& [key, value] : block.fields) {
                if (key == "let")
                    abbreviations_.add(value);
            }
            setWorld(block);
            const bool ocr = OVNoteSearchManager::allowOCRSearch();
            abbreviations_.set("$OCR", ocr ? "1 == 1" : "0 == 1");
            abbreviations_.set("$TITLED", ocr ? "1 == 0" : "0 == 1");
            const bool wanted = block.value("query")
                && std::ranges::any_of(keys, [&block](const std::string& key) { return block.value(key).has_value(); });
            if (!wanted)
                continue;
            ++count;
            const testing::ScopedTrace trace(__FILE__, __LINE__, block);
            check(block);
        }
        return count;
    }

    Abbreviations abbreviations_;
};

INSTANTIATE_TEST_SUITE_P(Stores, SearchCases, everyStore(), storeName);

TEST_P(SearchCases, CompileToTheirTexts)
{
    const std::size_t count = forEachCase({"text"}, [this](const SearchCase& block) {
        const std::string query = *block.value("query");
        const std::string expected = *block.value("text");
        const std::string text = SearchCompiler(query, OVNoteSearchManager::allowOCRSearch()).predicateText();
        const auto predicate = OVNoteSearchManager::predicateForSearchString(query);
        ASSERT_EQ(predicate.has_value(), expected != "nil");
        EXPECT_EQ(text, predicate ? abbreviations_.expanded(expected) : "");
        EXPECT_EQ(predicate ? predicate->predicateFormat() : "",
            predicate ? canonical(abbreviations_.expanded(expected)) : "");
        if (const auto printed = block.value("prints")) {
            EXPECT_EQ(predicate->predicateFormat(), *printed);
        }
    });
    EXPECT_GE(count, 400U);
}

TEST_P(SearchCases, RaiseWhereTheTextsDoNotParse)
{
    const std::size_t count = forEachCase({"raises"}, [](const SearchCase& block) {
        try {
            OVNoteSearchManager::predicateForSearchString(*block.value("query"));
            ADD_FAILURE() << "nothing raised";
        } catch (const NSException& exception) {
            EXPECT_EQ(exception.name(), NSInvalidArgumentException);
            EXPECT_THAT(exception.reason(), testing::HasSubstr(*block.value("raises")));
        }
    });
    EXPECT_GE(count, 2U);
}

TEST_P(SearchCases, FindTheirNotes)
{
    const std::size_t count = forEachCase({"hits"}, [this](const SearchCase& block) {
        EXPECT_EQ(hits(OVNoteSearchManager::predicateForSearchString(*block.value("query"))),
            namesInList(*block.value("hits")));
    });
    EXPECT_GE(count, 200U);
}

TEST_P(SearchCases, HighlightTheirPatterns)
{
    const std::size_t count = forEachCase({"pattern", "flags"}, [](const SearchCase& block) {
        const std::string query = *block.value("query");
        bool title = false;
        bool ocr = false;
        const std::string pattern = OVNoteSearchManager::likeOrPatternForSearchString(query, &title, &ocr);
        if (const auto expected = block.value("pattern")) {
            EXPECT_EQ(orDash(pattern), *expected);
        }
        const std::string flags = std::string(title ? "title" : "") + (title && ocr ? ", " : "") + (ocr ? "ocr" : "");
        if (const auto expected = block.value("flags")) {
            EXPECT_EQ(flags, *expected);
        }
        EXPECT_TRUE(OVNoteSearchManager::likeOrRegexForSearchString(query)) << pattern;
    });
    EXPECT_GE(count, 130U);
}

TEST_P(SearchCases, HandTheirTermToTheEditor)
{
    const std::size_t count = forEachCase({"term"}, [](const SearchCase& block) {
        EXPECT_EQ(orDash(OVNoteSearchManager::searchStringForNoteEditor(*block.value("query"))), *block.value("term"));
    });
    EXPECT_GE(count, 100U);
}

TEST_P(SearchCases, TellTheirSpecialTerms)
{
    const std::size_t count = forEachCase({"special", "rest"}, [](const SearchCase& block) {
        const std::string query = *block.value("query");
        if (const auto special = block.value("special")) {
            EXPECT_EQ(OVNoteSearchManager::searchStringContainsSpecialSearches(query), *special == "yes");
        }
        if (const auto rest = block.value("rest")) {
            EXPECT_EQ(OVNoteSearchManager::searchStringWithoutSpecialSearches(query), *rest);
        }
    });
    EXPECT_GE(count, 40U);
}

} // namespace tarn
