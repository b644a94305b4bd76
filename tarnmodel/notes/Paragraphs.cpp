#include "tarnmodel/notes/Paragraphs.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>

namespace tarn {

namespace {

constexpr std::string_view paragraphSeparator = "\u2029";

/// Whether a paragraph ends right before the byte at `offset`, which is above 0.
bool isParagraphStart(std::string_view text, std::size_t offset)
{
    const std::string_view before = text.substr(0, offset);
    if (before.back() == '\r')
        return offset == text.size() || text[offset] != '\n';
    return before.back() == '\n' || before.ends_with(paragraphSeparator);
}

std::string_view upToWhiteSpace(std::string_view text)
{
    std::size_t length = 0;
    while (length < text.size()) {
        const DecodedCodePoint next = decodeCodePoint(text, length);
        if (isWhiteSpace(next.codePoint))
            break;
        length += next.length;
    }
    return text.substr(0, length);
}

std::string_view trimmedParagraph(std::string_view text, ParagraphRange paragraph)
{
    return trimmed(text.substr(paragraph.start, paragraph.end - paragraph.start));
}

} // namespace

ParagraphRange paragraphAtOffset(std::string_view text, std::size_t offset)
{
    ParagraphRange paragraph{offset, offset + 1};
    while (paragraph.start > 0 && !isParagraphStart(text, paragraph.start))
        --paragraph.start;
    while (paragraph.end < text.size() && !isParagraphStart(text, paragraph.end))
        ++paragraph.end;
    return paragraph;
}

std::string_view firstLine(std::string_view text)
{
    return text.substr(0, text.find('\n'));
}

std::optional<std::size_t> startOfClosingTagLine(std::string_view text, const std::vector<std::string>& tags)
{
    if (text.empty())
        return std::nullopt;
    ParagraphRange paragraph = paragraphAtOffset(text, text.size() - 1);
    while (trimmedParagraph(text, paragraph).empty()) {
        if (paragraph.start > 0)
            paragraph = paragraphAtOffset(text, paragraph.start - 1);
        // Once blank lines were stepped over, the first paragraph is taken for the title and never looked at.
        if (paragraph.start == 0)
            return std::nullopt;
    }
    std::string_view words = trimmedParagraph(text, paragraph);
    if (!words.starts_with('#'))
        return std::nullopt;
    words.remove_prefix(1);
    if (std::find(tags.begin(), tags.end(), upToWhiteSpace(words)) == tags.end())
        return std::nullopt;
    return paragraph.start;
}

} // namespace tarn
