#include "tools/tarn/MatchingLine.h"

#include "platform/foundation/Folding.h"
#include "platform/foundation/UTF.h"
#include "tools/tarn/DisplayText.h"

#include <algorithm>

namespace tarn {

namespace {

constexpr std::size_t kColumnsBefore = 30;
constexpr std::size_t kBytesLookedAt = 4096; ///< of a line, on either side of the hit

std::optional<FoldedRange> firstHit(std::string_view text, std::span<const std::string> foldedWords)
{
    std::optional<FoldedRange> first;
    for (const std::string& word : foldedWords) {
        const auto hit = rangeOfFolded(text, word);
        if (hit && (!first || hit->location < first->location))
            first = hit;
    }
    return first;
}

/// The last characters of a text that fit, "…" in front when something was cut.
std::string endFittedToWidth(const std::string& text, std::size_t width)
{
    if (displayWidth(text) <= width)
        return text;
    std::size_t offset = 0;
    while (offset < text.size() && displayWidth(std::string_view(text).substr(offset)) >= width)
        offset += decodeCodePoint(text, offset).length;
    return "…" + text.substr(offset);
}

/// The line in three parts, the middle one being the hit.
struct CutLine {
    std::string before;
    std::string match;
    std::string after;
};

CutLine lineAround(std::string_view text, const FoldedRange& hit, std::size_t width)
{
    const std::size_t hitEnd = hit.location + hit.length;
    std::size_t begin = hit.location == 0 ? 0 : text.rfind('\n', hit.location - 1) + 1; // npos + 1 is 0
    const std::size_t end = std::min({text.find('\n', hitEnd), text.size(), hitEnd + kBytesLookedAt});
    begin = std::max(begin, hit.location - std::min(hit.location, kBytesLookedAt));

    CutLine line;
    const std::string_view before = text.substr(begin, hit.location - begin);
    line.before = displayText(before.substr(std::min(before.find_first_not_of(" \t"), before.size())));
    line.match = textFittedToWidth(displayText(text.substr(hit.location, hit.length)), width);
    line.after
        = displayText(trimmed(text.substr(hitEnd, end - hitEnd)).empty() ? "" : text.substr(hitEnd, end - hitEnd));
    if (displayWidth(line.before) + displayWidth(line.match) + displayWidth(line.after) > width)
        line.before = endFittedToWidth(line.before, std::min(kColumnsBefore, width / 3));
    const std::size_t used = displayWidth(line.before) + displayWidth(line.match);
    line.after = textFittedToWidth(line.after, width > used ? width - used : 0);
    return line;
}

/// Which bytes of the line stand out.
std::vector<bool> marksOfLine(
    const std::string& line, const FoldedRange& hit, const std::optional<RegularExpression>& expression)
{
    std::vector<bool> marks(line.size());
    const auto mark = [&marks](std::size_t begin, std::size_t end) {
        std::fill(
            marks.begin() + static_cast<std::ptrdiff_t>(begin), marks.begin() + static_cast<std::ptrdiff_t>(end), true);
    };
    mark(hit.location, hit.location + hit.length);
    if (!expression)
        return marks;
    for (const RegularExpressionMatch& match : expression->allMatches(line))
        mark(byteOffsetForUTF16Offset(line, match.range.location), byteOffsetForUTF16Offset(line, match.range.end()));
    return marks;
}

} // namespace

std::vector<LinePiece> firstMatchingLine(std::string_view text, std::span<const std::string> foldedWords,
    const std::optional<RegularExpression>& expression, std::size_t width)
{
    const auto hit = firstHit(text, foldedWords);
    if (!hit)
        return {};
    const CutLine cut = lineAround(text, *hit, width);
    const std::string line = cut.before + cut.match + cut.after;
    const std::vector<bool> marks = marksOfLine(line, {cut.before.size(), cut.match.size()}, expression);
    std::vector<LinePiece> pieces;
    for (std::size_t byte = 0; byte < line.size(); ++byte) {
        if (pieces.empty() || pieces.back().isMatch != marks[byte])
            pieces.push_back({.text = {}, .isMatch = marks[byte]});
        pieces.back().text += line[byte];
    }
    return pieces;
}

} // namespace tarn
