#include "tarnmodel/corvel/blocks/BlockParser.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"

#include <algorithm>

namespace tarn::corvel {

namespace {

constexpr std::uint32_t kCodeIndent = 4;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// A line that begins with any other byte, indented by less than a code block, opens nothing.
constexpr ByteSet kBlockStarts(">#`~<=-*_+0123456789");

} // namespace

BlockParser::BlockParser(CVKAST::Document& document) : document_(document), text_(document.text) { }

void BlockParser::parse()
{
    document_.blocks.emplace_back();
    document_.lines.reserve(text_.size() / 40);
    open_.push_back(0);
    nextLine_ = text_.starts_with(kByteOrderMark) ? static_cast<Offset>(kByteOrderMark.size()) : 0;
    nextLineFeed_ = static_cast<Offset>(std::min(text_.find('\n'), text_.size()));
    nextReturn_ = static_cast<Offset>(std::min(text_.find('\r'), text_.size()));
    while (takeLine())
        processLine();
    closeLeaf();
    while (!open_.empty())
        closeContainer();
}

void BlockParser::processLine()
{
    quotesPassed_ = 0;
    thematicBreaks_.startLine();
    matched_ = continueContainers();
    allMatched_ = matched_ == open_.size();
    findInk();
    if (allMatched_ && leaf_ != kNoBlock && continueLeaf())
        return;
    if (!openBlocks())
        takeRestOfLine();
}

// Continuing ----------------------------------------------------------------------------------------------------------

std::size_t BlockParser::continueContainers()
{
    std::size_t depth = 1;
    for (; depth < open_.size(); ++depth) {
        if (atLineEnd())
            return continueOverBlankLine(depth);
        findInk();
        Block& container = block(open_[depth]);
        if (container.type == BlockType::Quote) {
            if (indent_ >= kCodeIndent || blank_ || text_[ink_] != '>')
                break;
            takeQuoteMark();
            container.lastSourceLine = lineNumber_;
            ++quotesPassed_;
        } else if (container.type == BlockType::ListItem && !continueItem(container)) {
            break;
        }
    }
    return depth;
}

std::size_t BlockParser::continueOverBlankLine(std::size_t depth) const noexcept
{
    // Without a look at each of them, else a deep list before many blank lines takes quadratic time: lists and items
    // go on, quotes end, and only the innermost item can be one that holds nothing yet.
    if (quotesPassed_ < openQuotes_.size())
        return openQuotes_[quotesPassed_];
    const Block& last = document_.blocks[open_.back()];
    const bool lastIsEmpty = last.type == BlockType::ListItem && last.firstChild == kNoBlock;
    return std::max(depth, open_.size() - (lastIsEmpty ? 1 : 0));
}

void BlockParser::takeQuoteMark() noexcept
{
    advanceToInk();
    advance(1);
    if (!atLineEnd() && isSpaceOrTab(text_[offset_]))
        advanceColumns(1);
}

bool BlockParser::continueItem(const Block& item) noexcept
{
    if (indent_ >= item.indent) {
        advanceColumns(item.indent);
        return true;
    }
    if (!blank_ || item.firstChild == kNoBlock)
        return false;
    advanceToInk();
    return true;
}

/// Whether the open leaf took the line. A leaf that ends here is closed.
bool BlockParser::continueLeaf()
{
    Block& current = leaf();
    switch (current.type) {
    case BlockType::FencedCode:
        continueFence(current);
        return true;
    case BlockType::IndentedCode:
        if (indent_ >= kCodeIndent)
            advanceColumns(kCodeIndent);
        else if (blank_)
            advanceToInk();
        else
            break;
        addRestOfLine();
        return true;
    case BlockType::Html:
        if (blank_ && current.level >= 6)
            break;
        addRestOfLine();
        if (endsHtmlBlock(current.level, fromInk()))
            closeLeaf();
        return true;
    default:
        if (blank_)
            break;
        return false;
    }
    closeLeaf();
    return false;
}

void BlockParser::continueFence(Block& fence)
{
    if (indent_ < kCodeIndent && !blank_ && text_[ink_] == fence.marker
        && isFenceClosing(fromInk(), fence.marker, fence.number)) {
        fence.lastSourceLine = lineNumber_;
        fence.range.end = lineEnd_;
        closeLeaf();
        return;
    }
    for (std::uint32_t i = 0; i < fence.indent && !atLineEnd() && isSpaceOrTab(text_[offset_]); ++i)
        advanceColumns(1);
    addRestOfLine();
    fence.lastSourceLine = lineNumber_;
    fence.range.end = lineEnd_;
}

void BlockParser::takeRestOfLine()
{
    const bool lazy = !allMatched_ && !blank_ && paragraphIsOpen();
    if (!lazy)
        closeUnmatched();
    if (blank_)
        return;
    if (!paragraphIsOpen())
        appendLeaf(BlockType::Paragraph);
    advanceToInk();
    addLine(ink_, lineEnd_);
}

// Opening -------------------------------------------------------------------------------------------------------------

/// Whether a leaf was opened that took the rest of the line.
bool BlockParser::openBlocks()
{
    for (;; findInk()) {
        if (blank_ || (indent_ < kCodeIndent && !kBlockStarts.contains(text_[ink_])))
            return false;
        if (indent_ >= kCodeIndent)
            return openIndentedCode();
        if (openQuote())
            continue;
        if (openHeading() || openFence() || openHtml() || underlineParagraph() || openThematicBreak())
            return true;
        if (!openItem())
            return false;
    }
}

bool BlockParser::openQuote()
{
    if (text_[ink_] != '>')
        return false;
    closeUnmatched();
    appendContainer(BlockType::Quote);
    openQuotes_.push_back(open_.size() - 1);
    takeQuoteMark();
    return true;
}

bool BlockParser::openHeading()
{
    const int level = scanHeadingMarks(fromInk());
    if (level == 0)
        return false;
    closeUnmatched();
    Block& heading = block(appendLeaf(BlockType::Heading));
    heading.level = static_cast<std::uint8_t>(level);

    Offset begin = ink_ + static_cast<Offset>(level);
    Offset end = lineEnd_;
    const auto trimEnd = [&] {
        while (end > begin && isSpaceOrTab(text_[end - 1]))
            --end;
    };
    while (begin < end && isSpaceOrTab(text_[begin]))
        ++begin;
    trimEnd();
    Offset closing = end;
    while (closing > begin && text_[closing - 1] == '#')
        --closing;
    if (closing == begin || isSpaceOrTab(text_[closing - 1])) {
        end = closing;
        trimEnd();
    }
    addLine(begin, end);
    leaf().range.end = lineEnd_;
    closeLeaf();
    return true;
}

bool BlockParser::openFence()
{
    const std::size_t length = scanFenceOpening(fromInk());
    if (length == 0)
        return false;
    closeUnmatched();
    Block& fence = block(appendLeaf(BlockType::FencedCode));
    fence.marker = text_[ink_];
    fence.number = static_cast<std::uint32_t>(length);
    fence.indent = indent_;
    Offset begin = ink_ + static_cast<Offset>(length);
    Offset end = lineEnd_;
    while (begin < end && isSpaceOrTab(text_[begin]))
        ++begin;
    while (end > begin && isSpaceOrTab(text_[end - 1]))
        --end;
    fence.info = {begin, end};
    return true;
}

bool BlockParser::openHtml()
{
    const int kind = text_[ink_] == '<' ? scanHtmlBlockStart(fromInk()) : 0;
    if (kind == 0 || (kind == 7 && paragraphIsOpen()))
        return false;
    closeUnmatched();
    block(appendLeaf(BlockType::Html)).level = static_cast<std::uint8_t>(kind);
    addRestOfLine();
    if (endsHtmlBlock(kind, fromInk()))
        closeLeaf();
    return true;
}

bool BlockParser::underlineParagraph()
{
    if (!allMatched_ || !paragraphIsOpen())
        return false;
    const int level = scanHeadingUnderline(fromInk());
    if (level == 0 || (startsDefinition() && !splitDefinitions()))
        return false;
    Block& heading = leaf();
    heading.type = BlockType::Heading;
    heading.level = static_cast<std::uint8_t>(level);
    heading.setext = true;
    heading.lastSourceLine = lineNumber_;
    heading.range.end = lineEnd_;
    closeLeaf();
    return true;
}

bool BlockParser::openThematicBreak()
{
    if (!thematicBreaks_.scan(fromInk()))
        return false;
    closeUnmatched();
    appendLeaf(BlockType::ThematicBreak);
    closeLeaf();
    return true;
}

bool BlockParser::openItem()
{
    const auto marker = scanListMarker(fromInk());
    if (!marker)
        return false;
    if (allMatched_ && paragraphIsOpen()) {
        // Only an item with ink, and a list that starts at 1, may interrupt a paragraph.
        const std::string_view rest = fromInk().substr(marker->length);
        const bool hasInk = rest.find_first_not_of(" \t") != std::string_view::npos;
        const bool ordered = marker->kind == '.' || marker->kind == ')';
        if (!hasInk || (ordered && marker->number != 1))
            return false;
    }
    closeUnmatched();
    const std::uint32_t indent = indent_;
    if (block(open_.back()).type == BlockType::List && block(open_.back()).marker != marker->kind)
        closeContainer();
    if (block(open_.back()).type != BlockType::List) {
        Block& list = block(appendContainer(BlockType::List));
        list.marker = marker->kind;
        list.number = marker->number;
    }
    const BlockIndex item = appendContainer(BlockType::ListItem);
    block(item).marker = marker->kind;
    block(item).indent = indent + advanceOverMarker(marker->length);
    return true;
}

/// How many columns the marker and the blanks after it take.
std::uint32_t BlockParser::advanceOverMarker(std::size_t markerLength)
{
    advanceToInk();
    advance(static_cast<Offset>(markerLength));
    findInk();
    const auto length = static_cast<std::uint32_t>(markerLength);
    if (blank_ || indent_ > kCodeIndent) { // an empty line, or code one blank after the marker
        advanceColumns(1);
        return length + 1;
    }
    const std::uint32_t blanks = indent_;
    advanceToInk();
    return length + blanks;
}

bool BlockParser::openIndentedCode()
{
    if (paragraphIsOpen())
        return false;
    closeUnmatched();
    appendLeaf(BlockType::IndentedCode);
    advanceColumns(kCodeIndent);
    addRestOfLine();
    return true;
}

} // namespace tarn::corvel
