#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/output/TextSummary.h"
#include "tarnmodel/corvel/rewriting/TagPath.h"
#include "tarnmodel/corvel/rewriting/TagRewriting.h"
#include "tarnmodel/corvel/rewriting/TextEdits.h"
#include "tarnmodel/corvel/scanning/CharacterClasses.h"
#include "tarnmodel/corvel/scanning/SourceLines.h"
#include "tarnmodel/corvel/scanning/TagNames.h"

#include <algorithm>
#include <vector>

namespace tarn::corvel {

namespace {

// Removing text can expose a fence, and with it hashtags that were code.
constexpr int kMostRemovals = 4;

/// One pass: the bytes that go with the hashtags of a tag.
class TagRemoval {
public:
    TagRemoval(const CVKAST::Document& document, const TagPath& tag) : document_(document), text_(document.text)
    {
        std::vector<SourceRange> onLine;
        SourceRange line;
        for (const Hashtag& hashtag : document.hashtags) {
            if (!tag.tailOf(sanitizedTagName(document.slice(hashtag.name))))
                continue;
            if (onLine.empty() || hashtag.range.begin >= line.end) {
                removeFromLine(line, onLine);
                onLine.clear();
                line = lineAround(text_, hashtag.range.begin);
                block_ = hashtag.block;
            }
            onLine.push_back(hashtag.range);
        }
        removeFromLine(line, onLine);
    }

    /// Sorted and disjoint.
    std::vector<CVKTextEdit> edits() const
    {
        std::vector<CVKTextEdit> edits;
        for (const SourceRange range : removed_)
            edits.push_back({{range.begin, range.length()}, joinsLineEnd(range) ? "\n" : ""});
        return edits;
    }

private:
    /// Whether a CR and an LF that are two line ends would become one.
    bool joinsLineEnd(SourceRange removed) const
    {
        return removed.begin > 0 && text_[removed.begin - 1] == '\r' && removed.end < text_.size()
            && text_[removed.end] == '\n';
    }

    void removeFromLine(SourceRange line, const std::vector<SourceRange>& hashtags)
    {
        if (hashtags.empty())
            return;
        if (isTopLevelParagraph() && isBlankBut(line, hashtags))
            removeLine(line);
        else
            removeWithinLine(hashtags);
    }

    bool isTopLevelParagraph() const
    {
        const Block& leaf = document_.blocks[block_];
        return leaf.type == BlockType::Paragraph && leaf.parent == 0;
    }

    bool isBlankBut(SourceRange line, const std::vector<SourceRange>& hashtags) const
    {
        Offset at = line.begin;
        for (const SourceRange hashtag : hashtags) {
            if (!isBlankText(document_.slice({at, hashtag.begin})))
                return false;
            at = hashtag.end;
        }
        return isBlankText(document_.slice({at, line.end}));
    }

    /// The line, and one blank line where there would be two, or one at the start or end of the text.
    void removeLine(SourceRange line)
    {
        const auto next = startOfNextLine(text_, line);
        const auto previousEnd = endOfPreviousLine(text_, line.begin);
        SourceRange removed{line.begin, next.value_or(line.end)};
        if (!next && previousEnd)
            removed.begin = *previousEnd;

        const bool blankAfter = !next || *next == text_.size() || isBlankText(document_.slice(lineAt(text_, *next)));
        if (previousEnd && isBlankLineEndingAt(*previousEnd)) {
            if (blankAfter)
                removed.begin = beginOfBlankLineBefore(removed.begin, *previousEnd, next.has_value());
        } else if (!previousEnd && next && blankAfter) {
            const SourceRange blank = lineAt(text_, *next);
            removed.end = startOfNextLine(text_, blank).value_or(blank.end);
        }
        add(removed);
    }

    bool isBlankLineEndingAt(Offset end) const
    {
        const SourceRange line = lineAround(text_, end);
        return line.begin < line.end ? isBlankText(document_.slice(line)) : !isTaken(line.begin);
    }
    bool isTaken(Offset offset) const { return !removed_.empty() && offset < removed_.back().end; }

    /// With its own line end, or, where the text's last line end went already, with the one before it.
    Offset beginOfBlankLineBefore(Offset removedBegin, Offset blankEnd, bool withOwnEnd) const
    {
        const SourceRange blank = lineAround(text_, blankEnd);
        if (withOwnEnd)
            return blank.begin;
        return endOfPreviousLine(text_, blank.begin).value_or(std::min(removedBegin, blank.begin));
    }

    /// Each with one blank before it, or after it where nothing stands before it in the line's content.
    void removeWithinLine(const std::vector<SourceRange>& hashtags)
    {
        const SourceRange content = contentLineOf(hashtags.front());
        Offset front = content.begin; // nothing is left between the start of the content and here
        for (const SourceRange hashtag : hashtags) {
            SourceRange removed = hashtag;
            if (isBlankText(document_.slice({front, hashtag.begin}))) {
                removed.begin = front;
                if (removed.end < content.end && isSpaceOrTab(text_[removed.end]))
                    ++removed.end;
                front = removed.end;
            } else if (isSpaceOrTab(text_[removed.begin - 1])) {
                --removed.begin;
            }
            add(removed);
        }
    }

    SourceRange contentLineOf(SourceRange hashtag) const
    {
        const auto after = std::partition_point(document_.lines.begin(), document_.lines.end(),
            [&](const ContentLine& line) { return line.begin <= hashtag.begin; });
        return {(after - 1)->begin, (after - 1)->end};
    }

    void add(SourceRange range)
    {
        if (!removed_.empty())
            range.begin = std::max(range.begin, removed_.back().end);
        if (range.begin >= range.end)
            return;
        if (!removed_.empty() && range.begin == removed_.back().end)
            removed_.back().end = range.end;
        else
            removed_.push_back(range);
    }

    const CVKAST::Document& document_;
    std::string_view text_;
    BlockIndex block_ = kNoBlock;
    std::vector<SourceRange> removed_;
};

} // namespace

CVKAST withoutTag(const CVKAST& document, std::string_view name)
{
    const TagPath tag(name);
    if (!tag.isUsable())
        return document;
    CVKAST result = document;
    for (int pass = 0; pass < kMostRemovals; ++pass) {
        const auto edits = TagRemoval(result.document(), tag).edits();
        if (edits.empty())
            break;
        result = CVKAST::fromMarkdown(appliedEdits(result.markdown(), edits));
    }
    return result;
}

} // namespace tarn::corvel
