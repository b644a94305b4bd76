#include "tarnmodel/corvel/output/PlainText.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"
#include "tarnmodel/corvel/scanning/Unescape.h"
#include "tarnmodel/corvel/scanning/WikiLinkScanner.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>

namespace tarn::corvel {

namespace {

bool holdsInlines(const Block& leaf)
{
    return leaf.type == BlockType::Paragraph || leaf.type == BlockType::Heading;
}

} // namespace

PlainText::PlainText(const CVKAST::Document& document)
    : document_(document), parser_(document.references, {.highlights = true})
{ }

void PlainText::setLeaf(const Block& leaf)
{
    leaf_ = &leaf;
    if (!holdsInlines(leaf))
        return;
    content_.assign(document_, leaf);
    parser_.parseTokens(content_, leaf.inlineBegin(), tokens_);
}

std::string PlainText::line(std::uint32_t index) const
{
    const ContentLine& source = document_.lines[leaf_->firstLine + index];
    std::string result;
    if (leaf_->type == BlockType::FencedCode || leaf_->type == BlockType::IndentedCode) {
        result = document_.slice({source.begin, source.end});
    } else if (holdsInlines(*leaf_)) {
        const auto begin = static_cast<Offset>(content_.contentOffset(source.begin));
        const SourceRange line{begin, begin + (source.end - source.begin)};
        const auto first = std::partition_point(tokens_.tokens.begin(), tokens_.tokens.end(),
            [&](const InlineToken& token) { return token.end < line.begin; });
        for (auto token = first; token != tokens_.tokens.end() && token->begin < line.end; ++token)
            appendToken(result, *token, line);
    }
    return std::string(trimmed(std::string_view(result)));
}

void PlainText::appendToken(std::string& result, const InlineToken& token, SourceRange line) const
{
    const SourceRange visible{std::max(token.begin, line.begin), std::min(token.end, line.end)};
    if (visible.begin >= visible.end)
        return;
    const auto slice = [&](SourceRange range) { return content_.text().substr(range.begin, range.length()); };
    switch (token.type) {
    case TokenType::Text:
    case TokenType::Hashtag:
    case TokenType::Autolink:
    case TokenType::EmailAutolink:
        result += slice(visible);
        break;
    case TokenType::Entity:
        appendEntity(result, content_.text(), token.begin);
        break;
    case TokenType::Code:
        appendCode(result, visible);
        break;
    case TokenType::Delimiters: {
        const DelimiterRun& run = tokens_.emphasis.run(token.index);
        result.append(run.remaining, run.mark);
        break;
    }
    case TokenType::WikiLink: {
        const ScannedWikiLink& link = tokens_.wikiLinks[token.index];
        result += decodedWikiText(slice(link.alias.empty() ? link.title : link.alias));
        break;
    }
    case TokenType::SoftBreak:
    case TokenType::HardBreak:
    case TokenType::Html:
    case TokenType::LinkOpen:
    case TokenType::LinkClose:
    case TokenType::ImageOpen:
    case TokenType::ImageClose:
        break;
    }
}

void PlainText::appendCode(std::string& result, SourceRange range) const
{
    std::string_view code = content_.text().substr(range.begin, range.length());
    const bool padded = code.size() > 1 && code.front() == ' ' && code.back() == ' '
        && code.find_first_not_of(' ') != std::string_view::npos;
    result += padded ? code.substr(1, code.size() - 2) : code;
}

} // namespace tarn::corvel
