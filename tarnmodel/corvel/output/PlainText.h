#pragma once

#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/blocks/LeafContent.h"
#include "tarnmodel/corvel/inlines/InlineParser.h"
#include "tarnmodel/corvel/inlines/InlineTokens.h"

#include <cstdint>
#include <string>

namespace tarn::corvel {

/// The text of lines as a reader sees it, without markup. Reuse one object for several leaves.
class PlainText {
public:
    explicit PlainText(const CVKAST::Document& document);

    /// Makes ready for the lines of a leaf.
    void setLeaf(const Block& leaf);
    /// The plain text of the leaf's line (counted from 0), trimmed. Nothing of HTML blocks, definitions and breaks.
    std::string line(std::uint32_t index) const;

private:
    void appendToken(std::string& result, const InlineToken& token, SourceRange line) const;
    void appendCode(std::string& result, SourceRange range) const;

    const CVKAST::Document& document_;
    const Block* leaf_ = nullptr;
    LeafContent content_;
    InlineTokens tokens_;
    InlineParser parser_;
};

} // namespace tarn::corvel
