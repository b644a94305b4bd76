#include "tarnmodel/corvel/output/TextSummary.h"

#include "tarnmodel/corvel/output/PlainText.h"
#include "tarnmodel/corvel/scanning/SourceLines.h"
#include "tarnmodel/corvel/scanning/TagNames.h"
#include "tarnmodel/corvel/scanning/Unescape.h"
#include "tarnmodel/corvel/scanning/WikiLinkScanner.h"

#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>
#include <unordered_map>

namespace tarn::corvel {

namespace {

constexpr std::size_t kLongestSubtitle = 300;              // UTF-16 units
constexpr std::size_t kEnoughBytes = 3 * kLongestSubtitle; // a unit takes three bytes at most

/// The first content line that begins at or after the offset.
std::size_t contentLineFrom(const CVKAST::Document& document, Offset offset)
{
    const auto found = std::partition_point(
        document.lines.begin(), document.lines.end(), [&](const ContentLine& line) { return line.begin < offset; });
    return static_cast<std::size_t>(found - document.lines.begin());
}

void appendWithBlank(std::string& text, const std::string& more)
{
    if (!text.empty() && !more.empty())
        text += ' ';
    text += more;
}

/// Title and subtitle: the blocks from the title line on, as plain text.
class Headline {
public:
    explicit Headline(const CVKAST::Document& document) : document_(document), plainText_(document) { }

    void derive(CVKTextSummary& summary)
    {
        const auto title = titleLine(document_);
        if (!title)
            return;
        std::size_t line = contentLineFrom(document_, title->begin);
        const bool inTitle = line < document_.lines.size() && document_.lines[line].begin <= title->end;
        if (inTitle)
            ++line;
        for (const Block& leaf : document_.blocks) {
            const std::size_t end = leaf.firstLine + leaf.lineCount;
            if (!isLeaf(leaf) || end == leaf.firstLine || end < line)
                continue;
            plainText_.setLeaf(leaf);
            if (inTitle && line > leaf.firstLine && line <= end)
                summary.title = titleText(leaf, line - 1);
            summary.subtitle = textOfLines(leaf, std::max<std::size_t>(line, leaf.firstLine));
            if (!summary.subtitle.empty())
                break;
        }
        summary.subtitle.resize(byteOffsetForUTF16Offset(summary.subtitle, kLongestSubtitle));
    }

private:
    static bool isLeaf(const Block& block) { return block.firstChild == kNoBlock; }

    static bool isCode(const Block& leaf)
    {
        return leaf.type == BlockType::FencedCode || leaf.type == BlockType::IndentedCode;
    }

    std::string titleText(const Block& leaf, std::size_t line) const
    {
        return isCode(leaf) ? std::string() : plainText_.line(static_cast<std::uint32_t>(line - leaf.firstLine));
    }

    std::string textOfLines(const Block& leaf, std::size_t from) const
    {
        std::string text;
        for (std::size_t i = from; i < leaf.firstLine + leaf.lineCount && text.size() <= kEnoughBytes; ++i) {
            if (!holdsOnlyHashtags(document_, lineAround(document_.text, document_.lines[i].begin)))
                appendWithBlank(text, plainText_.line(static_cast<std::uint32_t>(i - leaf.firstLine)));
        }
        return text;
    }

    const CVKAST::Document& document_;
    PlainText plainText_;
};

void countBlocks(const CVKAST::Document& document, CVKTextSummary& summary)
{
    for (const Block& block : document.blocks) {
        if (block.type == BlockType::FencedCode || block.type == BlockType::IndentedCode)
            ++summary.codeBlockCount;
        else if (block.todo == TodoState::Open)
            ++summary.todoCount;
        else if (block.todo == TodoState::Done)
            ++summary.doneCount;
    }
}

std::vector<CVKWikiLink> wikiLinksOf(const CVKAST::Document& document)
{
    std::vector<CVKWikiLink> links;
    links.reserve(document.wikiLinks.size());
    Offset at = 0;
    std::size_t units = 0;
    for (const WikiLink& link : document.wikiLinks) {
        units += utf16Length(document.slice({at, link.range.begin}));
        at = link.range.begin;
        links.emplace_back(decodedWikiText(document.slice(link.title)), units);
    }
    return links;
}

enum class Spelling { Derived, Written };

/// Tags in order of first appearance; a spelling that is written stands before one that is derived.
class TagCollector {
public:
    void add(const std::string& path)
    {
        for (std::size_t slash = path.find('/'); slash != std::string::npos; slash = path.find('/', slash + 1))
            add(path.substr(0, slash), Spelling::Derived);
        add(path, Spelling::Written);
    }
    std::vector<std::string> take() { return std::move(tags_); }

private:
    void add(const std::string& path, Spelling spelling)
    {
        std::string key = fold(path);
        if (key.empty())
            return;
        const auto [entry, isNew] = indexForKey_.try_emplace(std::move(key), tags_.size());
        if (isNew) {
            tags_.push_back(path);
            spellings_.push_back(spelling);
        } else if (spelling == Spelling::Written && spellings_[entry->second] == Spelling::Derived) {
            tags_[entry->second] = path;
            spellings_[entry->second] = spelling;
        }
    }

    std::vector<std::string> tags_;
    std::vector<Spelling> spellings_;
    std::unordered_map<std::string, std::size_t> indexForKey_;
};

} // namespace

std::optional<SourceRange> titleLine(const CVKAST::Document& document)
{
    const std::string_view text = document.text;
    std::optional<Offset> begin = startOfText(text);
    while (begin) {
        const SourceRange line = lineAt(text, *begin);
        if (!isBlankText(document.slice(line)) && !holdsOnlyHashtags(document, line))
            return line;
        begin = startOfNextLine(text, line);
    }
    return std::nullopt;
}

bool holdsOnlyHashtags(const CVKAST::Document& document, SourceRange line)
{
    auto hashtag = std::partition_point(document.hashtags.begin(), document.hashtags.end(),
        [&](const Hashtag& tag) { return tag.range.begin < line.begin; });
    bool any = false;
    Offset at = line.begin;
    for (; hashtag != document.hashtags.end() && hashtag->range.begin < line.end; ++hashtag) {
        if (!isBlankText(document.slice({at, hashtag->range.begin})))
            return false;
        at = hashtag->range.end;
        any = true;
    }
    return any && isBlankText(document.slice({at, line.end}));
}

std::vector<std::string> tagsOfHashtags(const CVKAST::Document& document)
{
    TagCollector tags;
    for (const Hashtag& hashtag : document.hashtags)
        tags.add(sanitizedTagName(document.slice(hashtag.name)));
    return tags.take();
}

std::string decodedDestination(LinkKind kind, std::string_view written)
{
    if (kind == LinkKind::EmailAutolink)
        return "mailto:" + std::string(written);
    return kind == LinkKind::Autolink ? std::string(written) : unescaped(written);
}

CVKTextSummary makeTextSummary(const CVKAST::Document& document)
{
    CVKTextSummary summary;
    Headline(document).derive(summary);
    summary.tags = tagsOfHashtags(document);
    countBlocks(document, summary);
    summary.wikiLinks = wikiLinksOf(document);
    summary.links.reserve(document.links.size());
    for (const Link& link : document.links)
        summary.links.push_back(decodedDestination(link.kind, document.slice(link.destination)));
    return summary;
}

} // namespace tarn::corvel
