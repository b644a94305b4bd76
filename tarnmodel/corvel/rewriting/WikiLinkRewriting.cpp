#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKWikiLink.h"
#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/output/TextSummary.h"
#include "tarnmodel/corvel/rewriting/TextEdits.h"
#include "tarnmodel/corvel/scanning/SourceLines.h"
#include "tarnmodel/corvel/scanning/WikiLinkScanner.h"

#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>

namespace tarn {

namespace corvel {

namespace {

/// The wiki links of a text that lead to one title, and the edits that make them lead to another.
class WikiTitleRewriting {
public:
    WikiTitleRewriting(const CVKAST& before, std::string_view title, std::string_view newTitle, bool skipInTitle)
        : before_(before), newTitle_(decodedWikiText(encodedWikiTitle(trimmed(newTitle)))),
          written_(encodedWikiTitle(trimmed(newTitle)))
    {
        const CVKAST::Document& document = before.document();
        const std::string key = fold(trimmed(title));
        const auto titleLine = lineToSkip(document, skipInTitle);
        for (std::size_t i = 0; i < document.wikiLinks.size(); ++i) {
            const WikiLink& link = document.wikiLinks[i];
            if (titleLine && link.range.begin >= titleLine->begin && link.range.begin < titleLine->end)
                continue;
            const std::string_view written = document.slice(link.title);
            if (written == written_ || fold(decodedWikiText(written)) != key)
                continue;
            indexes_.push_back(i);
            edits_.push_back({{link.title.begin, link.title.length()}, written_});
        }
    }

    CVKAST apply() const
    {
        if (newTitle_.empty() || edits_.empty())
            return before_;
        return before_
            .applyEdits(
                edits_, [this](const CVKAST& after, const std::vector<bool>& taken) { return check(after, taken); })
            .document;
    }

private:
    /// The title line stays where it may not be rewritten. Whoever asks guards against cycles by looking at links
    /// at the start of the text only, so a title line further down is never rewritten.
    static std::optional<SourceRange> lineToSkip(const CVKAST::Document& document, bool skipInTitle)
    {
        const auto line = titleLine(document);
        const bool isFirst = line && line->begin == startOfText(document.text);
        return skipInTitle || !isFirst ? line : std::nullopt;
    }

    /// Only the titles that were meant to change have changed.
    bool check(const CVKAST& after, const std::vector<bool>& taken) const
    {
        std::vector<std::string> expected;
        for (const CVKWikiLink& link : before_.textSummary().wikiLinks)
            expected.push_back(link.decodedTitle());
        for (std::size_t i = 0; i < indexes_.size(); ++i) {
            if (taken[i])
                expected[indexes_[i]] = newTitle_;
        }
        const CVKTextSummary& old = before_.textSummary();
        const CVKTextSummary& now = after.textSummary();
        const auto sameTitle
            = [](const std::string& title, const CVKWikiLink& link) { return title == link.decodedTitle(); };
        return old.todoCount == now.todoCount && old.doneCount == now.doneCount
            && old.codeBlockCount == now.codeBlockCount && old.links == now.links && old.tags == now.tags
            && std::equal(expected.begin(), expected.end(), now.wikiLinks.begin(), now.wikiLinks.end(), sameTitle);
    }

    CVKAST before_;
    std::string newTitle_;
    std::string written_;
    std::vector<std::size_t> indexes_; ///< of the links that the edits belong to
    std::vector<CVKTextEdit> edits_;
};

} // namespace

} // namespace corvel

std::string CVKWikiLink::markdown(std::string_view title, const std::optional<std::string>& alias)
{
    return "[[" + corvel::encodedWikiTitle(trimmed(title)) + (alias ? "|" + *alias : "") + "]]";
}

CVKAST CVKWikiLink::updateWikiLinkWithTitle(
    std::string_view title, std::string_view newTitle, bool skipInTitle, std::string_view text)
{
    return corvel::WikiTitleRewriting(CVKAST::fromMarkdown(text), title, newTitle, skipInTitle).apply();
}

} // namespace tarn
