#include "tarnmodel/corvel/blocks/BlockStarts.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"
#include "tarnmodel/corvel/scanning/HtmlScanner.h"

#include <algorithm>
#include <array>

namespace tarn::corvel {

namespace {

// Sorted: searched by bisection. Such a tag at the start of a line opens a block that a blank line ends.
constexpr std::array<std::string_view, 62> kBlockTags{"address", "article", "aside", "base", "basefont", "blockquote",
    "body", "caption", "center", "col", "colgroup", "dd", "details", "dialog", "dir", "div", "dl", "dt", "fieldset",
    "figcaption", "figure", "footer", "form", "frame", "frameset", "h1", "h2", "h3", "h4", "h5", "h6", "head", "header",
    "hr", "html", "iframe", "legend", "li", "link", "main", "menu", "menuitem", "nav", "noframes", "ol", "optgroup",
    "option", "p", "param", "search", "section", "summary", "table", "tbody", "td", "tfoot", "th", "thead", "title",
    "tr", "track", "ul"};
static_assert(std::is_sorted(kBlockTags.begin(), kBlockTags.end()));

// Their content is no Markdown; the block ends where one of them closes.
constexpr std::array<std::string_view, 4> kVerbatimTags{"pre", "script", "style", "textarea"};

bool isBlankLine(std::string_view text) noexcept
{
    return std::all_of(text.begin(), text.end(), [](char c) { return isSpaceOrTab(c); });
}

std::size_t runLength(std::string_view line, char c) noexcept
{
    return std::min(line.find_first_not_of(c), line.size());
}

bool equalsIgnoringCase(std::string_view text, std::string_view lower) noexcept
{
    return std::equal(
        text.begin(), text.end(), lower.begin(), lower.end(), [](char a, char b) { return lowerASCII(a) == b; });
}

bool containsIgnoringCase(std::string_view text, std::string_view lower) noexcept
{
    return std::search(text.begin(), text.end(), lower.begin(), lower.end(), [](char a, char b) {
        return lowerASCII(a) == b;
    }) != text.end();
}

bool isBlockTag(std::string_view name) noexcept
{
    std::array<char, 16> lower{};
    if (name.size() > lower.size())
        return false;
    std::transform(name.begin(), name.end(), lower.begin(), lowerASCII);
    return std::binary_search(kBlockTags.begin(), kBlockTags.end(), std::string_view(lower.data(), name.size()));
}

/// The kinds 1 and 6, which a tag's name opens; the tag need not be whole.
int scanNamedHtmlBlock(std::string_view line) noexcept
{
    const bool closing = line.size() > 1 && line[1] == '/';
    const std::size_t begin = closing ? 2 : 1;
    std::size_t end = begin;
    while (end < line.size() && isASCIIAlphanumeric(line[end]))
        ++end;
    const std::string_view name = line.substr(begin, end - begin);
    const std::string_view rest = line.substr(end);
    const bool ends = rest.empty() || isSpaceOrTab(rest[0]) || rest[0] == '>';
    const bool verbatim = std::any_of(kVerbatimTags.begin(), kVerbatimTags.end(),
        [&](std::string_view tag) { return equalsIgnoringCase(name, tag); });
    if (verbatim && !closing && ends)
        return 1;
    return isBlockTag(name) && (ends || rest.starts_with("/>")) ? 6 : 0;
}

} // namespace

int scanHeadingMarks(std::string_view line) noexcept
{
    const std::size_t level = runLength(line, '#');
    if (level == 0 || level > 6 || (level < line.size() && !isSpaceOrTab(line[level])))
        return 0;
    return static_cast<int>(level);
}

int scanHeadingUnderline(std::string_view line) noexcept
{
    const char mark = line.empty() ? '\0' : line[0];
    if ((mark != '=' && mark != '-') || !isBlankLine(line.substr(runLength(line, mark))))
        return 0;
    return mark == '=' ? 1 : 2;
}

std::size_t scanFenceOpening(std::string_view line) noexcept
{
    const char mark = line.empty() ? '\0' : line[0];
    if (mark != '`' && mark != '~')
        return 0;
    const std::size_t length = runLength(line, mark);
    if (length < 3 || (mark == '`' && line.find('`', length) != std::string_view::npos))
        return 0;
    return length;
}

bool isFenceClosing(std::string_view line, char mark, std::size_t length) noexcept
{
    const std::size_t marks = runLength(line, mark);
    return marks >= length && isBlankLine(line.substr(marks));
}

int scanHtmlBlockStart(std::string_view line) noexcept
{
    if (line.size() < 2 || line[0] != '<')
        return 0;
    if (line.starts_with("<!--"))
        return 2;
    if (line[1] == '?')
        return 3;
    if (line.starts_with("<![CDATA["))
        return 5;
    if (line[1] == '!')
        return line.size() > 2 && isASCIILetter(line[2]) ? 4 : 0;
    if (const int kind = scanNamedHtmlBlock(line))
        return kind;
    std::size_t end = scanOpenTag(line, 0);
    if (end == 0)
        end = scanClosingTag(line, 0);
    return end != 0 && isBlankLine(line.substr(end)) ? 7 : 0;
}

bool endsHtmlBlock(int kind, std::string_view line) noexcept
{
    const auto contains = [&](std::string_view text) { return line.find(text) != std::string_view::npos; };
    switch (kind) {
    case 1:
        return contains("</")
            && (containsIgnoringCase(line, "</pre>") || containsIgnoringCase(line, "</script>")
                || containsIgnoringCase(line, "</style>") || containsIgnoringCase(line, "</textarea>"));
    case 2:
        return contains("-->");
    case 3:
        return contains("?>");
    case 4:
        return contains(">");
    case 5:
        return contains("]]>");
    default:
        return false;
    }
}

std::optional<ListMarker> scanListMarker(std::string_view line) noexcept
{
    constexpr std::size_t kMostDigits = 9;
    if (line.empty())
        return std::nullopt;
    ListMarker marker;
    if (line[0] == '-' || line[0] == '+' || line[0] == '*') {
        marker = {line[0], 0, 1};
    } else {
        std::size_t digits = 0;
        while (digits < line.size() && isASCIIDigit(line[digits]) && digits <= kMostDigits)
            marker.number = marker.number * 10 + static_cast<std::uint32_t>(line[digits++] - '0');
        if (digits == 0 || digits > kMostDigits || digits == line.size()
            || (line[digits] != '.' && line[digits] != ')'))
            return std::nullopt;
        marker.kind = line[digits];
        marker.length = digits + 1;
    }
    if (marker.length < line.size() && !isSpaceOrTab(line[marker.length]))
        return std::nullopt;
    return marker;
}

bool ThematicBreakScanner::scan(std::string_view line) noexcept
{
    if (line.empty() || (line[0] != '*' && line[0] != '-' && line[0] != '_') || line.data() < failedAt_)
        return false;
    std::size_t marks = 0;
    for (const char& c : line) {
        if (c == line[0]) {
            ++marks;
        } else if (!isSpaceOrTab(c)) {
            failedAt_ = &c;
            return false;
        }
    }
    return marks >= 3;
}

} // namespace tarn::corvel
