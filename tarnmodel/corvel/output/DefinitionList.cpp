#include "tarnmodel/corvel/blocks/LeafContent.h"
#include "tarnmodel/corvel/output/LinkList.h"
#include "tarnmodel/corvel/scanning/CharacterClasses.h"
#include "tarnmodel/corvel/scanning/LinkScanner.h"
#include "tarnmodel/corvel/scanning/SourceLines.h"

namespace tarn::corvel {

namespace {

CVKRange rangeBetween(const LeafContent& content, SourceRange range) noexcept
{
    const Offset begin = content.sourceOffset(range.begin);
    return {begin, content.sourceOffset(range.end) - begin};
}

/// From the first bracket to the end of the line that the last ink stands on.
CVKRange rangeOfLines(const CVKAST::Document& document, const LeafContent& content, std::size_t begin, std::size_t end)
{
    while (isBlank(content.text()[end - 1]))
        --end;
    const Offset first = content.sourceOffset(begin);
    return {first, lineAt(document.text, content.sourceOffset(end - 1)).end - first};
}

/// Reads a block of definitions once more: the parse keeps only those that count.
void listDefinitionsOf(const CVKAST::Document& document, const LeafContent& content, ListedDefinitions& listed)
{
    const auto& counting = document.references.definitions();
    for (std::size_t offset = 0; offset < content.text().size();) {
        const auto scanned = scanDefinition(content.text(), offset);
        if (!scanned)
            return;
        CVKLinkDefinition& definition = listed.all.emplace_back();
        definition.range = rangeOfLines(document, content, offset, scanned->end);
        definition.label = rangeBetween(content, scanned->label);
        definition.destination = rangeBetween(content, scanned->destination);
        if (scanned->title)
            definition.title = rangeBetween(content, *scanned->title);
        const std::size_t next = listed.places.size();
        if (next < counting.size() && counting[next].destination.begin == definition.destination.location)
            listed.places.push_back(listed.all.size() - 1);
        offset = scanned->end;
    }
}

} // namespace

ListedDefinitions listDefinitions(const CVKAST::Document& document)
{
    ListedDefinitions listed;
    LeafContent content;
    for (const Block& block : document.blocks) {
        if (block.type != BlockType::Definitions)
            continue;
        content.assign(document, block);
        listDefinitionsOf(document, content, listed);
    }
    for (const Link& link : document.links) {
        if (link.definition != kNoDefinition)
            ++listed.all[listed.places[link.definition]].uses;
    }
    return listed;
}

} // namespace tarn::corvel
