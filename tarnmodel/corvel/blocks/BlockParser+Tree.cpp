#include "tarnmodel/corvel/blocks/BlockParser.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"

#include <algorithm>

// Making the tree: appending blocks, and what is decided when one closes.

namespace tarn::corvel {

BlockIndex BlockParser::append(BlockType type)
{
    closeLeaf();
    if (block(open_.back()).type == BlockType::List && type != BlockType::ListItem)
        closeContainer();
    const auto index = static_cast<BlockIndex>(document_.blocks.size());
    const BlockIndex parent = open_.back();
    Block& added = document_.blocks.emplace_back();
    added.type = type;
    added.parent = parent;
    added.firstLine = static_cast<std::uint32_t>(document_.lines.size());
    added.firstSourceLine = added.lastSourceLine = lineNumber_;
    added.range = {ink_, lineEnd_};
    Block& above = block(parent);
    if (above.lastChild == kNoBlock)
        above.firstChild = index;
    else
        block(above.lastChild).next = index;
    above.lastChild = index;
    return index;
}

BlockIndex BlockParser::appendContainer(BlockType type)
{
    const BlockIndex index = append(type);
    open_.push_back(index);
    matched_ = open_.size();
    allMatched_ = true;
    return index;
}

BlockIndex BlockParser::appendLeaf(BlockType type)
{
    leaf_ = append(type);
    return leaf_;
}

void BlockParser::addLine(Offset begin, Offset end)
{
    document_.lines.push_back({begin, end, 0});
    Block& current = leaf();
    ++current.lineCount;
    current.lastSourceLine = lineNumber_;
    current.range.end = end;
}

void BlockParser::addRestOfLine()
{
    Block& current = leaf();
    std::uint8_t padding = 0;
    if (tabIsSplit_) {
        padding = static_cast<std::uint8_t>(4 - column_ % 4);
        ++offset_;
    }
    document_.lines.push_back({offset_, lineEnd_, padding});
    ++current.lineCount;
    if (blank_)
        return;
    current.lastSourceLine = lineNumber_;
    current.range.end = lineEnd_;
}

void BlockParser::closeUnmatched()
{
    if (allMatched_)
        return;
    closeLeaf();
    while (open_.size() > matched_)
        closeContainer();
    allMatched_ = true;
}

void BlockParser::closeLeaf()
{
    if (leaf_ == kNoBlock)
        return;
    if (leaf().type == BlockType::Paragraph)
        closeParagraph();
    else if (leaf().type == BlockType::IndentedCode)
        closeIndentedCode(leaf());
    if (leaf_ != kNoBlock)
        noteLastLine(leaf());
    leaf_ = kNoBlock;
}

void BlockParser::closeContainer()
{
    Block& container = block(open_.back());
    if (container.type == BlockType::List)
        decideTightness(container);
    else if (container.type == BlockType::Quote)
        openQuotes_.pop_back();
    noteLastLine(container);
    open_.pop_back();
}

void BlockParser::noteLastLine(Block& closed)
{
    if (closed.parent == kNoBlock)
        return;
    Block& parent = block(closed.parent);
    parent.lastSourceLine = std::max(parent.lastSourceLine, closed.lastSourceLine);
}

bool BlockParser::startsDefinition()
{
    const ContentLine& first = document_.lines[leaf().firstLine];
    return first.begin < first.end && text_[first.begin] == '[';
}

/// Takes the definitions off the front of the open paragraph. Whether a paragraph is left.
bool BlockParser::splitDefinitions()
{
    content_.assign(document_, leaf());
    const std::size_t taken = document_.references.takeDefinitions(content_);
    if (taken == 0)
        return true;
    Block& definitions = leaf();
    definitions.type = BlockType::Definitions;
    const bool all = taken == content_.text().size();
    const std::uint32_t lineCount = definitions.lineCount;
    std::uint32_t taking = lineCount;
    if (!all) {
        const Offset rest = content_.sourceOffset(taken);
        taking = 0;
        while (document_.lines[definitions.firstLine + taking].begin < rest)
            ++taking;
    }
    const std::uint32_t lastSourceLine = definitions.lastSourceLine;
    definitions.lineCount = taking;
    definitions.lastSourceLine = definitions.firstSourceLine + taking - 1;
    definitions.range.end = document_.lines[definitions.firstLine + taking - 1].end;
    const BlockIndex definitionsIndex = leaf_;
    noteLastLine(definitions);
    leaf_ = kNoBlock;
    if (all)
        return false;

    Block& rest = block(appendLeaf(BlockType::Paragraph));
    const Block& before = block(definitionsIndex);
    rest.firstLine = before.firstLine + taking;
    rest.lineCount = lineCount - taking;
    rest.firstSourceLine = before.lastSourceLine + 1;
    rest.lastSourceLine = lastSourceLine;
    rest.range = {document_.lines[rest.firstLine].begin, document_.lines[rest.firstLine + rest.lineCount - 1].end};
    return true;
}

void BlockParser::closeParagraph()
{
    if (startsDefinition() && !splitDefinitions())
        return;
    Block& paragraph = leaf();
    const Block& parent = block(paragraph.parent);
    if (parent.type == BlockType::ListItem && isFirstShown(parent, leaf_))
        paragraph.todo = todoState(document_.lines[paragraph.firstLine]);
}

/// Whether nothing but definitions stands before it.
bool BlockParser::isFirstShown(const Block& parent, BlockIndex child)
{
    BlockIndex first = parent.firstChild;
    while (first != child && block(first).type == BlockType::Definitions)
        first = block(first).next;
    return first == child;
}

TodoState BlockParser::todoState(const ContentLine& line) const noexcept
{
    const std::string_view text = text_.substr(line.begin, line.end - line.begin);
    if (text.size() < 3 || text[0] != '[' || text[2] != ']' || (text.size() > 3 && !isSpaceOrTab(text[3])))
        return TodoState::None;
    if (text[1] == ' ')
        return TodoState::Open;
    return text[1] == 'x' || text[1] == 'X' ? TodoState::Done : TodoState::None;
}

void BlockParser::closeIndentedCode(Block& code)
{
    const auto isBlankLine = [&](const ContentLine& line) {
        const auto text = text_.substr(line.begin, line.end - line.begin);
        return std::all_of(text.begin(), text.end(), isSpaceOrTab);
    };
    while (code.lineCount > 0 && isBlankLine(document_.lines.back())) {
        document_.lines.pop_back();
        --code.lineCount;
    }
}

/// A list is loose when a blank line stands between two items, or between two blocks of one item.
void BlockParser::decideTightness(Block& list)
{
    const auto gap
        = [&](const Block& upper, const Block& lower) { return lower.firstSourceLine > upper.lastSourceLine + 1; };
    for (BlockIndex i = list.firstChild; i != kNoBlock; i = block(i).next) {
        const Block& item = block(i);
        if (item.next != kNoBlock && gap(item, block(item.next))) {
            list.tight = false;
            return;
        }
        for (BlockIndex c = item.firstChild; c != kNoBlock && block(c).next != kNoBlock; c = block(c).next) {
            const Block& lower = block(block(c).next);
            const bool shown = block(c).type != BlockType::Definitions
                && (lower.type != BlockType::Definitions || item.next != kNoBlock);
            if (shown && gap(block(c), lower)) {
                list.tight = false;
                return;
            }
        }
    }
}

} // namespace tarn::corvel
