#pragma once

#include "tarnmodel/corvel/blocks/BlockStarts.h"
#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/blocks/LeafContent.h"

#include <string_view>
#include <vector>

namespace tarn::corvel {

/// The block stage: reads a text line by line and makes the tree of blocks with the lines of each leaf, and the link
/// reference definitions.
///
/// A stack holds the containers that are open. Each line first continues as many of them as it can, then opens new
/// blocks, then gives its rest to the leaf at the end.
class BlockParser {
public:
    explicit BlockParser(CVKAST::Document& document);
    void parse();

private:
    // The line and the place in it (BlockParser+Line.cpp).
    bool takeLine();
    void findInk() noexcept;
    void advance(Offset bytes) noexcept;
    void advanceColumns(std::uint32_t columns) noexcept;
    void advanceToInk() noexcept;
    std::string_view fromInk() const noexcept { return text_.substr(ink_, lineEnd_ - ink_); }
    bool atLineEnd() const noexcept { return offset_ == lineEnd_; }

    // One line.
    void processLine();
    std::size_t continueContainers();
    std::size_t continueOverBlankLine(std::size_t depth) const noexcept;
    bool continueItem(const Block& item) noexcept;
    bool continueLeaf();
    void continueFence(Block& fence);
    void takeQuoteMark() noexcept;
    void takeRestOfLine();

    // Opening blocks: each gives whether the line opened such a block.
    bool openBlocks();
    bool openQuote();
    bool openHeading();
    bool openFence();
    bool openHtml();
    bool underlineParagraph();
    bool openThematicBreak();
    bool openItem();
    std::uint32_t advanceOverMarker(std::size_t markerLength);
    bool openIndentedCode();

    // The tree (BlockParser+Tree.cpp).
    BlockIndex append(BlockType type);
    BlockIndex appendContainer(BlockType type);
    BlockIndex appendLeaf(BlockType type);
    void addLine(Offset begin, Offset end);
    void addRestOfLine();
    void closeUnmatched();
    void closeLeaf();
    void closeContainer();
    void closeParagraph();
    void closeIndentedCode(Block& code);
    bool startsDefinition();
    bool splitDefinitions();
    bool isFirstShown(const Block& parent, BlockIndex child);
    TodoState todoState(const ContentLine& line) const noexcept;
    void decideTightness(Block& list);
    void noteLastLine(Block& closed);

    Block& block(BlockIndex index) { return document_.blocks[index]; }
    Block& leaf() { return document_.blocks[leaf_]; }
    bool paragraphIsOpen() { return leaf_ != kNoBlock && leaf().type == BlockType::Paragraph; }

    CVKAST::Document& document_;
    std::string_view text_;

    std::vector<BlockIndex> open_;        ///< containers, the document first
    std::vector<std::size_t> openQuotes_; ///< places in `open_` of the quotes
    BlockIndex leaf_ = kNoBlock;          ///< the leaf that may take the next line
    std::size_t matched_ = 0;             ///< how many of `open_` the line has continued
    bool allMatched_ = true;              ///< the containers and the leaf
    std::size_t quotesPassed_ = 0;

    Offset nextLine_ = 0;
    Offset lineBegin_ = 0;
    Offset lineEnd_ = 0;
    Offset nextLineFeed_ = 0; ///< the first at or after the line, so that a text is searched once
    Offset nextReturn_ = 0;
    std::uint32_t lineNumber_ = 0;

    Offset offset_ = 0;
    std::uint32_t column_ = 0;
    bool tabIsSplit_ = false; ///< some columns of the tab at `offset_` are taken
    Offset ink_ = 0;          ///< the first byte from `offset_` on that is no blank
    std::uint32_t inkColumn_ = 0;
    std::uint32_t indent_ = 0;
    bool blank_ = false;

    ThematicBreakScanner thematicBreaks_;
    LeafContent content_;
};

} // namespace tarn::corvel
