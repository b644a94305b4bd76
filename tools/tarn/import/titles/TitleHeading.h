#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The heading that a text begins with.
struct OpeningHeading {
    unsigned level = 0;     ///< 1 to 6
    std::string title;      ///< as a note derives it
    std::size_t begin = 0;  ///< of its first line, in bytes of the text
    std::size_t end = 0;    ///< of its last line, the line ending excluded
    std::size_t asides = 0; ///< where the comments and empty anchors before it begin; `begin` where there are none
};

/// The heading that is the first to say something. Lines of hashtags alone say nothing, nor do comments and anchors
/// without text. None where a text begins with anything else.
std::optional<OpeningHeading> openingHeadingOf(std::string_view text);

/// The text with its heading above the comments and anchors that stood before it, so that it is the title of a note.
std::string textWithHeadingOnTop(std::string text, const OpeningHeading& heading);

/// The text with `suffix` behind the words of its heading, which must read as `title` then. None when it would not.
std::optional<std::string> textWithHeadingSuffix(
    std::string_view text, const OpeningHeading& heading, std::string_view suffix, std::string_view title);

} // namespace tarn
