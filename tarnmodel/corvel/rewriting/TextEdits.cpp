#include "tarnmodel/corvel/rewriting/TextEdits.h"

#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>

namespace tarn {

namespace corvel {

namespace {

// Enough to find some edits among thousands by bisection; after that the rest stays as it was.
constexpr int kMostAttempts = 64;

/// The byte offset after the edits of a byte offset before.
std::size_t movedOffset(std::span<const CVKTextEdit> edits, std::size_t offset)
{
    std::size_t moved = offset;
    for (const CVKTextEdit& edit : edits) {
        const std::size_t end = edit.range.location + edit.range.length;
        if (offset <= edit.range.location)
            break;
        if (offset < end)
            return moved - (offset - edit.range.location)
                + std::min(offset - edit.range.location, edit.replacement.size());
        moved = moved - edit.range.length + edit.replacement.size();
    }
    return moved;
}

std::vector<CVKTextEdit> takenEdits(std::span<const CVKTextEdit> edits, const std::vector<bool>& taken)
{
    std::vector<CVKTextEdit> chosen;
    for (std::size_t i = 0; i < edits.size(); ++i) {
        if (taken[i])
            chosen.push_back(edits[i]);
    }
    return chosen;
}

} // namespace

std::string appliedEdits(std::string_view text, std::span<const CVKTextEdit> edits)
{
    std::string result;
    std::size_t at = 0;
    for (const CVKTextEdit& edit : edits) {
        if (edit.range.location < at || edit.range.location > text.size()
            || edit.range.length > text.size() - edit.range.location)
            throw NSException(NSInvalidArgumentException, "The edits overlap, are not sorted or lie outside the text.");
        result.append(text, at, edit.range.location - at);
        result += edit.replacement;
        at = edit.range.location + edit.range.length;
    }
    result.append(text, at);
    return result;
}

CVKRange movedSelection(std::string_view text, std::span<const CVKTextEdit> edits, CVKRange selection)
{
    const std::string result = appliedEdits(text, edits);
    const auto moved = [&](std::size_t units) {
        const std::size_t offset = movedOffset(edits, byteOffsetForUTF16Offset(text, units));
        return utf16Length(std::string_view(result).substr(0, offset));
    };
    const std::size_t begin = moved(selection.location);
    const std::size_t end = moved(selection.location + selection.length);
    return {begin, std::max(begin, end) - begin};
}

bool haveSameLinksAndCounts(const CVKTextSummary& a, const CVKTextSummary& b)
{
    const auto sameTitle
        = [](const CVKWikiLink& x, const CVKWikiLink& y) { return x.decodedTitle() == y.decodedTitle(); };
    return a.todoCount == b.todoCount && a.doneCount == b.doneCount && a.codeBlockCount == b.codeBlockCount
        && a.links == b.links
        && std::equal(a.wikiLinks.begin(), a.wikiLinks.end(), b.wikiLinks.begin(), b.wikiLinks.end(), sameTitle);
}

} // namespace corvel

CVKCheckedEdits CVKAST::applyEdits(std::span<const CVKTextEdit> edits, const CVKEditCheck& check) const
{
    CVKAST best = *this;
    std::vector<bool> taken(edits.size(), false);
    struct Stretch {
        std::size_t begin;
        std::size_t end;
    };
    std::vector<Stretch> open{{0, edits.size()}};
    for (int attempt = 0; attempt < corvel::kMostAttempts && !open.empty(); ++attempt) {
        const Stretch stretch = open.back();
        open.pop_back();
        if (stretch.begin == stretch.end)
            continue;
        const auto mark = [&](bool value) {
            std::fill(taken.begin() + static_cast<std::ptrdiff_t>(stretch.begin),
                taken.begin() + static_cast<std::ptrdiff_t>(stretch.end), value);
        };
        mark(true);
        CVKAST after = fromMarkdown(corvel::appliedEdits(markdown(), corvel::takenEdits(edits, taken)));
        if (check(after, taken)) {
            best = std::move(after);
            continue;
        }
        mark(false);
        if (stretch.end - stretch.begin == 1)
            continue;
        const std::size_t middle = stretch.begin + (stretch.end - stretch.begin) / 2;
        open.push_back({middle, stretch.end});
        open.push_back({stretch.begin, middle});
    }
    return {std::move(best), std::move(taken)};
}

} // namespace tarn
