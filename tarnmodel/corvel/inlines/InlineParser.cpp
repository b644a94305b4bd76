#include "tarnmodel/corvel/inlines/InlineParser.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"
#include "tarnmodel/corvel/scanning/HashtagScanner.h"
#include "tarnmodel/corvel/scanning/Unescape.h"
#include "tarnmodel/corvel/scanning/WikiLinkScanner.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>

namespace tarn::corvel {

namespace {

// The bytes at which the scan looks closer; all others are text.
constexpr ByteSet kStructureStops("\\`<[]#:");
constexpr ByteSet kTokenStops("\\`<[]#:&*_~=\r\n");

constexpr std::size_t kLongestLabel = 999;

/// After the line end at `at`, which may have two bytes.
std::size_t afterLineEnd(std::string_view text, std::size_t at) noexcept
{
    return at + (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n' ? 2 : 1);
}

bool isTooLongForLabel(std::string_view text) noexcept
{
    const auto startsCodePoint = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    return text.size() > kLongestLabel
        && static_cast<std::size_t>(std::count_if(text.begin(), text.end(), startsCodePoint)) > kLongestLabel;
}

std::size_t endOfRun(std::string_view text, std::size_t at) noexcept
{
    return std::min(text.find_first_not_of(text[at], at), text.size());
}

bool endsWithScheme(std::string_view text) noexcept
{
    constexpr std::size_t kLongestScheme = 32;
    std::size_t begin = text.size();
    bool hasLetter = false;
    while (begin > 0 && text.size() - begin < kLongestScheme) {
        const char c = text[begin - 1];
        if (!isASCIIAlphanumeric(c) && c != '+' && c != '.' && c != '-')
            break;
        hasLetter = hasLetter || isASCIILetter(c);
        --begin;
    }
    return hasLetter;
}

std::size_t endOfBareURL(std::string_view text, std::size_t at) noexcept
{
    while (at < text.size() && text[at] != '<') {
        const DecodedCodePoint decoded = decodeCodePoint(text, at);
        if (isWhiteSpace(decoded.codePoint))
            break;
        at += decoded.length;
    }
    return at;
}

} // namespace

InlineParser::InlineParser(const LinkReferences& references, InlineOptions options)
    : references_(references), options_(options)
{ }

void InlineParser::parse(const LeafContent& content, std::size_t begin, BlockIndex block, InlineResults results)
{
    results_ = &results;
    tokens_ = nullptr;
    block_ = block;
    start(content, begin);
    scan();
    results_ = nullptr;
}

void InlineParser::parseTokens(const LeafContent& content, std::size_t begin, InlineTokens& tokens)
{
    tokens.clear();
    tokens_ = &tokens;
    results_ = nullptr;
    start(content, begin);
    scan();
    flushText(text_.size(), text_.size());
    tokens.emphasis.resolve(kNone);
    tokens_ = nullptr;
}

void InlineParser::start(const LeafContent& content, std::size_t begin)
{
    content_ = &content;
    text_ = content.text();
    begin_ = textBegin_ = plainFrom_ = begin;
    brackets_.clear();
    inactiveBelow_ = 0;
    backticksSeen_ = false;
    urlEnd_ = 0;
    markup_ = {};
}

void InlineParser::scan()
{
    const ByteSet& stops = tokens_ ? kTokenStops : kStructureStops;
    const std::size_t size = text_.size();
    for (std::size_t at = begin_; at < size;) {
        if (stops.contains(text_[at]))
            at = take(at);
        else
            ++at;
    }
}

/// Reads what starts at a stop; gives where to go on.
std::size_t InlineParser::take(std::size_t at)
{
    switch (text_[at]) {
    case '\\':
        return takeBackslash(at);
    case '`':
        return takeBackticks(at);
    case '<':
        return takeAngle(at);
    case '[':
        return takeOpeningBracket(at);
    case ']':
        return takeClosingBracket(at);
    case '#':
        return takeHashMark(at);
    case ':':
        return takeColon(at);
    case '&':
        return takeEntity(at);
    case '\r':
    case '\n':
        return takeLineEnd(at);
    default:
        return takeDelimiters(at);
    }
}

// Atoms ---------------------------------------------------------------------------------------------------------------

std::size_t InlineParser::takeBackslash(std::size_t at)
{
    if (at + 1 >= text_.size())
        return at + 1;
    if (isASCIIPunctuation(text_[at + 1])) {
        flushText(at, at + 1);
        plainFrom_ = at + 2;
        return at + 2;
    }
    if (tokens_ && isLineEnd(text_[at + 1])) {
        const std::size_t next = afterLineEnd(text_, at + 1);
        flushText(at, next);
        addToken(TokenType::HardBreak, at, next);
        return next;
    }
    return at + 1;
}

std::size_t InlineParser::takeBackticks(std::size_t at)
{
    const std::size_t begin = endOfRun(text_, at);
    const std::size_t length = begin - at;
    const std::size_t closing = findClosingBackticks(begin, length);
    if (closing == std::string_view::npos)
        return begin;
    return takeAtom(TokenType::Code, at, closing + length, begin, closing);
}

std::size_t InlineParser::findClosingBackticks(std::size_t from, std::size_t length)
{
    // After one search has come to the end, all runs are known: openers that nothing closes cost no more.
    if (backticksSeen_ && (length >= lastRunOfLength_.size() || lastRunOfLength_[length] < from))
        return std::string_view::npos;
    if (!backticksSeen_)
        lastRunOfLength_.clear();
    for (std::size_t i = text_.find('`', from); i != std::string_view::npos;) {
        const std::size_t end = endOfRun(text_, i);
        if (end - i == length)
            return i;
        if (end - i >= lastRunOfLength_.size())
            lastRunOfLength_.resize(end - i + 1, 0);
        lastRunOfLength_[end - i] = i;
        i = text_.find('`', end);
    }
    backticksSeen_ = true;
    return std::string_view::npos;
}

std::size_t InlineParser::takeAngle(std::size_t at)
{
    if (const std::size_t end = scanAutolink(text_, at)) {
        addLink(LinkKind::Autolink, false, at, end, {rangeOf(at + 1, end - 1), {}, false, kNoDefinition});
        return takeAtom(TokenType::Autolink, at, end, at + 1, end - 1);
    }
    if (const std::size_t end = scanEmailAutolink(text_, at)) {
        addLink(LinkKind::EmailAutolink, false, at, end, {rangeOf(at + 1, end - 1), {}, false, kNoDefinition});
        return takeAtom(TokenType::EmailAutolink, at, end, at + 1, end - 1);
    }
    std::size_t end = scanOpenTag(text_, at);
    if (end == 0)
        end = scanClosingTag(text_, at);
    if (end == 0)
        end = markup_.scan(text_, at);
    return end == 0 ? at + 1 : takeAtom(TokenType::Html, at, end, at, end);
}

std::size_t InlineParser::takeEntity(std::size_t at)
{
    std::string ignored;
    const std::size_t length = appendEntity(ignored, text_, at);
    return length == 0 ? at + 1 : takeAtom(TokenType::Entity, at, at + length, at, at + length);
}

std::size_t InlineParser::takeLineEnd(std::size_t at)
{
    std::size_t end = at;
    while (end > textBegin_ && isSpaceOrTab(text_[end - 1]))
        --end;
    const bool hard = at - end >= 2 && text_[at - 1] == ' ' && text_[at - 2] == ' ';
    const std::size_t next = afterLineEnd(text_, at);
    flushText(end, next);
    addToken(hard ? TokenType::HardBreak : TokenType::SoftBreak, end, next);
    return next;
}

// Hashtags ------------------------------------------------------------------------------------------------------------

std::size_t InlineParser::takeHashMark(std::size_t at)
{
    // A run of hash marks is looked at once: within it none can be followed by a name but the last, which has no blank
    // before.
    const std::size_t end = endOfRun(text_, at);
    if (end - at > 1 || !options_.hashtags || at < urlEnd_)
        return end;
    const auto hashtag = scanHashtag(text_, at);
    if (!hashtag)
        return end;
    if (results_)
        results_->hashtags.push_back({content_->sourceRange(at, hashtag->end),
            content_->sourceRange(hashtag->name.begin, hashtag->name.end), block_});
    return takeAtom(TokenType::Hashtag, at, hashtag->end, at, hashtag->end);
}

std::size_t InlineParser::takeColon(std::size_t at)
{
    if (options_.hashtags && at >= urlEnd_ && text_.substr(at).starts_with("://")
        && endsWithScheme(text_.substr(0, at)))
        urlEnd_ = endOfBareURL(text_, at);
    return at + 1;
}

// Links ---------------------------------------------------------------------------------------------------------------

std::size_t InlineParser::takeOpeningBracket(std::size_t at)
{
    if (!brackets_.empty())
        brackets_.back().bracketInside = true;
    if (options_.wikiLinks) {
        if (const auto link = scanWikiLink(text_, at))
            return takeWikiLink(at, *link);
    }
    Bracket bracket;
    bracket.image = isMarked(at);
    bracket.begin = bracket.image ? at - 1 : at;
    bracket.textBegin = at + 1;
    if (tokens_) {
        flushText(bracket.begin, at + 1);
        bracket.token = static_cast<std::uint32_t>(tokens_->tokens.size());
        bracket.delimiters = tokens_->emphasis.top();
        addToken(TokenType::Text, bracket.begin, at + 1);
    }
    brackets_.push_back(bracket);
    return at + 1;
}

std::size_t InlineParser::takeWikiLink(std::size_t at, const ScannedWikiLink& link)
{
    if (results_) {
        WikiLink& added = results_->wikiLinks.emplace_back();
        added.range = content_->sourceRange(at, link.end);
        added.title = content_->sourceRange(link.title.begin, link.title.end);
        added.alias = content_->sourceRange(link.alias.begin, link.alias.end);
        added.hasAlias = link.hasAlias;
        added.block = block_;
    }
    flushText(at, link.end);
    if (tokens_) {
        addToken(TokenType::WikiLink, at, link.end, static_cast<std::uint32_t>(tokens_->wikiLinks.size()));
        tokens_->wikiLinks.push_back({link, isMarked(at)});
    }
    plainFrom_ = link.end;
    return link.end;
}

std::size_t InlineParser::takeClosingBracket(std::size_t at)
{
    if (brackets_.empty())
        return at + 1;
    const Bracket opener = brackets_.back();
    brackets_.pop_back();
    const bool active = opener.image || brackets_.size() >= inactiveBelow_;
    inactiveBelow_ = std::min(inactiveBelow_, brackets_.size());
    Target target;
    if (!active || !findTarget(opener, at, target))
        return at + 1;
    finishLink(opener, at, target);
    if (!opener.image)
        inactiveBelow_ = brackets_.size();
    return target.end;
}

/// Reads what follows the text of a link: `(destination)`, `[label]`, `[]` or nothing, where the text is the label.
bool InlineParser::findTarget(const Bracket& opener, std::size_t at, Target& target) const
{
    if (const auto tail = scanInlineTail(text_, at + 1)) {
        target.link = {tail->destination, tail->title, tail->hasTitle, kNoDefinition};
        target.end = tail->end;
        return true;
    }
    target.kind = LinkKind::Reference;
    target.end = at + 1;
    SourceRange label = rangeOf(opener.textBegin, at);
    const std::string_view rest = text_.substr(at + 1);
    const auto written = rest.starts_with('[') ? scanLabel(text_, at + 1) : std::nullopt;
    if (written) {
        label = *written;
        target.end = written->end + 1;
    } else {
        if (opener.bracketInside || label.empty() || isTooLongForLabel(slice(label)))
            return false;
        if (rest.starts_with("[]"))
            target.end = at + 3;
    }
    target.link.definition = references_.find(slice(label));
    return target.link.definition != kNoDefinition;
}

void InlineParser::finishLink(const Bracket& opener, std::size_t at, const Target& target)
{
    addLink(target.kind, opener.image, opener.begin, target.end, target.link);
    flushText(at, target.end);
    plainFrom_ = target.end;
    if (!tokens_)
        return;
    tokens_->emphasis.resolve(opener.delimiters);
    InlineToken& open = tokens_->tokens[opener.token];
    open.type = opener.image ? TokenType::ImageOpen : TokenType::LinkOpen;
    open.index = static_cast<std::uint32_t>(tokens_->links.size());
    tokens_->links.push_back(target.link);
    addToken(opener.image ? TokenType::ImageClose : TokenType::LinkClose, at, target.end, open.index);
}

void InlineParser::addLink(LinkKind kind, bool image, std::size_t begin, std::size_t end, const TokenLink& link)
{
    if (!results_)
        return;
    Link& added = results_->links.emplace_back();
    added.range = content_->sourceRange(begin, end);
    added.kind = kind;
    added.image = image;
    added.definition = link.definition;
    added.destination = link.definition == kNoDefinition
        ? content_->sourceRange(link.destination.begin, link.destination.end)
        : references_.definition(link.definition).destination;
}

// Emphasis ------------------------------------------------------------------------------------------------------------

std::size_t InlineParser::takeDelimiters(std::size_t at)
{
    const char mark = text_[at];
    const std::size_t end = endOfRun(text_, at);
    const bool isHighlight = mark == '~' || mark == '=';
    if (isHighlight && (!options_.highlights || end - at != 2))
        return end;

    const char32_t before = at == begin_ ? U'\n' : codePointBefore(text_, at);
    const char32_t after = codePointAt(text_, end);
    const bool blankBefore = isUnicodeWhiteSpace(before);
    const bool blankAfter = isUnicodeWhiteSpace(after);
    const bool markBefore = isUnicodePunctuation(before);
    const bool markAfter = isUnicodePunctuation(after);
    const bool left = !blankAfter && (!markAfter || blankBefore || markBefore);
    const bool right = !blankBefore && (!markBefore || blankAfter || markAfter);
    const bool canOpen = mark == '_' ? left && (!right || markBefore) : left;
    const bool canClose = mark == '_' ? right && (!left || markAfter) : right;

    flushText(at, end);
    const RunIndex run = tokens_->emphasis.push(mark, static_cast<std::uint32_t>(end - at), canOpen, canClose);
    addToken(TokenType::Delimiters, at, end, run);
    return end;
}

// Tokens --------------------------------------------------------------------------------------------------------------

void InlineParser::flushText(std::size_t end, std::size_t next)
{
    if (tokens_ && end > textBegin_)
        addToken(TokenType::Text, textBegin_, end);
    textBegin_ = next;
}

void InlineParser::addToken(TokenType type, std::size_t begin, std::size_t end, std::uint32_t index)
{
    if (tokens_)
        tokens_->tokens.push_back({type, static_cast<Offset>(begin), static_cast<Offset>(end), index});
}

std::size_t InlineParser::takeAtom(
    TokenType type, std::size_t at, std::size_t end, std::size_t innerBegin, std::size_t innerEnd)
{
    flushText(at, end);
    plainFrom_ = end;
    addToken(type, innerBegin, innerEnd);
    return end;
}

} // namespace tarn::corvel
