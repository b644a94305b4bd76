#include "tools/tarn/listing/MatchingLine.h"

#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/commandline/DisplayText.h"

#include <algorithm>
#include <numeric>

namespace tarn {

namespace {

constexpr std::size_t kColumnsBefore = 30;
constexpr std::size_t kBytesLookedAt = 4096; ///< of a line, on either side of the hit

using Pieces = std::vector<LinePiece>;

std::size_t widthOf(const Pieces& pieces)
{
    return std::accumulate(pieces.begin(), pieces.end(), std::size_t{0},
        [](std::size_t sum, const LinePiece& piece) { return sum + displayWidth(piece.text); });
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

/// The last pieces that fit, the first of them cut where need be.
Pieces endFittedToWidth(const Pieces& pieces, std::size_t width)
{
    if (widthOf(pieces) <= width)
        return pieces;
    if (width == 0)
        return {};
    auto first = pieces.end();
    std::size_t left = width;
    while (displayWidth(std::prev(first)->text) < left)
        left -= displayWidth((--first)->text);
    const LinePiece& cut = *std::prev(first);
    // Room for the mark of what is missing.
    const std::string shown = std::prev(first) == pieces.begin() ? cut.text : " " + cut.text;
    Pieces fitted{{endFittedToWidth(shown, left), cut.isMatch}};
    fitted.insert(fitted.end(), first, pieces.end());
    return fitted;
}

/// The first pieces that fit, the last of them cut where need be.
Pieces fittedToWidth(const Pieces& pieces, std::size_t width)
{
    Pieces fitted;
    for (const LinePiece& piece : pieces) {
        const bool isLast = &piece == &pieces.back();
        const std::size_t columns = displayWidth(piece.text);
        if (columns < width || (columns == width && isLast)) {
            fitted.push_back(piece);
            width -= columns;
            continue;
        }
        // Room for the mark of what is missing.
        const std::string shown = isLast || columns > width ? piece.text : piece.text + " ";
        if (width > 0)
            fitted.push_back({textFittedToWidth(shown, width), piece.isMatch});
        break;
    }
    return fitted;
}

/// Part of a text as pieces by its places, safe to show.
Pieces piecesOf(std::string_view text, std::size_t begin, std::size_t end, const std::vector<FoldedRange>& places)
{
    Pieces pieces;
    const auto add = [&](std::size_t from, std::size_t to, bool isMatch) {
        if (from < to)
            pieces.push_back({displayText(text.substr(from, to - from)), isMatch});
    };
    std::size_t behind = begin;
    for (const FoldedRange& place : places) {
        const std::size_t placeEnd = place.location + place.length;
        if (place.location < behind || placeEnd > end)
            continue;
        add(behind, place.location, false);
        add(place.location, placeEnd, true);
        behind = placeEnd;
    }
    add(behind, end, false);
    return pieces;
}

/// The line around a hit, or what is looked at of a long one.
struct Line {
    std::size_t begin;
    std::size_t end;
};

Line lineAround(std::string_view text, const FoldedRange& hit)
{
    const std::size_t hitEnd = hit.location + hit.length;
    std::size_t begin = hit.location == 0 ? 0 : text.rfind('\n', hit.location - 1) + 1; // npos + 1 is 0
    begin = std::max(begin, hit.location - std::min(hit.location, kBytesLookedAt));
    begin = std::min(text.find_first_not_of(" \t", begin), hit.location);
    std::size_t end = std::min({text.find('\n', hitEnd), text.size(), hitEnd + kBytesLookedAt});
    while (end > hitEnd && trimmed(text.substr(end - 1, 1)).empty())
        --end;
    return {begin, end};
}

} // namespace

std::vector<LinePiece> firstMatchingLine(std::string_view text, const TermFinder& terms, std::size_t width)
{
    const auto hit = terms.firstPlace(text);
    if (!hit)
        return {};
    const Line line = lineAround(text, *hit);
    // A little more than the line: what stands behind its end decides whether a word ends there.
    const std::size_t margin = std::min(text.size() - line.end, std::size_t{16});
    std::vector<FoldedRange> places = terms.places(text.substr(line.begin, line.end + margin - line.begin));
    for (FoldedRange& place : places)
        place.location += line.begin;

    const std::size_t hitEnd = hit->location + hit->length;
    Pieces before = piecesOf(text, line.begin, hit->location, places);
    const Pieces match{{textFittedToWidth(displayText(text.substr(hit->location, hit->length)), width), true}};
    const Pieces after = piecesOf(text, hitEnd, line.end, places);
    if (widthOf(before) + widthOf(match) + widthOf(after) > width)
        before = endFittedToWidth(before, std::min({kColumnsBefore, width / 3, width - widthOf(match)}));
    const std::size_t used = widthOf(before) + widthOf(match);
    Pieces pieces = before;
    pieces.insert(pieces.end(), match.begin(), match.end());
    const Pieces rest = fittedToWidth(after, width > used ? width - used : 0);
    pieces.insert(pieces.end(), rest.begin(), rest.end());
    return pieces;
}

} // namespace tarn
