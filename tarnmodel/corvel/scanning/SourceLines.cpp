#include "tarnmodel/corvel/scanning/SourceLines.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>

namespace tarn::corvel {

SourceRange lineAt(std::string_view text, std::size_t begin) noexcept
{
    const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
    return {static_cast<Offset>(begin), static_cast<Offset>(end)};
}

SourceRange lineAround(std::string_view text, std::size_t offset) noexcept
{
    std::size_t begin = offset;
    while (begin > 0 && !isLineEnd(text[begin - 1]))
        --begin;
    return lineAt(text, begin == 0 ? startOfText(text) : begin);
}

std::optional<Offset> startOfNextLine(std::string_view text, SourceRange line) noexcept
{
    if (line.end >= text.size())
        return std::nullopt;
    const bool pair = text[line.end] == '\r' && line.end + 1 < text.size() && text[line.end + 1] == '\n';
    return line.end + (pair ? 2 : 1);
}

std::optional<Offset> endOfPreviousLine(std::string_view text, std::size_t begin) noexcept
{
    if (begin <= startOfText(text))
        return std::nullopt;
    const bool pair = begin > 1 && text[begin - 1] == '\n' && text[begin - 2] == '\r';
    return static_cast<Offset>(begin - (pair ? 2 : 1));
}

Offset startOfText(std::string_view text) noexcept
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    return text.starts_with(kByteOrderMark) ? static_cast<Offset>(kByteOrderMark.size()) : 0;
}

bool isBlankText(std::string_view text) noexcept
{
    return trimmed(text).empty();
}

std::string_view lineEndOf(std::string_view text) noexcept
{
    const std::size_t first = text.find_first_of("\r\n");
    return first != std::string_view::npos && text.substr(first).starts_with("\r\n") ? "\r\n" : "\n";
}

} // namespace tarn::corvel
