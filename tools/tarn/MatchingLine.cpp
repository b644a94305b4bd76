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

} // namespace

std::optional<MatchingLine> firstMatchingLine(
    std::string_view text, std::span<const std::string> foldedWords, std::size_t width)
{
    const auto hit = firstHit(text, foldedWords);
    if (!hit)
        return std::nullopt;
    const std::size_t hitEnd = hit->location + hit->length;
    std::size_t begin = hit->location == 0 ? 0 : text.rfind('\n', hit->location - 1) + 1; // npos + 1 is 0
    const std::size_t end = std::min({text.find('\n', hitEnd), text.size(), hitEnd + kBytesLookedAt});
    begin = std::max(begin, hit->location - std::min(hit->location, kBytesLookedAt));

    MatchingLine line;
    const std::string_view before = text.substr(begin, hit->location - begin);
    line.before = displayText(before.substr(std::min(before.find_first_not_of(" \t"), before.size())));
    line.match = textFittedToWidth(displayText(text.substr(hit->location, hit->length)), width);
    line.after
        = displayText(trimmed(text.substr(hitEnd, end - hitEnd)).empty() ? "" : text.substr(hitEnd, end - hitEnd));
    if (displayWidth(line.before) + displayWidth(line.match) + displayWidth(line.after) > width)
        line.before = endFittedToWidth(line.before, std::min(kColumnsBefore, width / 3));
    const std::size_t used = displayWidth(line.before) + displayWidth(line.match);
    line.after = textFittedToWidth(line.after, width > used ? width - used : 0);
    return line;
}

} // namespace tarn
