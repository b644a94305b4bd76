#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Bytes of a text, a paragraph's line ending included.
struct ParagraphRange {
    std::size_t start = 0;
    std::size_t end = 0;
    friend bool operator==(const ParagraphRange&, const ParagraphRange&) = default;
};

/// The paragraph that holds the byte at `offset`, which lies inside the text. Paragraphs end after a line feed, a
/// carriage return (both together are one end) or U+2029.
ParagraphRange paragraphAtOffset(std::string_view text, std::size_t offset);

/// The text up to the first line feed; all of it when there is none.
std::string_view firstLine(std::string_view text);

/// Where the last paragraph that is not blank begins, when it starts with a hashtag whose name up to white space is one
/// of `tags`, character by character. The first paragraph counts only when nothing follows it.
std::optional<std::size_t> startOfClosingTagLine(std::string_view text, const std::vector<std::string>& tags);

} // namespace tarn
