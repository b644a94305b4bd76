#pragma once

#include "tarnmodel/search/TermFinder.h"

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

/// The first line of the text where a term stands, safe to show, cut to `width` columns around that term; empty when
/// there is none. Every place of a term in it stands out.
std::vector<LinePiece> firstMatchingLine(std::string_view text, const TermFinder& terms, std::size_t width);

} // namespace tarn
