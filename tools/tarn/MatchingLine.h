#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tarn {

/// A line of a note in three pieces, the middle one being the hit. Safe to show.
struct MatchingLine {
    std::string before;
    std::string match;
    std::string after;
};

/// The first line of the text that shows one of the folded words, cut to `width` columns around the hit; none when no
/// word shows.
std::optional<MatchingLine> firstMatchingLine(
    std::string_view text, std::span<const std::string> foldedWords, std::size_t width);

} // namespace tarn
