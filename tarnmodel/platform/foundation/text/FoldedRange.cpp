#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/FoldingTableInternal.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>
#include <vector>

namespace tarn {

namespace {

std::size_t startOfSegmentAtOrAfter(std::string_view text, std::size_t offset)
{
    while (offset < text.size() && static_cast<signed char>(text[offset]) < 0) {
        const DecodedCodePoint decoded = decodeCodePoint(text, offset);
        if (folding::Table::startsSegment(decoded.codePoint))
            break;
        offset += decoded.length;
    }
    return offset;
}

/// The folded text so far, and where each of its segments came from.
class FoldedSegments {
public:
    void append(std::string_view text, std::size_t start, std::size_t end)
    {
        starts_.push_back({folded_.size(), start});
        const char first = text[start];
        if (end - start == 1 && static_cast<signed char>(first) >= 0)
            folded_.push_back(first >= 'A' && first <= 'Z' ? static_cast<char>(first + ('a' - 'A')) : first);
        else
            appendFolded(folded_, text.substr(start, end - start));
    }
    /// Where the needle starts in the source when the folded text ends with it and it starts with a segment.
    std::optional<std::size_t> sourceOfEnding(std::string_view needle) const
    {
        if (!std::string_view(folded_).ends_with(needle))
            return std::nullopt;
        const std::size_t start = folded_.size() - needle.size();
        // Of several segments there, the last one is not empty.
        const auto after = std::upper_bound(starts_.begin(), starts_.end(), start,
            [](std::size_t offset, const Start& entry) { return offset < entry.folded; });
        if (after == starts_.begin() || std::prev(after)->folded != start)
            return std::nullopt;
        return std::prev(after)->source;
    }

private:
    struct Start {
        std::size_t folded;
        std::size_t source;
    };
    std::string folded_;
    std::vector<Start> starts_;
};

} // namespace

// A hit begins and ends with segments, which are source characters together with what belongs to them: no part of a
// ligature or of a Hangul syllable is shown, and dropped marks are shown with their letter.
std::optional<FoldedRange> rangeOfFolded(std::string_view text, std::string_view foldedNeedle, std::size_t from)
{
    if (foldedNeedle.empty())
        return std::nullopt;
    FoldedSegments segments;
    std::size_t start = from == 0 ? 0 : startOfSegmentAtOrAfter(text, from);
    while (start < text.size()) {
        const std::size_t end = startOfSegmentAtOrAfter(text, start + decodeCodePoint(text, start).length);
        segments.append(text, start, end);
        if (const auto source = segments.sourceOfEnding(foldedNeedle))
            return FoldedRange{*source, end - *source};
        start = end;
    }
    return std::nullopt;
}

} // namespace tarn
