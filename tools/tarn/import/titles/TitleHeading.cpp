#include "tools/tarn/import/titles/TitleHeading.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKLink.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/files/TitledText.h"

namespace tarn {

namespace {

/// More than any text has before its heading, and few enough to be cheap.
constexpr std::size_t kOpeningBlocks = 64;

std::string_view sliceOf(std::string_view text, CVKRange range)
{
    return text.substr(range.location, range.length);
}

/// What is left of a text behind a comment or an empty anchor that it begins with; none where it begins with neither.
std::optional<std::string_view> behindAside(std::string_view text)
{
    if (text.starts_with("<!--")) {
        const std::size_t end = text.find("-->", 4);
        return end == std::string_view::npos ? std::nullopt : std::optional(text.substr(end + 3));
    }
    if (!text.starts_with("<a ") && !text.starts_with("<a\n"))
        return std::nullopt;
    const std::size_t end = text.find('>');
    if (end == std::string_view::npos || text.substr(0, end).find("href") != std::string_view::npos)
        return std::nullopt;
    text.remove_prefix(end + 1);
    if (text.starts_with("</a>"))
        text.remove_prefix(4);
    return text;
}

/// Whether a block is made of comments and empty anchors, which show nothing.
bool isAside(std::string_view block)
{
    for (block = trimmed(block); !block.empty(); block = trimmed(block)) {
        const auto rest = behindAside(block);
        if (!rest)
            return false;
        block = *rest;
    }
    return true;
}

bool isLineOfHashtags(std::string_view block)
{
    const CVKAST document = CVKAST::fromMarkdown(block);
    return document.textSummary().title.empty() && document.textSummary().subtitle.empty()
        && !document.textSummary().tags.empty();
}

bool isNothingToRead(const CVKBlock& block, std::string_view source)
{
    return (block.kind == CVKBlock::Kind::Html || block.kind == CVKBlock::Kind::Paragraph) && isAside(source);
}

/// Where the words of a heading end: before the closing number signs, or the line under it.
std::size_t endOfWords(std::string_view text, const OpeningHeading& heading)
{
    std::string_view line = text.substr(heading.begin, heading.end - heading.begin);
    const bool isUnderlined = !trimmed(line).starts_with('#');
    if (isUnderlined)
        line = line.substr(0, line.find_last_of('\n'));
    const auto withoutBlanks = [&line] {
        const std::size_t last = line.find_last_not_of(" \t\r");
        line = line.substr(0, last == std::string_view::npos ? 0 : last + 1);
    };
    withoutBlanks();
    const std::size_t closing = line.find_last_not_of('#');
    if (!isUnderlined && closing != std::string_view::npos && (line[closing] == ' ' || line[closing] == '\t')
        && trimmed(line.substr(0, closing)).find_first_not_of('#') != std::string_view::npos) {
        line = line.substr(0, closing + 1);
        withoutBlanks();
    }
    return heading.begin + line.size();
}

} // namespace

std::optional<OpeningHeading> openingHeadingOf(std::string_view text)
{
    const CVKAST document = CVKAST::fromMarkdown(text);
    std::optional<std::size_t> asides;
    for (const CVKBlock& block : document.topLevelBlocks(kOpeningBlocks)) {
        const std::string_view source = sliceOf(text, block.range);
        if (block.kind == CVKBlock::Kind::Heading) {
            OpeningHeading heading{.level = static_cast<unsigned>(block.level),
                .title = CVKAST::fromMarkdown(source).textSummary().title,
                .begin = block.range.location,
                .end = block.range.location + block.range.length,
                .asides = asides.value_or(block.range.location)};
            return heading.title.empty() ? std::nullopt : std::optional(std::move(heading));
        }
        if (isNothingToRead(block, source)) {
            if (!asides)
                asides = block.range.location;
        } else if (block.kind == CVKBlock::Kind::Paragraph && !asides && isLineOfHashtags(source)) {
            continue;
        } else {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

std::string textWithHeadingOnTop(std::string text, const OpeningHeading& heading)
{
    if (heading.asides == heading.begin)
        return text;
    std::string moved = text.substr(heading.begin, heading.end - heading.begin);
    const std::string asides = text.substr(heading.asides, heading.begin - heading.asides);
    const std::string_view lineEnd = text.find("\r\n") == std::string::npos ? "\n" : "\r\n";
    ((moved += lineEnd) += lineEnd) += asides;
    std::string rest = text.substr(heading.end);
    // The line that the heading leaves is where the text goes on.
    if (rest.starts_with(lineEnd))
        rest.erase(0, lineEnd.size());
    text.replace(heading.asides, std::string::npos, moved + rest);
    return text;
}

std::optional<std::string> textWithHeadingSuffix(
    std::string_view text, const OpeningHeading& heading, std::string_view suffix, std::string_view title)
{
    std::string result(text);
    std::string written = headingForTitle(suffix).value_or("");
    if (written.empty())
        return std::nullopt;
    result.insert(endOfWords(text, heading), " " + written.substr(2));
    const CVKTextSummary before = CVKAST::fromMarkdown(text).textSummary();
    const CVKTextSummary after = CVKAST::fromMarkdown(result).textSummary();
    const bool isSame = after.title == title && after.tags == before.tags && after.links == before.links
        && after.wikiLinks.size() == before.wikiLinks.size();
    return isSame ? std::optional(std::move(result)) : std::nullopt;
}

} // namespace tarn
