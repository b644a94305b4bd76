#pragma once

#include "platform/foundation/RegularExpression.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A part of a line that stands out, or one between two such.
struct LinePiece {
    std::string text;
    bool isMatch = false;
    friend bool operator==(const LinePiece&, const LinePiece&) = default;
};

/// The first line of the text that shows one of the folded words, safe to show, cut to `width` columns around that
/// word; empty when no word shows. The word stands out, and whatever else in the line the expression matches.
std::vector<LinePiece> firstMatchingLine(std::string_view text, std::span<const std::string> foldedWords,
    const std::optional<RegularExpression>& expression, std::size_t width);

} // namespace tarn
