#include "tarnmodel/corvel/CVKAST.h"
#include "tests/corvel/CaseFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarn {

namespace {

std::vector<TextCase> readingCases()
{
    std::vector<TextCase> cases = readCases("corvel.cases");
    std::erase_if(cases, [](const TextCase& one) { return one.value("operation").has_value(); });
    return cases;
}

std::string nameOfReading(const testing::TestParamInfo<TextCase>& info)
{
    return "Case" + info.param.name;
}

std::vector<std::string> wikiLinksOf(const CVKTextSummary& summary)
{
    std::vector<std::string> links;
    for (const CVKWikiLink& link : summary.wikiLinks)
        links.push_back(std::to_string(link.offset()) + " " + link.decodedTitle());
    return links;
}

} // namespace

class ReadText : public testing::TestWithParam<TextCase> { };

TEST_P(ReadText, GivesItsSummary)
{
    const TextCase& one = GetParam();
    const CVKAST document = CVKAST::fromMarkdown(one.text("text"));
    const CVKTextSummary& summary = document.textSummary();

    EXPECT_EQ(summary.title, one.value("title").value_or(summary.title));
    EXPECT_EQ(summary.subtitle, one.value("subtitle").value_or(summary.subtitle));
    EXPECT_THAT(summary.tags, testing::UnorderedElementsAreArray(one.values("tag")));
    EXPECT_EQ(wikiLinksOf(summary), one.values("wiki"));
    EXPECT_EQ(summary.links, one.values("link"));
    EXPECT_EQ(std::to_string(summary.todoCount) + "/" + std::to_string(summary.doneCount),
        one.value("todos").value_or("0/0"));
    EXPECT_EQ(std::to_string(summary.codeBlockCount), one.value("code-blocks").value_or("0"));
}

INSTANTIATE_TEST_SUITE_P(Corvel, ReadText, testing::ValuesIn(readingCases()), nameOfReading);

} // namespace tarn
