#include "tarnmodel/corvel/blocks/LeafContent.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"

#include <algorithm>

namespace tarn::corvel {

namespace {

bool followInSource(std::string_view text, const ContentLine& line, const ContentLine& next)
{
    const std::size_t gap = next.begin - line.end;
    return gap == 1 || (gap == 2 && text[line.end] == '\r' && text[line.end + 1] == '\n');
}

std::string_view withoutTrailingBlanks(std::string_view text)
{
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace

void LeafContent::assign(const CVKAST::Document& document, const Block& leaf)
{
    segments_.clear();
    text_ = {};
    if (leaf.lineCount == 0)
        return;
    const ContentLine* const lines = &document.lines[leaf.firstLine];
    const std::string_view text = document.text;
    bool inPlace = true;
    for (std::uint32_t i = 1; i < leaf.lineCount && inPlace; ++i)
        inPlace = followInSource(text, lines[i - 1], lines[i]);
    if (inPlace) {
        segments_.push_back({0, lines[0].begin});
        text_ = withoutTrailingBlanks(text.substr(lines[0].begin, lines[leaf.lineCount - 1].end - lines[0].begin));
        return;
    }
    joined_.clear();
    for (std::uint32_t i = 0; i < leaf.lineCount; ++i) {
        if (i > 0)
            joined_ += '\n';
        segments_.push_back({static_cast<Offset>(joined_.size()), lines[i].begin});
        joined_.append(text, lines[i].begin, lines[i].end - lines[i].begin);
    }
    text_ = withoutTrailingBlanks(joined_);
}

Offset LeafContent::sourceOffset(std::size_t offset) const noexcept
{
    if (segments_.size() == 1)
        return static_cast<Offset>(segments_[0].source + offset);
    const auto after = std::upper_bound(segments_.begin(), segments_.end(), offset,
        [](std::size_t wanted, const Segment& segment) { return wanted < segment.content; });
    const Segment& segment = *(after - 1);
    return static_cast<Offset>(segment.source + (offset - segment.content));
}

std::size_t LeafContent::contentOffset(Offset source) const noexcept
{
    const auto after = std::upper_bound(segments_.begin(), segments_.end(), source,
        [](Offset wanted, const Segment& segment) { return wanted < segment.source; });
    const Segment& segment = *(after - 1);
    return segment.content + (source - segment.source);
}

SourceRange LeafContent::sourceRange(std::size_t begin, std::size_t end) const noexcept
{
    const Offset first = sourceOffset(begin);
    return {first, end == begin ? first : sourceOffset(end - 1) + 1};
}

} // namespace tarn::corvel
