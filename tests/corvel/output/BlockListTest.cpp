#include "tarnmodel/corvel/CVKAST.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

namespace {

/// Each block as "kind|its text".
std::vector<std::string> writtenBlocks(
    std::string_view text, std::size_t limit = std::numeric_limits<std::size_t>::max())
{
    constexpr std::array<const char*, 6> kKinds{"Heading", "Paragraph", "Html", "Definitions", "Code", "Other"};
    const CVKAST document = CVKAST::fromMarkdown(text);
    std::vector<std::string> written;
    for (const CVKBlock& block : document.topLevelBlocks(limit)) {
        std::string one = kKinds.at(static_cast<std::size_t>(block.kind));
        one += block.level > 0 ? std::to_string(block.level) : "";
        one += block.isSetext ? " setext" : "";
        written.push_back(one + "|" + document.markdown().substr(block.range.location, block.range.length));
    }
    return written;
}

} // namespace

TEST(TopLevelBlocks, AreOfAllKinds)
{
    EXPECT_THAT(writtenBlocks("# a #\nb\nc\n===\n\nd\ne\n\n<div>\n</div>\n\n[x]: u\n[y]: v\n\n"
                              "```\nf\n```\n    g\n\n    h\n\n***\n> i\n\n- j\n\n#######\n\nk\n---\n"),
        testing::ElementsAre("Heading1|# a #", "Heading1 setext|b\nc\n===", "Paragraph|d\ne", "Html|<div>\n</div>",
            "Definitions|[x]: u\n[y]: v", "Code|```\nf\n```", "Code|g\n\n    h", "Other|***", "Other|> i", "Other|- j",
            "Paragraph|#######", "Heading2 setext|k\n---"));
}

TEST(TopLevelBlocks, AreNoMoreThanAskedFor)
{
    EXPECT_THAT(writtenBlocks("# a\nb\n\nc", 2), testing::ElementsAre("Heading1|# a", "Paragraph|b"));
    EXPECT_TRUE(writtenBlocks("# a", 0).empty());
    EXPECT_EQ(writtenBlocks("###### a", 5), std::vector<std::string>{"Heading6|###### a"});
}

TEST(TopLevelBlocks, OfOthersGoToTheLastLineOfAllThatTheyHold)
{
    EXPECT_THAT(writtenBlocks("- a\n\n  - b\n\n    ```\n    c\n    ```\n-\n\nd"),
        testing::ElementsAre("Other|- a\n\n  - b\n\n    ```\n    c\n    ```\n-", "Paragraph|d"));
    EXPECT_THAT(writtenBlocks("> a\nlazy\n>\n\nb"), testing::ElementsAre("Other|> a\nlazy\n>", "Paragraph|b"));
    EXPECT_THAT(writtenBlocks("1. > a\r\n   > b\r\n\r\n2. c\r\nd\r\n\r\n* e\r\n"),
        testing::ElementsAre("Other|1. > a\r\n   > b\r\n\r\n2. c\r\nd", "Other|* e"));
}

TEST(TopLevelBlocks, PartDefinitionsFromTheTextBelow)
{
    EXPECT_THAT(writtenBlocks("[a]: u\n  b  \n\n[c]: v\nd\n---"),
        testing::ElementsAre("Definitions|[a]: u", "Paragraph|b  ", "Definitions|[c]: v", "Heading2 setext|d\n---"));
}

TEST(TopLevelBlocks, BeginAfterAByteOrderMarkAndBlanks)
{
    EXPECT_THAT(writtenBlocks("\xEF\xBB\xBF\n  # a\n\n   b"), testing::ElementsAre("Heading1|# a", "Paragraph|b"));
}

TEST(TopLevelBlocks, OfATableAreParagraphs)
{
    EXPECT_THAT(writtenBlocks("a | b\n--|--\nc | d"), testing::ElementsAre("Paragraph|a | b\n--|--\nc | d"));
}

} // namespace tarn
