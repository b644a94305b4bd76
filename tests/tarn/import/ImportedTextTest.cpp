#include "tools/tarn/import/reading/SourceText.h"
#include "tools/tarn/import/titles/TitleRules.h"

#include "tests/support/CaseName.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace tarn {

namespace {

struct Case : std::map<std::string, std::string> { };
void PrintTo(const Case&, std::ostream* stream)
{
    *stream << "a file";
}

std::string unescaped(std::string_view text)
{
    std::string result;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] != '\\' || index + 1 == text.size()) {
            result += text[index];
            continue;
        }
        const char letter = text[++index];
        result += letter == 'n' ? '\n' : letter == 'r' ? '\r' : letter;
    }
    return result;
}

std::vector<Case> readCases()
{
    std::vector<Case> cases;
    std::ifstream stream(TARN_TEST_CASES "/front-matter.cases");
    for (std::string line; std::getline(stream, line);) {
        const std::size_t colon = line.find(": ");
        if (line.empty() || line.front() == '#' || colon == std::string::npos)
            continue;
        if (line.starts_with("case: "))
            cases.emplace_back();
        cases.back()[line.substr(0, colon)] = unescaped(std::string_view(line).substr(colon + 2));
    }
    return cases;
}

struct ImportedText : SourceText {
    std::string text;
};

/// As an import makes it that leaves titles to the texts.
ImportedText importedTextOfFile(std::string_view contents)
{
    ImportedText imported{sourceTextOfFile(contents), {}};
    const TitleFacts facts = titleFactsOf(imported, "/a/Name.md", TitleMode::Text);
    imported.text = textOfNote(imported, facts, titleRuleFor(facts, TitleMode::Text, std::nullopt, false), "");
    return imported;
}

std::string textOfDate(const std::optional<NSDate>& date)
{
    return date ? iso8601String(*date) : "";
}

} // namespace

class FrontMatter : public testing::TestWithParam<Case> { };

TEST_P(FrontMatter, BecomesWhatTheCaseSays)
{
    Case expected = GetParam();
    const ImportedText imported = importedTextOfFile(expected["file"]);
    EXPECT_EQ(imported.text, expected["text"]);
    EXPECT_EQ(textOfDate(imported.creationDate), expected["created"]);
    EXPECT_EQ(textOfDate(imported.modificationDate), expected["modified"]);
}

INSTANTIATE_TEST_SUITE_P(Imports, FrontMatter, testing::ValuesIn(readCases()),
    [](const testing::TestParamInfo<Case>& info) { return nameOfCase(info.param.at("case")); });

TEST(ImportedText, HasManyCases)
{
    EXPECT_GE(readCases().size(), 35U);
}

TEST(ImportedText, TakesAnyBytesOfFrontMatterWithoutLosingTheBody)
{
    // Every cut of a rich front matter is either front matter or text, and the body survives.
    const std::string source
        = "---\ntitle: \"a\\u00e4\" # c\ntags: [a, 'b''c', \"d\"]\nx:\n  - 1\n  # n\ny: |\n  z\n---\n";
    for (std::size_t cut = 0; cut <= source.size(); ++cut) {
        const ImportedText imported = importedTextOfFile(source.substr(0, cut) + "\nthe body");
        EXPECT_NE(imported.text.find("the body"), std::string::npos) << cut;
    }
}

TEST(TextWithTags, AddsEachTagOnceAtTheBottom)
{
    EXPECT_EQ(textWithTags("# T\n\nbody\n", {"old", "OLD", "b c"}), "# T\n\nbody\n\n#old #b c#\n");
    EXPECT_EQ(textWithTags("# T\n\n#old/er\n", {"old"}), "# T\n\n#old/er\n");
    EXPECT_EQ(textWithTags("same", {}), "same");
}

} // namespace tarn
