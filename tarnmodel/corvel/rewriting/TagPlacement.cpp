#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/output/TextSummary.h"
#include "tarnmodel/corvel/rewriting/TagPath.h"
#include "tarnmodel/corvel/rewriting/TagRewriting.h"
#include "tarnmodel/corvel/rewriting/TextEdits.h"
#include "tarnmodel/corvel/scanning/SourceLines.h"
#include "tarnmodel/corvel/scanning/TagNames.h"

#include <algorithm>
#include <vector>

namespace tarn::corvel {

namespace {

/// Where a new hashtag may go, best first. The first place at which it changes nothing else is taken.
class TagPlacement {
public:
    TagPlacement(const CVKAST& before, std::string_view name)
        : before_(before), document_(before.document()), text_(document_.text), name_(sanitizedTagName(name)),
          hashtag_(hashtagForName(name_)), lineEnd_(lineEndOf(text_))
    { }

    void tryTop()
    {
        const SourceRange first = lineAt(text_, startOfText(text_));
        if (isTagLine(first))
            insert(first.end, ' ' + hashtag_);
        if (const auto title = titleLine(document_))
            tryBelowTitle(*title);
        const bool isBlank = isBlankText(text_.substr(startOfText(text_)));
        insert(startOfText(text_), isBlank ? hashtag_ : hashtag_ + lineEnd_ + lineEnd_);
    }

    void tryBottom()
    {
        const auto last = lastLineWithInk();
        if (!last)
            insert(startOfText(text_), hashtag_);
        else if (isTagLine(*last))
            insert(last->end, ' ' + hashtag_);
        else
            insert(last->end, lineEnd_ + lineEnd_ + hashtag_);
    }

    /// The text with the hashtag at the best place; the text as it was when every place spoils something.
    CVKAST take() const { return after_.value_or(before_); }

private:
    void tryBelowTitle(SourceRange title)
    {
        const Block* leaf = topLevelLeafAt(title);
        if (!leaf)
            return;
        const Offset end = leaf->type == BlockType::Heading ? leaf->range.end : title.end;
        const SourceRange last = lineAround(text_, end);
        if (const auto below = startOfNextLine(text_, last)) {
            const SourceRange next = lineAt(text_, *below);
            if (isTagLine(next))
                insert(next.end, ' ' + hashtag_);
        }
        insert(last.end, lineEnd_ + hashtag_);
        insert(last.end, lineEnd_ + hashtag_ + lineEnd_);
    }

    /// The heading or plain paragraph that the line belongs to, when that stands in no list or quote.
    const Block* topLevelLeafAt(SourceRange line) const
    {
        for (const Block& block : document_.blocks) {
            const bool holdsLine = block.range.begin <= line.end && block.range.end >= line.begin;
            if (block.parent != 0 || !holdsLine)
                continue;
            const bool plain = block.type == BlockType::Paragraph && !isTable(block);
            return plain || block.type == BlockType::Heading ? &block : nullptr;
        }
        return nullptr;
    }

    /// A paragraph whose second line is a delimiter row.
    bool isTable(const Block& paragraph) const
    {
        if (paragraph.lineCount < 2)
            return false;
        const ContentLine& second = document_.lines[paragraph.firstLine + 1];
        const std::string_view row = document_.slice({second.begin, second.end});
        return row.find('-') != std::string_view::npos && row.find_first_not_of("|-: \t") == std::string_view::npos;
    }

    std::optional<SourceRange> lastLineWithInk() const
    {
        const std::size_t ink = text_.find_last_not_of(" \t\r\n");
        if (ink == std::string_view::npos || ink < startOfText(text_))
            return std::nullopt;
        return lineAround(text_, ink);
    }

    bool isTagLine(SourceRange line) const
    {
        if (!holdsOnlyHashtags(document_, line))
            return false;
        const auto hashtag = std::partition_point(document_.hashtags.begin(), document_.hashtags.end(),
            [&](const Hashtag& one) { return one.range.begin < line.begin; });
        const Block& leaf = document_.blocks[hashtag->block];
        return leaf.type == BlockType::Paragraph && leaf.parent == 0;
    }

    void insert(Offset at, const std::string& inserted)
    {
        if (after_)
            return;
        const CVKTextEdit edit{{at, 0}, inserted};
        CVKAST after = CVKAST::fromMarkdown(appliedEdits(text_, {&edit, 1}));
        if (check(after))
            after_ = std::move(after);
    }

    /// One hashtag more, all else as it was.
    bool check(const CVKAST& after) const
    {
        std::vector<std::string> expected = hashtagNames(document_);
        expected.push_back(name_);
        std::vector<std::string> found = hashtagNames(after.document());
        std::sort(expected.begin(), expected.end());
        std::sort(found.begin(), found.end());
        const CVKTextSummary& old = before_.textSummary();
        const CVKTextSummary& now = after.textSummary();
        return expected == found && old.title == now.title && old.subtitle == now.subtitle
            && haveSameLinksAndCounts(old, now);
    }

    static std::vector<std::string> hashtagNames(const CVKAST::Document& document)
    {
        std::vector<std::string> names;
        for (const Hashtag& hashtag : document.hashtags)
            names.push_back(sanitizedTagName(document.slice(hashtag.name)));
        return names;
    }

    const CVKAST before_;
    const CVKAST::Document& document_;
    const std::string_view text_;
    const std::string name_;
    const std::string hashtag_;
    const std::string lineEnd_;
    std::optional<CVKAST> after_;
};

} // namespace

CVKAST withTagAtTop(const CVKAST& document, std::string_view name)
{
    if (!TagPath(name).isUsable())
        return document;
    TagPlacement placement(document, name);
    placement.tryTop();
    placement.tryBottom();
    return placement.take();
}

CVKAST withTagAtBottom(const CVKAST& document, std::string_view name)
{
    if (!TagPath(name).isUsable())
        return document;
    TagPlacement placement(document, name);
    placement.tryBottom();
    placement.tryTop();
    return placement.take();
}

} // namespace tarn::corvel
