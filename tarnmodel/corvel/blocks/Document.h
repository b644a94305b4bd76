#pragma once

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/blocks/LinkReferences.h"
#include "tarnmodel/corvel/scanning/SourceRange.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace tarn {

namespace corvel {

enum class BlockType : std::uint8_t {
    Document,
    Quote,
    List,
    ListItem,
    Paragraph,
    Heading,
    ThematicBreak,
    FencedCode,
    IndentedCode,
    Html,
    Definitions, ///< link reference definitions; shows nothing
};

enum class TodoState : std::uint8_t { None, Open, Done };

using BlockIndex = std::uint32_t;
inline constexpr BlockIndex kNoBlock = 0xFFFFFFFF;

/// What one source line adds to a leaf: bytes without prefix and line end, after `padding` blanks of a split tab.
struct ContentLine {
    Offset begin = 0;
    Offset end = 0;
    std::uint8_t padding = 0;
};

/// A node of the block tree; nodes lie in one vector in order of their start.
struct Block {
    BlockType type = BlockType::Document;
    std::uint8_t level = 0;           ///< of a heading, 1 to 6; of an HTML block its kind, 1 to 7
    bool setext = false;              ///< a heading by underline
    bool tight = true;                ///< of a list: its paragraphs show without <p>
    TodoState todo = TodoState::None; ///< of a paragraph that begins with a to-do box
    char marker = 0;                  ///< of a list and its items: - + * . ) and of a fence: ` ~
    std::uint32_t number = 0;         ///< of an ordered list: where it starts; of a fence: its length
    std::uint32_t indent = 0;         ///< of an item: columns of its content; of a fence: its own
    BlockIndex parent = kNoBlock;
    BlockIndex firstChild = kNoBlock;
    BlockIndex lastChild = kNoBlock;
    BlockIndex next = kNoBlock;
    std::uint32_t firstLine = 0; ///< of a leaf, its lines
    std::uint32_t lineCount = 0;
    std::uint32_t firstSourceLine = 0; ///< counted from 1
    std::uint32_t lastSourceLine = 0;
    SourceRange range; ///< of a leaf: from its first mark to the end of its last line, line ending excluded
    SourceRange info;  ///< of a fence: the info string

    /// Where its inlines begin in its content: after a to-do box.
    std::size_t inlineBegin() const noexcept { return todo == TodoState::None ? 0 : 3; }
};

enum class LinkKind : std::uint8_t { Inline, Reference, Autolink, EmailAutolink };

/// A link or image.
struct Link {
    SourceRange range;
    SourceRange destination; ///< as written, without < and >; of a reference that of the definition
    DefinitionIndex definition = kNoDefinition;
    LinkKind kind = LinkKind::Inline;
    bool image = false;
};

struct WikiLink {
    SourceRange range; ///< with the brackets
    SourceRange title; ///< as written, trimmed
    SourceRange alias; ///< as written, trimmed; empty when there is none
    bool hasAlias = false;
    BlockIndex block = kNoBlock;
};

struct Hashtag {
    SourceRange range; ///< with its hash marks
    SourceRange name;  ///< between them, or after the one
    BlockIndex block = kNoBlock;
};

} // namespace corvel

/// The parse of a text. All members are set before it is shared, but the summary, which is made on first use.
struct CVKAST::Document {
    std::string text;
    std::vector<corvel::Block> blocks; ///< [0] is the document
    std::vector<corvel::ContentLine> lines;
    corvel::LinkReferences references;
    std::vector<corvel::Link> links; ///< in order of their start, as the two below
    std::vector<corvel::WikiLink> wikiLinks;
    std::vector<corvel::Hashtag> hashtags;

    mutable std::once_flag summaryOnce;
    mutable CVKTextSummary summary;

    std::string_view slice(corvel::SourceRange range) const noexcept
    {
        return std::string_view(text).substr(range.begin, range.end - range.begin);
    }
};

namespace corvel {

/// Raises `NSInvalidArgumentException` for more than 2 GiB.
void requireParsableLength(std::size_t bytes);
/// Parses blocks and inlines. Raises `NSInvalidArgumentException` for more than 2 GiB.
std::shared_ptr<const CVKAST::Document> parseDocument(std::string&& text);

} // namespace corvel

} // namespace tarn
