#pragma once

#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/blocks/LeafContent.h"
#include "tarnmodel/corvel/inlines/InlineTokens.h"
#include "tarnmodel/corvel/scanning/HtmlScanner.h"
#include "tarnmodel/corvel/scanning/LinkScanner.h"

#include <array>
#include <string_view>
#include <vector>

namespace tarn::corvel {

/// What is read beside CommonMark.
struct InlineOptions {
    bool wikiLinks = true;
    bool hashtags = true;
    bool highlights = false; ///< `~~` and `==` as emphasis marks; seen in tokens only
};

/// What a document keeps of its inlines, in source ranges.
struct InlineResults {
    std::vector<Link>& links;
    std::vector<WikiLink>& wikiLinks;
    std::vector<Hashtag>& hashtags;
};

/// The inline stage: one scan of a leaf's content from left to right.
///
/// Without tokens only links, wiki links and hashtags are found, and emphasis, which none of them depends on, is not
/// looked at. Reuse one object for many leaves.
class InlineParser {
public:
    InlineParser(const LinkReferences& references, InlineOptions options);

    /// Appends what is found to `results`, links in order of their end. Starts at `begin`, a content offset.
    void parse(const LeafContent& content, std::size_t begin, BlockIndex block, InlineResults results);
    /// The pieces of the content.
    void parseTokens(const LeafContent& content, std::size_t begin, InlineTokens& tokens);

private:
    struct Bracket {
        std::size_t begin = 0; ///< of its mark, `[` or `![`
        std::size_t textBegin = 0;
        std::uint32_t token = 0;
        RunIndex delimiters = kNone; ///< the top of the stack below it
        bool image = false;
        bool bracketInside = false;
    };
    struct Target {
        LinkKind kind = LinkKind::Inline;
        TokenLink link;
        std::size_t end = 0;
    };

    void start(const LeafContent& content, std::size_t begin);
    void scan();
    std::size_t take(std::size_t at);
    std::size_t takeBackslash(std::size_t at);
    std::size_t takeBackticks(std::size_t at);
    std::size_t takeAngle(std::size_t at);
    std::size_t takeOpeningBracket(std::size_t at);
    std::size_t takeClosingBracket(std::size_t at);
    std::size_t takeHashMark(std::size_t at);
    std::size_t takeColon(std::size_t at);
    std::size_t takeEntity(std::size_t at);
    std::size_t takeLineEnd(std::size_t at);
    std::size_t takeDelimiters(std::size_t at);
    std::size_t takeWikiLink(std::size_t at, const ScannedWikiLink& link);

    std::size_t findClosingBackticks(std::size_t from, std::size_t length);
    bool findTarget(const Bracket& opener, std::size_t at, Target& target) const;
    void finishLink(const Bracket& opener, std::size_t at, const Target& target);
    void addLink(LinkKind kind, bool image, std::size_t begin, std::size_t end, const TokenLink& link);

    /// Whether a "!" that means itself stands before the bracket.
    bool isMarked(std::size_t bracket) const noexcept { return bracket > plainFrom_ && text_[bracket - 1] == '!'; }
    std::string_view slice(SourceRange range) const { return text_.substr(range.begin, range.length()); }
    /// Text up to `end` becomes a token; what follows `next` is plain again.
    void flushText(std::size_t end, std::size_t next);
    void addToken(TokenType type, std::size_t begin, std::size_t end, std::uint32_t index = 0);
    /// An atomic piece from `at` to `end`; its token has the inner range.
    std::size_t takeAtom(TokenType type, std::size_t at, std::size_t end, std::size_t innerBegin, std::size_t innerEnd);

    const LinkReferences& references_;
    const InlineOptions options_;

    const LeafContent* content_ = nullptr;
    std::string_view text_;
    std::size_t begin_ = 0;
    BlockIndex block_ = kNoBlock;
    InlineResults* results_ = nullptr;
    InlineTokens* tokens_ = nullptr;

    std::size_t textBegin_ = 0; ///< of the text that is no token yet
    std::size_t plainFrom_ = 0; ///< no escape or atom ends after it
    std::vector<Bracket> brackets_;
    std::size_t inactiveBelow_ = 0;            ///< links do not nest: openers of `brackets_` below it make no link
    std::vector<std::size_t> lastRunOfLength_; ///< of backticks, once a search has seen them all
    bool backticksSeen_ = false;
    std::size_t urlEnd_ = 0; ///< no hashtag starts before it
    MarkupScanner markup_;
};

} // namespace tarn::corvel
