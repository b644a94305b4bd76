#include "tarnmodel/corvel/scanning/LinkScanner.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"

namespace tarn::corvel {

namespace {

constexpr std::size_t kLongestLabel = 999;
constexpr int kDeepestParentheses = 32;

bool isEscape(std::string_view content, std::size_t offset) noexcept
{
    return content[offset] == '\\' && offset + 1 < content.size() && isASCIIPunctuation(content[offset + 1]);
}

std::optional<ScannedDestination> scanAngleDestination(std::string_view content, std::size_t offset) noexcept
{
    for (std::size_t i = offset + 1; i < content.size(); ++i) {
        const char c = content[i];
        if (c == '>')
            return ScannedDestination{rangeOf(offset + 1, i), i + 1};
        if (c == '<' || isLineEnd(c))
            return std::nullopt;
        if (isEscape(content, i))
            ++i;
    }
    return std::nullopt;
}

std::optional<ScannedDestination> scanBareDestination(std::string_view content, std::size_t offset) noexcept
{
    int depth = 0;
    std::size_t i = offset;
    for (; i < content.size(); ++i) {
        const char c = content[i];
        if (c == ' ' || isASCIIControl(c))
            break;
        if (isEscape(content, i))
            ++i;
        else if (c == '(' && ++depth > kDeepestParentheses)
            return std::nullopt;
        else if (c == ')' && --depth < 0)
            break;
    }
    if (depth > 0)
        return std::nullopt;
    return ScannedDestination{rangeOf(offset, i), i};
}

/// The offset after blanks and the line's end; nothing when ink is left on the line.
std::optional<std::size_t> endOfBlankRest(std::string_view content, std::size_t offset)
{
    while (offset < content.size() && isSpaceOrTab(content[offset]))
        ++offset;
    if (offset == content.size())
        return offset;
    if (!isLineEnd(content[offset]))
        return std::nullopt;
    const bool pair = content[offset] == '\r' && offset + 1 < content.size() && content[offset + 1] == '\n';
    return offset + (pair ? 2 : 1);
}

} // namespace

std::optional<ScannedDestination> scanDestination(std::string_view content, std::size_t offset) noexcept
{
    if (offset < content.size() && content[offset] == '<')
        return scanAngleDestination(content, offset);
    return scanBareDestination(content, offset);
}

std::optional<ScannedTitle> scanTitle(std::string_view content, std::size_t offset) noexcept
{
    if (offset >= content.size())
        return std::nullopt;
    const char open = content[offset];
    if (open != '"' && open != '\'' && open != '(')
        return std::nullopt;
    const char close = open == '(' ? ')' : open;
    for (std::size_t i = offset + 1; i < content.size(); ++i) {
        if (content[i] == close)
            return ScannedTitle{rangeOf(offset + 1, i), i + 1};
        if (open == '(' && content[i] == '(')
            return std::nullopt;
        if (isEscape(content, i))
            ++i;
    }
    return std::nullopt;
}

std::optional<SourceRange> scanLabel(std::string_view content, std::size_t offset) noexcept
{
    bool hasInk = false;
    std::size_t codePoints = 0;
    for (std::size_t i = offset + 1; i < content.size(); ++i) {
        const char c = content[i];
        if (c == ']')
            return hasInk ? std::optional(rangeOf(offset + 1, i)) : std::nullopt;
        const bool continues = (static_cast<unsigned char>(c) & 0xC0) == 0x80;
        if (c == '[' || (!continues && ++codePoints > kLongestLabel))
            return std::nullopt;
        if (!isBlank(c))
            hasInk = true;
        if (isEscape(content, i)) {
            ++i;
            ++codePoints;
        }
    }
    return std::nullopt;
}

std::size_t skipBlanksAndOneLineEnd(std::string_view content, std::size_t offset) noexcept
{
    const auto skipBlanks = [&] {
        while (offset < content.size() && isSpaceOrTab(content[offset]))
            ++offset;
    };
    skipBlanks();
    if (offset < content.size() && isLineEnd(content[offset])) {
        const bool pair = content[offset] == '\r' && offset + 1 < content.size() && content[offset + 1] == '\n';
        offset += pair ? 2 : 1;
        skipBlanks();
    }
    return offset;
}

std::optional<ScannedTail> scanInlineTail(std::string_view content, std::size_t offset) noexcept
{
    if (offset >= content.size() || content[offset] != '(')
        return std::nullopt;
    const auto destination = scanDestination(content, skipBlanksAndOneLineEnd(content, offset + 1));
    if (!destination)
        return std::nullopt;
    ScannedTail tail{destination->range, {}, false, skipBlanksAndOneLineEnd(content, destination->end)};
    if (tail.end > destination->end) {
        if (const auto title = scanTitle(content, tail.end)) {
            tail.title = title->range;
            tail.hasTitle = true;
            tail.end = skipBlanksAndOneLineEnd(content, title->end);
        }
    }
    if (tail.end >= content.size() || content[tail.end] != ')')
        return std::nullopt;
    ++tail.end;
    return tail;
}

std::optional<ScannedDefinition> scanDefinition(std::string_view content, std::size_t offset) noexcept
{
    const auto label = scanLabel(content, offset);
    if (!label || label->end + 1 >= content.size() || content[label->end + 1] != ':')
        return std::nullopt;
    const std::size_t begin = skipBlanksAndOneLineEnd(content, label->end + 2);
    const auto destination = scanDestination(content, begin);
    if (!destination || destination->end == begin)
        return std::nullopt;

    ScannedDefinition definition{*label, destination->range, std::nullopt, 0};
    const std::size_t titleBegin = skipBlanksAndOneLineEnd(content, destination->end);
    const auto title = titleBegin > destination->end ? scanTitle(content, titleBegin) : std::nullopt;
    if (title) {
        if (const auto end = endOfBlankRest(content, title->end)) {
            definition.title = title->range;
            definition.end = *end;
            return definition;
        }
    }
    // What looked like a title may be the text of the next line.
    const auto end = endOfBlankRest(content, destination->end);
    if (!end)
        return std::nullopt;
    definition.end = *end;
    return definition;
}

} // namespace tarn::corvel
