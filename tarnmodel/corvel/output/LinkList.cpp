#include "tarnmodel/corvel/output/LinkList.h"

#include "tarnmodel/corvel/blocks/LeafContent.h"
#include "tarnmodel/corvel/inlines/InlineParser.h"
#include "tarnmodel/corvel/inlines/InlineTokens.h"
#include "tarnmodel/corvel/output/TextSummary.h"
#include "tarnmodel/corvel/scanning/TableRows.h"
#include "tarnmodel/corvel/scanning/WikiLinkScanner.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn::corvel {

namespace {

CVKRange publicRange(SourceRange range) noexcept
{
    return {range.begin, range.length()};
}

template <typename Found> bool anyBeginsIn(const std::vector<Found>& found, SourceRange range)
{
    const auto first = std::partition_point(
        found.begin(), found.end(), [&](const Found& one) { return one.range.begin < range.begin; });
    return first != found.end() && first->range.begin < range.end;
}

/// Where the first row of the table in a leaf begins, which goes to the leaf's end; past all text when it holds none.
Offset startOfTable(const CVKAST::Document& document, const Block& leaf)
{
    if (leaf.type != BlockType::Paragraph)
        return std::numeric_limits<Offset>::max();
    const auto line = [&](std::uint32_t index) {
        const ContentLine& one = document.lines[leaf.firstLine + index];
        return document.slice({one.begin, one.end});
    };
    for (std::uint32_t i = 1; i < leaf.lineCount; ++i) {
        if (isDelimiterRow(line(i)) && cellsInRow(line(i)) == cellsInRow(line(i - 1)))
            return document.lines[leaf.firstLine + i - 1].begin;
    }
    return std::numeric_limits<Offset>::max();
}

/// Reads the leaves that hold links once more, into tokens: the parse keeps of a link no more than a note needs.
class LinkList {
public:
    explicit LinkList(const CVKAST::Document& document)
        : document_(document), parser_(document.references, {}), places_(listDefinitions(document).places)
    { }

    std::vector<CVKLink> make()
    {
        for (const Block& leaf : document_.blocks) {
            const bool holdsInlines = leaf.type == BlockType::Paragraph || leaf.type == BlockType::Heading;
            if (holdsInlines
                && (anyBeginsIn(document_.links, leaf.range) || anyBeginsIn(document_.wikiLinks, leaf.range)))
                addLinksOf(leaf);
        }
        return std::move(links_);
    }

private:
    void addLinksOf(const Block& leaf)
    {
        const std::size_t first = links_.size();
        content_.assign(document_, leaf);
        parser_.parseTokens(content_, leaf.inlineBegin(), tokens_);
        for (const InlineToken& token : tokens_.tokens)
            take(token);
        const Offset table = startOfTable(document_, leaf);
        for (std::size_t i = first; i < links_.size(); ++i)
            links_[i].isInTableRow = links_[i].range.end() > table;
    }

    void take(const InlineToken& token)
    {
        switch (token.type) {
        case TokenType::LinkOpen:
        case TokenType::ImageOpen:
            open_.push_back({links_.size(), token});
            links_.emplace_back();
            break;
        case TokenType::LinkClose:
        case TokenType::ImageClose:
            finish(links_[open_.back().link], open_.back().token, token);
            open_.pop_back();
            break;
        case TokenType::Autolink:
        case TokenType::EmailAutolink:
            addAutolink(token);
            break;
        case TokenType::WikiLink:
            addWikiLink(token, tokens_.wikiLinks[token.index]);
            break;
        default:
            break;
        }
    }

    void finish(CVKLink& link, const InlineToken& open, const InlineToken& close) const
    {
        const bool image = open.type == TokenType::ImageOpen;
        link.range = publicRange(content_.sourceRange(open.begin, close.end));
        link.text = between(open.end, close.begin);
        link.hasText = true;
        const TokenLink& target = tokens_.links[close.index];
        if (target.definition == kNoDefinition) {
            link.form = image ? CVKLinkForm::Image : CVKLinkForm::Inline;
            setDestination(
                link, LinkKind::Inline, content_.sourceRange(target.destination.begin, target.destination.end));
            if (target.hasTitle)
                link.title = between(target.title.begin, target.title.end);
            return;
        }
        link.form = image ? CVKLinkForm::ImageReference : CVKLinkForm::Reference;
        link.shape = shapeOf(content_.text().substr(close.begin, close.end - close.begin));
        link.definition = places_[target.definition];
        setDestination(link, LinkKind::Reference, document_.references.definition(target.definition).destination);
    }

    static CVKReferenceShape shapeOf(std::string_view tail) noexcept
    {
        if (tail.size() == 1)
            return CVKReferenceShape::Shortcut;
        return tail == "][]" ? CVKReferenceShape::Collapsed : CVKReferenceShape::Full;
    }

    void addAutolink(const InlineToken& token)
    {
        CVKLink& link = links_.emplace_back();
        link.form = CVKLinkForm::Autolink;
        link.range = publicRange(content_.sourceRange(token.begin - 1, token.end + 1));
        setDestination(link, token.type == TokenType::Autolink ? LinkKind::Autolink : LinkKind::EmailAutolink,
            content_.sourceRange(token.begin, token.end));
        link.text = link.destination;
    }

    void addWikiLink(const InlineToken& token, const TokenWikiLink& written)
    {
        CVKLink& link = links_.emplace_back();
        link.form = CVKLinkForm::Wiki;
        link.isEmbed = written.isEmbed;
        link.range = publicRange(content_.sourceRange(token.begin - (written.isEmbed ? 1 : 0), token.end));
        link.hasText = written.hasAlias;
        link.text = written.hasAlias ? between(written.alias.begin, written.alias.end)
                                     : between(written.title.end, written.title.end);
        link.destination = between(written.title.begin, written.title.end);
        link.decodedDestination
            = decodedWikiText(document_.slice(content_.sourceRange(written.title.begin, written.title.end)));
    }

    void setDestination(CVKLink& link, LinkKind kind, SourceRange range) const
    {
        link.destination = publicRange(range);
        link.decodedDestination = decodedDestination(kind, document_.slice(range));
    }

    /// What stands between two places of the content, ends of lines whole and with what begins the next line.
    CVKRange between(Offset begin, Offset end) const
    {
        return publicRange({content_.sourceOffset(begin), content_.sourceOffset(end)});
    }

    struct OpenLink {
        std::size_t link = 0; ///< in `links_`
        InlineToken token;
    };

    const CVKAST::Document& document_;
    InlineParser parser_;
    const std::vector<std::size_t> places_;
    LeafContent content_;
    InlineTokens tokens_;
    std::vector<OpenLink> open_;
    std::vector<CVKLink> links_;
};

} // namespace

std::vector<CVKLink> listLinks(const CVKAST::Document& document)
{
    return LinkList(document).make();
}

} // namespace tarn::corvel
