#include "tarnmodel/corvel/output/InlineHtml.h"

#include "tarnmodel/corvel/output/HtmlEscaping.h"
#include "tarnmodel/corvel/scanning/CharacterClasses.h"
#include "tarnmodel/corvel/scanning/Unescape.h"
#include "tarnmodel/corvel/scanning/WikiLinkScanner.h"

#include <algorithm>
#include <array>

namespace tarn::corvel {

namespace {

constexpr std::array<std::string_view, 4> kOpeningTags{"<em>", "<strong>", "<del>", "<mark>"};
constexpr std::array<std::string_view, 4> kClosingTags{"</em>", "</strong>", "</del>", "</mark>"};

/// The content of a code span: line ends as blanks, and one blank at both ends dropped.
std::string codeText(std::string_view raw)
{
    std::string text;
    text.reserve(raw.size());
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (raw[i] == '\r' && i + 1 < raw.size() && raw[i + 1] == '\n')
            ++i;
        text += isLineEnd(raw[i]) ? ' ' : raw[i];
    }
    const bool padded = text.size() > 1 && text.front() == ' ' && text.back() == ' '
        && text.find_first_not_of(' ') != std::string::npos;
    return padded ? text.substr(1, text.size() - 2) : text;
}

} // namespace

InlineHtml::InlineHtml(const CVKAST::Document& document, InlineOptions options)
    : document_(document), parser_(document.references, options)
{ }

void InlineHtml::append(std::string& html, const Block& leaf)
{
    content_.assign(document_, leaf);
    parser_.parseTokens(content_, 0, tokens_);
    imageDepth_ = 0;
    for (const InlineToken& token : tokens_.tokens) {
        if (imageDepth_ > 0)
            appendDescriptionToken(html, token);
        else
            appendToken(html, token);
    }
}

void InlineHtml::appendToken(std::string& html, const InlineToken& token)
{
    switch (token.type) {
    case TokenType::SoftBreak:
        html += '\n';
        break;
    case TokenType::HardBreak:
        html += "<br />\n";
        break;
    case TokenType::Code:
        html += "<code>";
        appendText(html, token);
        html += "</code>";
        break;
    case TokenType::Html:
        appendWithoutNul(html, slice({token.begin, token.end}));
        break;
    case TokenType::Autolink:
    case TokenType::EmailAutolink:
        appendAutolink(html, token);
        break;
    case TokenType::LinkOpen:
        openLink(html, tokens_.links[token.index]);
        break;
    case TokenType::LinkClose:
        html += "</a>";
        break;
    case TokenType::ImageOpen:
        html += "<img src=\"";
        appendEscapedURL(html, destinationOf(tokens_.links[token.index]));
        html += "\" alt=\"";
        ++imageDepth_;
        break;
    case TokenType::Delimiters:
        appendDelimiters(html, tokens_.emphasis.run(token.index));
        break;
    case TokenType::ImageClose:
    case TokenType::Text:
    case TokenType::Entity:
    case TokenType::WikiLink:
    case TokenType::Hashtag:
        appendText(html, token);
        break;
    }
}

void InlineHtml::appendDescriptionToken(std::string& html, const InlineToken& token)
{
    switch (token.type) {
    case TokenType::ImageOpen:
        ++imageDepth_;
        break;
    case TokenType::ImageClose:
        if (--imageDepth_ == 0)
            closeImage(html, tokens_.links[token.index]);
        break;
    case TokenType::SoftBreak:
    case TokenType::HardBreak:
        html += ' ';
        break;
    case TokenType::Delimiters: {
        const DelimiterRun& run = tokens_.emphasis.run(token.index);
        html.append(run.remaining, run.mark);
        break;
    }
    case TokenType::LinkOpen:
    case TokenType::LinkClose:
        break;
    default:
        appendText(html, token);
    }
}

void InlineHtml::appendText(std::string& html, const InlineToken& token) const
{
    const std::string_view raw = slice({token.begin, token.end});
    if (token.type == TokenType::Entity) {
        std::string text;
        appendEntity(text, content_.text(), token.begin);
        appendHtmlEscaped(html, text);
    } else if (token.type == TokenType::Code) {
        appendHtmlEscaped(html, codeText(raw));
    } else if (token.type == TokenType::WikiLink) {
        const ScannedWikiLink& link = tokens_.wikiLinks[token.index];
        appendHtmlEscaped(html, decodedWikiText(slice(link.alias.empty() ? link.title : link.alias)));
    } else {
        appendHtmlEscaped(html, raw);
    }
}

void InlineHtml::appendAutolink(std::string& html, const InlineToken& token) const
{
    html += token.type == TokenType::EmailAutolink ? "<a href=\"mailto:" : "<a href=\"";
    appendEscapedURL(html, slice({token.begin, token.end}));
    html += "\">";
    appendText(html, token);
    html += "</a>";
}

void InlineHtml::appendDelimiters(std::string& html, const DelimiterRun& run) const
{
    const auto& emphasis = tokens_.emphasis;
    for (PairIndex i = run.firstClosed; i != kNone; i = emphasis.pair(i).nextClosed)
        html += kClosingTags[static_cast<std::size_t>(emphasis.pair(i).kind)];
    html.append(run.remaining, run.mark);
    for (PairIndex i = run.firstOpened; i != kNone; i = emphasis.pair(i).nextOpened)
        html += kOpeningTags[static_cast<std::size_t>(emphasis.pair(i).kind)];
}

std::string InlineHtml::destinationOf(const TokenLink& link) const
{
    if (link.definition == kNoDefinition)
        return unescaped(slice(link.destination));
    return unescaped(document_.slice(document_.references.definition(link.definition).destination));
}

void InlineHtml::openLink(std::string& html, const TokenLink& link) const
{
    html += "<a href=\"";
    appendEscapedURL(html, destinationOf(link));
    html += '"';
    appendTitle(html, link);
    html += '>';
}

void InlineHtml::closeImage(std::string& html, const TokenLink& link) const
{
    html += '"';
    appendTitle(html, link);
    html += " />";
}

void InlineHtml::appendTitle(std::string& html, const TokenLink& link) const
{
    const bool isReference = link.definition != kNoDefinition;
    const std::string title = unescaped(
        isReference ? std::string_view(document_.references.definition(link.definition).title) : slice(link.title));
    if (title.empty())
        return;
    html += " title=\"";
    appendHtmlEscaped(html, title);
    html += '"';
}

} // namespace tarn::corvel
