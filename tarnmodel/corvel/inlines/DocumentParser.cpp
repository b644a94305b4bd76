#include "tarnmodel/corvel/blocks/BlockParser.h"
#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/inlines/InlineParser.h"

#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>

namespace tarn::corvel {

namespace {

constexpr std::size_t kLongestText = 0x80000000; // offsets have 32 bits

template <typename T> void sortByStart(std::vector<T>& items, std::size_t from)
{
    const auto before = [](const T& a, const T& b) { return a.range.begin < b.range.begin; };
    const auto begin = items.begin() + static_cast<std::ptrdiff_t>(from);
    if (!std::is_sorted(begin, items.end(), before))
        std::stable_sort(begin, items.end(), before);
}

void parseInlines(CVKAST::Document& document)
{
    LeafContent content;
    InlineParser parser(document.references, {});
    for (std::size_t i = 0; i < document.blocks.size(); ++i) {
        const Block& leaf = document.blocks[i];
        if (leaf.type != BlockType::Paragraph && leaf.type != BlockType::Heading)
            continue;
        content.assign(document, leaf);
        const std::size_t firstLink = document.links.size();
        parser.parse(content, leaf.inlineBegin(), static_cast<BlockIndex>(i),
            {document.links, document.wikiLinks, document.hashtags});
        sortByStart(document.links, firstLink);
    }
}

} // namespace

void requireParsableLength(std::size_t bytes)
{
    if (bytes > kLongestText)
        throw NSException(NSInvalidArgumentException, "A text of more than 2 GiB cannot be parsed.");
}

std::shared_ptr<const CVKAST::Document> parseDocument(std::string&& text)
{
    requireParsableLength(text.size());
    auto document = std::make_shared<CVKAST::Document>();
    document->text = std::move(text);
    BlockParser(*document).parse();
    parseInlines(*document);
    return document;
}

} // namespace tarn::corvel
