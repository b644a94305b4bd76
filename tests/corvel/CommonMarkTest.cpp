#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/output/HtmlRenderer.h"
#include "tests/corvel/CommonMarkExamples.h"

#include <gtest/gtest.h>

namespace tarn {

namespace {

constexpr std::size_t kExampleCount = 652;

class CommonMark : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(commonMarkExamples().size(), kExampleCount)
            << "The CommonMark examples are missing: run scripts/fetch-test-data.sh " TARN_TEST_DATA
               " (needs npm and the network).";
    }
};

std::string describe(const CommonMarkExample& example, const std::string& html)
{
    return "example " + std::to_string(example.number) + " (" + example.section + ")\n--- text\n" + example.markdown
        + "--- expected\n" + example.html + "--- given\n" + html;
}

} // namespace

TEST_F(CommonMark, EveryExampleGivesTheSameBytesWithoutExtensions)
{
    std::string failing;
    for (const CommonMarkExample& example : commonMarkExamples()) {
        const CVKAST document = CVKAST::fromMarkdown(example.markdown);
        const std::string html = corvel::renderHtml(document.document(), {.wikiLinks = false, .hashtags = false});
        if (html == example.html)
            continue;
        failing += " " + std::to_string(example.number);
        ADD_FAILURE() << describe(example, html);
    }
    EXPECT_EQ(failing, "");
}

TEST_F(CommonMark, ExtensionsChangeOnlyExamplesThatHoldWikiLinks)
{
    for (const CommonMarkExample& example : commonMarkExamples()) {
        const std::string html = CVKAST::fromMarkdown(example.markdown).html();
        if (example.markdown.find("[[") == std::string::npos) {
            EXPECT_EQ(html, example.html) << describe(example, html);
        }
    }
}

} // namespace tarn
