// Every block of tests/cases/search.cases: text, predicate, hits, and what is highlighted.

#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/search/SearchCompiler.h"
#include "tests/search/SearchFixture.h"
#include "tests/support/CaseName.h"

#include <algorithm>
#include <map>
#include <memory>

namespace tarn {

namespace {

std::string orDash(const std::string& text)
{
    return text.empty() ? "-" : text;
}

std::string canonical(const std::string& format)
{
    return NSPredicate::predicateWithFormat(format).predicateFormat();
}

/// One store of each kind for all blocks: they only read.
class SearchString : public testing::TestWithParam<const SearchStringCase*>, protected StillWorld {
protected:
    static void TearDownTestSuite()
    {
        for (auto& [type, library] : libraries_)
            EXPECT_THAT(library->problems(), testing::IsEmpty());
        libraries_.clear();
    }
    void SetUp() override
    {
        world_.setTimeZoneIdentifier(GetParam()->zone);
        world_.setLocaleIdentifier(GetParam()->locale);
        world_.setNow(dateFromISO8601String(GetParam()->now).value());
        OVNoteSearchManager::setAllowOCRSearch(GetParam()->ocr);
        abbreviations_.set("$OCR", GetParam()->ocr ? "1 == 1" : "0 == 1");
        abbreviations_.set("$TITLED", GetParam()->ocr ? "1 == 0" : "0 == 1");
    }
    void TearDown() override
    {
        OVNoteSearchManager::setAllowOCRSearch(false);
        EXPECT_THAT(takeLog(), testing::IsEmpty()) << "unexpected log messages";
    }

    std::string query() const { return GetParam()->query(); }
    static std::optional<std::string> expected(std::string_view key) { return GetParam()->block->value(key); }
    /// Made when it is first asked for.
    static SearchLibrary& library(StoreType type)
    {
        std::unique_ptr<SearchLibrary>& library = libraries_[type];
        if (!library)
            library = std::make_unique<SearchLibrary>(type);
        return *library;
    }

    void expectText(const std::string& wanted) const
    {
        const std::string text = SearchCompiler(query(), OVNoteSearchManager::allowOCRSearch()).predicateText();
        const auto predicate = OVNoteSearchManager::predicateForSearchString(query());
        ASSERT_EQ(predicate.has_value(), wanted != "nil");
        EXPECT_EQ(text, predicate ? abbreviations_.expanded(wanted) : "");
        EXPECT_EQ(
            predicate ? predicate->predicateFormat() : "", predicate ? canonical(abbreviations_.expanded(wanted)) : "");
    }
    void expectException(const std::string& part) const
    {
        try {
            OVNoteSearchManager::predicateForSearchString(query());
            ADD_FAILURE() << "nothing raised";
        } catch (const NSException& exception) {
            EXPECT_EQ(exception.name(), NSInvalidArgumentException);
            EXPECT_THAT(exception.reason(), testing::HasSubstr(part));
        }
    }
    void expectHits(const std::string& list) const
    {
        const auto predicate = OVNoteSearchManager::predicateForSearchString(query());
        for (const StoreType type : {StoreType::SQLite, StoreType::InMemory}) {
            SearchLibrary& notes = library(type);
            EXPECT_EQ(notes.hits(predicate), notes.namesInList(list)) << (type == StoreType::SQLite ? "SQLite" : "");
        }
    }
    void expectHighlighting() const
    {
        bool title = false;
        bool ocr = false;
        const std::string pattern = OVNoteSearchManager::likeOrPatternForSearchString(query(), &title, &ocr);
        if (const auto wanted = expected("pattern")) {
            EXPECT_EQ(orDash(pattern), *wanted);
        }
        if (const auto wanted = expected("flags")) {
            EXPECT_EQ(std::string(title ? "title" : "") + (title && ocr ? ", " : "") + (ocr ? "ocr" : ""), *wanted);
        }
        EXPECT_TRUE(OVNoteSearchManager::likeOrRegexForSearchString(query())) << pattern;
    }

    Abbreviations abbreviations_ = Abbreviations::ofSearchStrings();

private:
    inline static std::map<StoreType, std::unique_ptr<SearchLibrary>> libraries_;
};

std::vector<const SearchStringCase*> allCases()
{
    std::vector<const SearchStringCase*> cases;
    for (const SearchStringCase& one : searchStringCases())
        cases.push_back(&one);
    return cases;
}

} // namespace

TEST_P(SearchString, MeansWhatItsBlockSays)
{
    const testing::ScopedTrace trace(__FILE__, __LINE__, *GetParam()->block);
    if (const auto text = expected("text"))
        expectText(*text);
    if (const auto printed = expected("prints")) {
        EXPECT_EQ(OVNoteSearchManager::predicateForSearchString(query()).value().predicateFormat(), *printed);
    }
    if (const auto reason = expected("raises"))
        expectException(*reason);
    if (const auto list = expected("hits"))
        expectHits(*list);
    if (expected("pattern") || expected("flags"))
        expectHighlighting();
    if (const auto term = expected("term")) {
        EXPECT_EQ(orDash(OVNoteSearchManager::searchStringForNoteEditor(query())), *term);
    }
    if (const auto special = expected("special")) {
        EXPECT_EQ(OVNoteSearchManager::searchStringContainsSpecialSearches(query()), *special == "yes");
    }
    if (const auto rest = expected("rest")) {
        EXPECT_EQ(OVNoteSearchManager::searchStringWithoutSpecialSearches(query()), *rest);
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, SearchString, testing::ValuesIn(allCases()),
    [](const testing::TestParamInfo<const SearchStringCase*>& info) { return nameOfCase(info.param->name()); });

TEST(SearchStrings, AreManyAndSayWhatIsKnown)
{
    std::map<std::string, int> counts;
    for (const SearchStringCase& one : searchStringCases()) {
        EXPECT_GT(one.block->fields.size(), 2U) << *one.block << " expects nothing";
        for (const auto& [key, value] : one.block->fields)
            ++counts[key];
    }
    const std::map<std::string, int> least{{"case", 450}, {"query", 450}, {"text", 400}, {"prints", 10}, {"raises", 2},
        {"hits", 200}, {"pattern", 130}, {"flags", 10}, {"term", 100}, {"special", 30}, {"rest", 30}};
    for (const auto& [key, count] : counts)
        EXPECT_TRUE(least.contains(key)) << key << " is no field";
    for (const auto& [key, count] : least)
        EXPECT_GE(counts[key], count) << key;
}

} // namespace tarn
