#pragma once

#include "tarnmodel/corvel/blocks/LeafContent.h"
#include "tarnmodel/corvel/inlines/InlineParser.h"

#include <string>
#include <string_view>

namespace tarn::corvel {

/// Writes the inlines of leaves as HTML. Reuse one object for many leaves.
class InlineHtml {
public:
    InlineHtml(const CVKAST::Document& document, InlineOptions options);

    void append(std::string& html, const Block& leaf);

private:
    void appendToken(std::string& html, const InlineToken& token);
    void appendDescriptionToken(std::string& html, const InlineToken& token);
    void appendText(std::string& html, const InlineToken& token) const;
    void appendAutolink(std::string& html, const InlineToken& token) const;
    void appendDelimiters(std::string& html, const DelimiterRun& run) const;
    void openLink(std::string& html, const TokenLink& link) const;
    void closeImage(std::string& html, const TokenLink& link) const;
    void appendTitle(std::string& html, const TokenLink& link) const;
    std::string destinationOf(const TokenLink& link) const;
    std::string_view slice(SourceRange range) const { return content_.text().substr(range.begin, range.length()); }

    const CVKAST::Document& document_;
    LeafContent content_;
    InlineTokens tokens_;
    InlineParser parser_;
    std::size_t imageDepth_ = 0; ///< within a description markup is dropped
};

} // namespace tarn::corvel
