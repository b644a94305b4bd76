#include "tarnmodel/corvel/output/HtmlRenderer.h"

#include "tarnmodel/corvel/output/HtmlEscaping.h"
#include "tarnmodel/corvel/output/InlineHtml.h"
#include "tarnmodel/corvel/scanning/Unescape.h"

#include <array>
#include <string_view>

namespace tarn::corvel {

namespace {

/// Walks the tree without recursion: lists and quotes may nest as deep as the text is long.
class HtmlRenderer {
public:
    HtmlRenderer(const CVKAST::Document& document, InlineOptions options)
        : document_(document), inlines_(document, options)
    { }

    std::string render()
    {
        html_.reserve(document_.text.size() + document_.text.size() / 4);
        BlockIndex index = 0;
        while (index != kNoBlock) {
            const Block& block = document_.blocks[index];
            enter(block);
            if (block.firstChild != kNoBlock) {
                index = block.firstChild;
                continue;
            }
            index = leaveUpToNext(index);
        }
        return std::move(html_);
    }

private:
    /// Leaves blocks until one has a sibling to go on with.
    BlockIndex leaveUpToNext(BlockIndex index)
    {
        for (; index != kNoBlock; index = document_.blocks[index].parent) {
            const Block& block = document_.blocks[index];
            leave(block);
            if (block.next != kNoBlock)
                return block.next;
        }
        return kNoBlock;
    }

    void startLine()
    {
        if (!html_.empty() && html_.back() != '\n')
            html_ += '\n';
    }

    void enter(const Block& block)
    {
        switch (block.type) {
        case BlockType::Quote:
            startLine();
            html_ += "<blockquote>\n";
            break;
        case BlockType::List:
            startLine();
            openList(block);
            break;
        case BlockType::ListItem:
            startLine();
            html_ += "<li>";
            break;
        case BlockType::Paragraph:
            paragraph(block);
            break;
        case BlockType::Heading:
            startLine();
            heading(block);
            break;
        case BlockType::ThematicBreak:
            startLine();
            html_ += "<hr />\n";
            break;
        case BlockType::FencedCode:
        case BlockType::IndentedCode:
            startLine();
            code(block);
            break;
        case BlockType::Html:
            startLine();
            verbatim(block);
            startLine();
            break;
        case BlockType::Document:
        case BlockType::Definitions:
            break;
        }
    }

    void leave(const Block& block)
    {
        if (block.type == BlockType::Quote) {
            startLine();
            html_ += "</blockquote>\n";
        } else if (block.type == BlockType::List) {
            html_ += isOrdered(block) ? "</ol>\n" : "</ul>\n";
        } else if (block.type == BlockType::ListItem) {
            html_ += "</li>\n";
        }
    }

    static bool isOrdered(const Block& list) { return list.marker == '.' || list.marker == ')'; }

    void openList(const Block& list)
    {
        if (!isOrdered(list))
            html_ += "<ul>\n";
        else if (list.number == 1)
            html_ += "<ol>\n";
        else
            html_ += "<ol start=\"" + std::to_string(list.number) + "\">\n";
    }

    bool isInTightList(const Block& paragraph) const
    {
        const Block& parent = document_.blocks[paragraph.parent];
        return parent.type == BlockType::ListItem && document_.blocks[parent.parent].tight;
    }

    void paragraph(const Block& block)
    {
        if (isInTightList(block)) {
            inlines_.append(html_, block);
            return;
        }
        startLine();
        html_ += "<p>";
        inlines_.append(html_, block);
        html_ += "</p>\n";
    }

    void heading(const Block& block)
    {
        const std::string level = std::to_string(block.level);
        html_ += "<h" + level + ">";
        inlines_.append(html_, block);
        html_ += "</h" + level + ">\n";
    }

    void code(const Block& block)
    {
        html_ += "<pre><code";
        const std::string info = unescaped(document_.slice(block.info));
        if (!info.empty()) {
            html_ += " class=\"language-";
            appendHtmlEscaped(html_, std::string_view(info).substr(0, info.find_first_of(" \t")));
            html_ += '"';
        }
        html_ += '>';
        forEachLine(block, [&](std::string_view line) { appendHtmlEscaped(html_, line); });
        html_ += "</code></pre>\n";
    }

    void verbatim(const Block& block)
    {
        forEachLine(block, [&](std::string_view line) { appendWithoutNul(html_, line); });
    }

    template <typename Append> void forEachLine(const Block& block, Append append)
    {
        for (std::uint32_t i = 0; i < block.lineCount; ++i) {
            const ContentLine& line = document_.lines[block.firstLine + i];
            html_.append(line.padding, ' ');
            append(document_.slice({line.begin, line.end}));
            html_ += '\n';
        }
    }

    const CVKAST::Document& document_;
    InlineHtml inlines_;
    std::string html_;
};

} // namespace

std::string renderHtml(const CVKAST::Document& document, InlineOptions options)
{
    return HtmlRenderer(document, options).render();
}

} // namespace tarn::corvel
