#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/corvel/CVKWikiLink.h"
#include "tests/corvel/CaseFile.h"

#include <gtest/gtest.h>

namespace tarn {

namespace {

std::vector<TextCase> rewritingCases()
{
    std::vector<TextCase> cases = readCases("corvel.cases");
    std::erase_if(cases, [](const TextCase& one) { return !one.value("operation").has_value(); });
    return cases;
}

std::string nameOfRewriting(const testing::TestParamInfo<TextCase>& info)
{
    return "Case" + info.param.name;
}

std::string rewritten(const TextCase& one)
{
    const std::string operation = one.text("operation");
    const std::string text = one.text("text");
    if (operation == "rename")
        return CVKHashtag::renameTagName(one.text("from"), one.text("to"), text).markdown();
    if (operation == "remove")
        return CVKHashtag::removeTagName(one.text("tag-name"), text).markdown();
    if (operation == "bottom")
        return CVKHashtag::addTagNameToTheBottomOfString(one.text("tag-name"), text).markdown();
    if (operation == "top")
        return CVKHashtag::addTagNameToTheTopOfString(one.text("tag-name"), text).markdown();
    if (operation == "wiki-title" || operation == "wiki-title-below-the-title") {
        const bool skipInTitle = operation != "wiki-title";
        return CVKWikiLink::updateWikiLinkWithTitle(one.text("from"), one.text("to"), skipInTitle, text).markdown();
    }
    if (operation == "link-url") {
        const CVKAST document = CVKAST::fromMarkdown(text);
        return document.applyTextOperationResults(document.updateLinksURL(one.text("from"), one.text("to"), {}))
            .markdown();
    }
    if (operation == "sanitize")
        return CVKHashtag::sanitizeTagName(text);
    if (operation == "normalize")
        return CVKHashtag::normalizeTagName(text);
    if (operation == "hashtag")
        return CVKHashtag::hashtagStringForTagName(text);
    return "no such operation: " + operation;
}

} // namespace

class RewriteText : public testing::TestWithParam<TextCase> { };

TEST_P(RewriteText, GivesTheResult)
{
    EXPECT_EQ(rewritten(GetParam()), GetParam().text("result"));
}

INSTANTIATE_TEST_SUITE_P(Corvel, RewriteText, testing::ValuesIn(rewritingCases()), nameOfRewriting);

} // namespace tarn
