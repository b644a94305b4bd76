#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tarn::corvel {

/// What opens a block. `line` is the rest of a line from its first ink on, without line end.

/// The level, 1 to 6, or 0.
int scanHeadingMarks(std::string_view line) noexcept;
/// The level that the line gives to a paragraph above it: 1 for ===, 2 for ---, or 0.
int scanHeadingUnderline(std::string_view line) noexcept;
/// How many marks the fence has, or 0.
std::size_t scanFenceOpening(std::string_view line) noexcept;
bool isFenceClosing(std::string_view line, char mark, std::size_t length) noexcept;

/// The kind of HTML block, 1 to 7, that the line opens, or 0. Kind 7 cannot interrupt a paragraph.
int scanHtmlBlockStart(std::string_view line) noexcept;
/// Whether a line of an HTML block of the kinds 1 to 5 ends it.
bool endsHtmlBlock(int kind, std::string_view line) noexcept;

struct ListMarker {
    char kind = 0; ///< - + * . )
    std::uint32_t number = 0;
    std::size_t length = 0;
};
/// A marker that is followed by blank or line end.
std::optional<ListMarker> scanListMarker(std::string_view line) noexcept;

/// Finds thematic breaks in one line; remembers where a search failed, since every start before that place fails as
/// well.
class ThematicBreakScanner {
public:
    void startLine() noexcept { failedAt_ = nullptr; }
    bool scan(std::string_view line) noexcept;

private:
    const char* failedAt_ = nullptr;
};

} // namespace tarn::corvel
