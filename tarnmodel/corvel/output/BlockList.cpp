#include "tarnmodel/corvel/output/BlockList.h"

#include "tarnmodel/corvel/scanning/SourceLines.h"

#include <cstdint>
#include <optional>

namespace tarn::corvel {

namespace {

CVKBlock::Kind kindOf(const Block& block) noexcept
{
    switch (block.type) {
    case BlockType::Heading:
        return CVKBlock::Kind::Heading;
    case BlockType::Paragraph:
        return CVKBlock::Kind::Paragraph;
    case BlockType::Html:
        return CVKBlock::Kind::Html;
    case BlockType::Definitions:
        return CVKBlock::Kind::Definitions;
    case BlockType::FencedCode:
    case BlockType::IndentedCode:
        return CVKBlock::Kind::Code;
    default:
        return CVKBlock::Kind::Other;
    }
}

Offset endOfBlock(const CVKAST::Document& document, const Block& block)
{
    if (block.type != BlockType::Quote && block.type != BlockType::List)
        return block.range.end;
    // Of what holds others the parse knows the last line by its number only.
    SourceRange line = lineAt(document.text, block.range.begin);
    for (std::uint32_t number = block.firstSourceLine; number < block.lastSourceLine; ++number) {
        if (const auto next = startOfNextLine(document.text, line))
            line = lineAt(document.text, *next);
    }
    return line.end;
}

} // namespace

std::vector<CVKBlock> listTopLevelBlocks(const CVKAST::Document& document, std::size_t limit)
{
    std::vector<CVKBlock> blocks;
    for (BlockIndex i = document.blocks[0].firstChild; i != kNoBlock && blocks.size() < limit;) {
        const Block& block = document.blocks[i];
        CVKBlock& listed = blocks.emplace_back();
        listed.kind = kindOf(block);
        listed.level = block.type == BlockType::Heading ? block.level : 0;
        listed.isSetext = block.setext;
        listed.range = {block.range.begin, endOfBlock(document, block) - block.range.begin};
        i = block.next;
    }
    return blocks;
}

} // namespace tarn::corvel
