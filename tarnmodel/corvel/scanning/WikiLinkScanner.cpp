#include "tarnmodel/corvel/scanning/WikiLinkScanner.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"
#include "tarnmodel/corvel/scanning/LinkScanner.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

namespace tarn::corvel {

namespace {

SourceRange trimmedRange(std::string_view content, std::size_t begin, std::size_t end) noexcept
{
    const std::string_view text = trimmed(content.substr(begin, end - begin));
    const auto first
        = static_cast<Offset>(text.empty() ? begin : static_cast<std::size_t>(text.data() - content.data()));
    return {first, static_cast<Offset>(first + text.size())};
}

} // namespace

std::optional<ScannedWikiLink> scanWikiLink(std::string_view content, std::size_t offset) noexcept
{
    if (!content.substr(offset).starts_with("[["))
        return std::nullopt;
    const std::size_t begin = offset + 2;
    std::size_t bar = std::string_view::npos;
    std::size_t i = begin;
    for (; i < content.size() && content[i] != ']'; ++i) {
        const char c = content[i];
        if (c == '[' || isLineEnd(c))
            return std::nullopt;
        if (c == '|' && bar == std::string_view::npos)
            bar = i;
        else if (c == '\\' && i + 1 < content.size() && isASCIIPunctuation(content[i + 1]))
            ++i;
    }
    if (i + 1 >= content.size() || content[i + 1] != ']')
        return std::nullopt;

    ScannedWikiLink link;
    link.hasAlias = bar != std::string_view::npos;
    link.title = trimmedRange(content, begin, link.hasAlias ? bar : i);
    if (link.hasAlias)
        link.alias = trimmedRange(content, bar + 1, i);
    link.end = i + 2;
    if (link.title.empty() || scanInlineTail(content, link.end))
        return std::nullopt;
    return link;
}

std::string decodedWikiText(std::string_view raw)
{
    std::string text;
    text.reserve(raw.size());
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (raw[i] == '\\' && i + 1 < raw.size() && isASCIIPunctuation(raw[i + 1]))
            ++i;
        text += raw[i];
    }
    return std::string(trimmed(std::string_view(text)));
}

std::string encodedWikiTitle(std::string_view title)
{
    std::string text;
    for (std::size_t i = 0; i < title.size(); ++i) {
        const char c = title[i];
        if (isLineEnd(c)) {
            if (c == '\r' && i + 1 < title.size() && title[i + 1] == '\n')
                ++i;
            text += ' ';
            continue;
        }
        if (c == '\\' || c == '[' || c == ']' || c == '|')
            text += '\\';
        text += c;
    }
    return text;
}

} // namespace tarn::corvel
