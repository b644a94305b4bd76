#pragma once

#include "tarnmodel/corvel/blocks/LinkReferences.h"
#include "tarnmodel/corvel/inlines/Emphasis.h"
#include "tarnmodel/corvel/scanning/SourceRange.h"
#include "tarnmodel/corvel/scanning/WikiLinkScanner.h"

#include <cstdint>
#include <vector>

namespace tarn::corvel {

enum class TokenType : std::uint8_t {
    Text, ///< as it stands
    Entity,
    SoftBreak,
    HardBreak,
    Code, ///< the range between the backticks
    Html,
    Autolink, ///< the range between the angle brackets
    EmailAutolink,
    LinkOpen, ///< index: into `links`
    LinkClose,
    ImageOpen, ///< index: into `links`
    ImageClose,
    Delimiters, ///< index: run of `emphasis`
    WikiLink,   ///< index: into `wikiLinks`
    Hashtag,
};

/// A piece of a leaf's content, in order; opening and closing pieces nest.
struct InlineToken {
    TokenType type = TokenType::Text;
    Offset begin = 0; ///< in the content
    Offset end = 0;
    std::uint32_t index = 0;
};

/// Where a link token leads; ranges of the content.
struct TokenLink {
    SourceRange destination;
    SourceRange title;
    bool hasTitle = false;
    DefinitionIndex definition = kNoDefinition; ///< of a reference; then it holds destination and title
};

struct TokenWikiLink : ScannedWikiLink {
    bool isEmbed = false; ///< a "!" stands before it
};

/// What a leaf is made of, flat. Reuse one object for many leaves.
struct InlineTokens {
    std::vector<InlineToken> tokens;
    std::vector<TokenLink> links;
    std::vector<TokenWikiLink> wikiLinks;
    DelimiterStack emphasis;

    void clear()
    {
        tokens.clear();
        links.clear();
        wikiLinks.clear();
        emphasis.clear();
    }
};

} // namespace tarn::corvel
