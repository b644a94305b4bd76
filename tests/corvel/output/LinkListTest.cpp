#include "tarnmodel/corvel/CVKAST.h"
#include "tests/corvel/CaseFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace tarn {

namespace {

std::vector<TextCase> linkCases()
{
    return readCases("links.cases");
}

std::string nameOfLinkCase(const testing::TestParamInfo<TextCase>& info)
{
    return info.param.name;
}

std::string writtenForm(const CVKLink& link)
{
    constexpr std::array<const char*, 6> kForms{"Inline", "Image", "Reference", "ImageReference", "Autolink", "Wiki"};
    constexpr std::array<const char*, 4> kShapes{"", " Full", " Collapsed", " Shortcut"};
    std::string written = kForms.at(static_cast<std::size_t>(link.form));
    written += kShapes.at(static_cast<std::size_t>(link.shape));
    if (link.definition)
        written += ' ' + std::to_string(*link.definition);
    written += link.isEmbed ? " embed" : "";
    written += link.isInTableRow ? " row" : "";
    return written;
}

/// What a document says of its links, as the cases write it.
class WrittenLinks {
public:
    explicit WrittenLinks(const CVKAST& document) : text_(document.markdown())
    {
        for (const CVKLink& link : document.links())
            add(link);
        for (const CVKLinkDefinition& definition : document.linkDefinitions())
            add(definition);
    }
    std::vector<std::string> lines;

private:
    void add(const CVKLink& link)
    {
        add("link", slice(link.range));
        add("as", writtenForm(link));
        if (link.hasText)
            add("text", slice(link.text));
        add("to", slice(link.destination));
        if (link.decodedDestination != slice(link.destination))
            add("means", link.decodedDestination);
        if (link.title != CVKRange())
            add("title", slice(link.title));
    }
    void add(const CVKLinkDefinition& definition)
    {
        add("defines", slice(definition.range));
        add("label", slice(definition.label));
        add("to", slice(definition.destination));
        if (definition.title != CVKRange())
            add("title", slice(definition.title));
        add("uses", std::to_string(definition.uses));
    }
    void add(const char* key, const std::string& value) { lines.push_back(std::string(key) + ": " + value); }
    std::string slice(CVKRange range) const { return text_.substr(range.location, range.length); }

    const std::string text_;
};

std::vector<std::string> expectedLines(const TextCase& one)
{
    std::vector<std::string> lines;
    for (const auto& [key, value] : one.fields) {
        if (key != "markdown")
            lines.push_back(key + ": " + value);
    }
    return lines;
}

} // namespace

class LinkList : public testing::TestWithParam<TextCase> { };

TEST_P(LinkList, IsWhatTheTextWrites)
{
    const CVKAST document = CVKAST::fromMarkdown(GetParam().text("markdown"));
    EXPECT_THAT(WrittenLinks(document).lines, testing::ElementsAreArray(expectedLines(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(Cases, LinkList, testing::ValuesIn(linkCases()), nameOfLinkCase);

TEST(LinkLists, HaveCases)
{
    EXPECT_GT(linkCases().size(), 40U);
}

TEST(LinkLists, TellWhichOfTwoEqualLinksIsWhere)
{
    const auto links = CVKAST::fromMarkdown("\xC3\xA4 [a](u) [a](u) ![[b]]").links();
    ASSERT_EQ(links.size(), 3U);
    EXPECT_EQ(links[0].range, (CVKRange{3, 6}));
    EXPECT_EQ(links[0].text, (CVKRange{4, 1}));
    EXPECT_EQ(links[0].destination, (CVKRange{7, 1}));
    EXPECT_EQ(links[1].range, (CVKRange{10, 6}));
    EXPECT_EQ(links[1].destination, (CVKRange{14, 1}));
    EXPECT_EQ(links[2].range, (CVKRange{17, 6}));
    EXPECT_EQ(links[2].text, (CVKRange{21, 0})) << "behind the title";
}

TEST(LinkLists, ShareTheDestinationOfTheirDefinition)
{
    const CVKAST document = CVKAST::fromMarkdown("[a] ![b][a]\n\n[a]: u");
    const auto definitions = document.linkDefinitions();
    ASSERT_EQ(definitions.size(), 1U);
    EXPECT_EQ(definitions[0].range, (CVKRange{13, 6}));
    EXPECT_EQ(definitions[0].destination, (CVKRange{18, 1}));
    for (const CVKLink& link : document.links())
        EXPECT_EQ(link.destination, definitions[0].destination);
}

TEST(LinkLists, AreEmptyWhereATextIs)
{
    const CVKAST document = CVKAST::fromMarkdown("");
    EXPECT_TRUE(document.links().empty());
    EXPECT_TRUE(document.linkDefinitions().empty());
    EXPECT_TRUE(document.topLevelBlocks(1).empty());
}

} // namespace tarn
