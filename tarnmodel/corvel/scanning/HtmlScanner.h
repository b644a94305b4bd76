#pragma once

#include <cstddef>
#include <string_view>

namespace tarn::corvel {

/// Where a raw HTML construct that starts at `offset` (a "<") ends, or 0 when there is none.

/// `<a href="x">`, `<br/>`.
std::size_t scanOpenTag(std::string_view content, std::size_t offset) noexcept;
/// `</a>`.
std::size_t scanClosingTag(std::string_view content, std::size_t offset) noexcept;
/// `<https://e.org>`.
std::size_t scanAutolink(std::string_view content, std::size_t offset) noexcept;
/// `<me@e.org>`.
std::size_t scanEmailAutolink(std::string_view content, std::size_t offset) noexcept;

/// Comments, processing instructions, declarations and CDATA sections of one text. It remembers which of their ends are
/// not to be found ahead, so that a text of openers alone is not searched again and again.
class MarkupScanner {
public:
    std::size_t scan(std::string_view content, std::size_t offset) noexcept;

private:
    enum Kind { Comment, Instruction, Declaration, CData, KindCount };
    std::size_t scanUntil(std::string_view content, std::size_t from, std::string_view closer, Kind kind) noexcept;

    bool noCloserAhead_[KindCount]{};
};

} // namespace tarn::corvel
