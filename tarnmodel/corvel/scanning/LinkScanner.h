#pragma once

#include "tarnmodel/corvel/scanning/SourceRange.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace tarn::corvel {

/// Ranges below are offsets into the content that is scanned.

struct ScannedDestination {
    SourceRange range;   ///< without < and >
    std::size_t end = 0; ///< after it
};
/// `<destination>` or a bare one at `offset`; nesting of parentheses is limited to 32.
std::optional<ScannedDestination> scanDestination(std::string_view content, std::size_t offset) noexcept;

struct ScannedTitle {
    SourceRange range; ///< without its marks
    std::size_t end = 0;
};
/// `"title"`, `'title'` or `(title)` at `offset`.
std::optional<ScannedTitle> scanTitle(std::string_view content, std::size_t offset) noexcept;

/// `[label]` at `offset`: the label's range without brackets. At most 999 code points, no bracket inside that is not
/// escaped, not blank.
std::optional<SourceRange> scanLabel(std::string_view content, std::size_t offset) noexcept;

struct ScannedTail {
    SourceRange destination;
    SourceRange title;
    bool hasTitle = false;
    std::size_t end = 0;
};
/// `(destination "title")` at `offset`: what follows the text of an inline link.
std::optional<ScannedTail> scanInlineTail(std::string_view content, std::size_t offset) noexcept;

struct ScannedDefinition {
    SourceRange label;
    SourceRange destination;
    std::optional<SourceRange> title;
    std::size_t end = 0; ///< at the start of the next line
};
/// `[label]: destination "title"` at `offset`, to the end of a line.
std::optional<ScannedDefinition> scanDefinition(std::string_view content, std::size_t offset) noexcept;

/// The offset after blanks, at most one line end among them.
std::size_t skipBlanksAndOneLineEnd(std::string_view content, std::size_t offset) noexcept;

} // namespace tarn::corvel
