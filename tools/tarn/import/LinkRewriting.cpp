#include "tools/tarn/import/LinkRewriting.h"

#include "tarnmodel/corvel/CVKLink.h"
#include "tarnmodel/corvel/CVKWikiLink.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/PercentEncoding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

using Outcome = RewrittenLink::Outcome;

/// What a link of the text is after all edits.
struct ExpectedLink {
    bool isWiki = false;
    std::string destination;
    friend bool operator==(const ExpectedLink&, const ExpectedLink&) = default;
};

/// An edit of one link, and what the link is with it.
struct LinkEdit {
    std::size_t link = 0; ///< its number in the text
    CVKTextEdit edit;
    ExpectedLink after;
    Outcome outcome = Outcome::Other;
};

/// A text on one line; what begins the lines of a quote is no part of it.
std::string withoutLineBreaks(std::string_view text, bool isInQuote)
{
    std::string line;
    for (std::size_t i = 0; i < text.size();) {
        if (text[i] != '\n' && text[i] != '\r') {
            line += text[i++];
            continue;
        }
        line += ' ';
        i = std::min(text.find_first_not_of(isInQuote ? "\r\n\t >" : "\r\n\t ", i), text.size());
    }
    return line;
}

/// What a text means that was written with backslashes before its marks.
std::string unescaped(std::string_view text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool escapes = text[i] == '\\' && i + 1 < text.size()
            && std::string_view("!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~").find(text[i + 1]) != std::string_view::npos;
        i += escapes ? 1 : 0;
        plain += text[i];
    }
    return plain;
}

std::vector<ExpectedLink> linksOf(const CVKAST& document)
{
    std::vector<ExpectedLink> links;
    for (CVKLink& link : document.links())
        links.push_back({link.form == CVKLinkForm::Wiki, std::move(link.decodedDestination)});
    return links;
}

/// The lines of a range with their line ends; none where something else stands in them.
std::optional<CVKRange> wholeLines(std::string_view text, CVKRange range)
{
    const std::size_t lineEnd = range.location == 0 ? std::string_view::npos : text.rfind('\n', range.location - 1);
    const std::size_t begin = lineEnd == std::string_view::npos ? 0 : lineEnd + 1;
    const std::size_t end = std::min(text.find('\n', range.end()), text.size() - 1) + 1;
    const bool isAlone = trimmed(text.substr(begin, range.location - begin)).empty()
        && trimmed(text.substr(range.end(), end - range.end())).empty();
    return isAlone ? std::optional(CVKRange{begin, end - begin}) : std::nullopt;
}

/// "Note > Heading > Lower", as readers know it from other programs.
std::string nameWithAnchor(const std::string& name, const std::string& anchor)
{
    std::string text = name;
    for (std::size_t offset = 0; offset <= anchor.size();) {
        const std::size_t end = std::min(anchor.find('#', offset), anchor.size());
        if (end > offset)
            text += " > " + anchor.substr(offset, end - offset);
        offset = end + 1;
    }
    return text;
}

std::string lastPart(const std::string& name)
{
    const std::size_t slash = name.rfind('/');
    return slash == std::string::npos ? name : name.substr(slash + 1);
}

/// Percent-encoded but for what paths are made of.
std::string percentEncodedPath(std::string_view path)
{
    return stringByAddingPercentEncoding(path, UnescapedCharacters::URLQueryHeader);
}

/// A name without the ending of a note's file.
std::string withoutEnding(const std::string& name)
{
    for (const std::string_view ending : {".md", ".markdown", ".txt"}) {
        if (name.ends_with(ending))
            return name.substr(0, name.size() - ending.size());
    }
    return name;
}

bool isPicture(CVKLinkForm form)
{
    return form == CVKLinkForm::Image || form == CVKLinkForm::ImageReference;
}

/// Links and pictures to notes and files, in one text.
class LinkRewriting {
public:
    LinkRewriting(const std::string& text, LinkMeanings& meanings)
        : document_(CVKAST::fromMarkdown(text)), links_(document_.links()), meanings_(meanings)
    { }

    RewrittenText result()
    {
        for (std::size_t number = 0; number < links_.size(); ++number)
            consider(number);
        return rewritten();
    }

private:
    std::string_view slice(CVKRange range) const
    {
        return std::string_view(document_.markdown()).substr(range.location, range.length);
    }

    void consider(std::size_t number);
    void considerWikiLink(std::size_t number);
    void leadToNote(std::size_t number, const LinkMeaning& meaning);
    void leadToFile(std::size_t number, const LinkMeaning& meaning);
    void leadToHeading(std::size_t number);
    void edit(LinkEdit made);
    std::size_t barInTable(const CVKLink& link) const;
    std::string nameOf(const CVKLink& link) const;
    std::optional<std::string> textOf(const CVKLink& link) const;
    std::optional<std::string> textBeside(const CVKLink& link, const LinkMeaning& meaning) const;
    bool isInQuote(const CVKLink& link) const;
    bool canBeAlias(const CVKLink& link) const;
    CVKTextEdit editOfDestination(const CVKLink& link, const std::string& url) const;
    bool check(const CVKAST& after, const std::vector<bool>& taken) const;
    RewrittenText rewritten();
    std::string withoutUnusedDefinitions(const CVKAST& after) const;

    CVKAST document_;
    std::vector<CVKLink> links_;
    LinkMeanings& meanings_;
    std::vector<RewrittenLink> told_;
    std::vector<LinkEdit> edits_; ///< in the order of the links, none within another
};

void LinkRewriting::consider(std::size_t number)
{
    using Kind = LinkMeaning::Kind;
    const CVKLink& link = links_[number];
    told_.push_back({.destination = link.decodedDestination});
    RewrittenLink& told = told_.back();
    if (link.form == CVKLinkForm::Autolink)
        return;
    if (link.form == CVKLinkForm::Wiki)
        return considerWikiLink(number);
    const LinkMeaning meaning = meanings_.ofDestination(link.decodedDestination);
    told.isOneOfSeveral = meaning.isOneOfSeveral;
    if (meaning.kind == Kind::Note)
        leadToNote(number, meaning);
    else if (meaning.kind == Kind::Missing)
        told.outcome = Outcome::Missing;
    else if (meaning.kind == Kind::Outside)
        told.outcome = Outcome::Outside;
    else if (meaning.kind == Kind::File)
        told.outcome = Outcome::File;
}

void LinkRewriting::considerWikiLink(std::size_t number)
{
    using Kind = LinkMeaning::Kind;
    const CVKLink& link = links_[number];
    LinkMeaning meaning = meanings_.ofName(nameOf(link));
    told_.back().isOneOfSeveral = meaning.isOneOfSeveral;
    if (meaning.kind == Kind::Note)
        leadToNote(number, meaning);
    else if (meaning.kind == Kind::File)
        leadToFile(number, meaning);
    else if (meanings_.leadsSomewhere(link.decodedDestination))
        told_.back().outcome = Outcome::Wiki;
    else if (link.decodedDestination.starts_with('#') && !link.isEmbed)
        leadToHeading(number);
    else
        told_.back().outcome = Outcome::Waiting;
}

/// In a row of a table a bar is escaped that divides a name from its text.
std::size_t LinkRewriting::barInTable(const CVKLink& link) const
{
    const bool mayBe = link.isInTableRow && !link.hasText;
    return mayBe ? link.decodedDestination.find('|') : std::string::npos;
}

std::string LinkRewriting::nameOf(const CVKLink& link) const
{
    return link.decodedDestination.substr(0, barInTable(link));
}

std::optional<std::string> LinkRewriting::textOf(const CVKLink& link) const
{
    if (const std::size_t bar = barInTable(link); bar != std::string::npos)
        return link.decodedDestination.substr(bar + 1);
    if (link.form == CVKLinkForm::Wiki)
        return link.hasText ? std::optional(unescaped(slice(link.text))) : std::nullopt;
    return withoutLineBreaks(slice(link.text), isInQuote(link));
}

bool LinkRewriting::isInQuote(const CVKLink& link) const
{
    const std::string& text = document_.markdown();
    const std::size_t lineEnd
        = link.range.location == 0 ? std::string::npos : text.rfind('\n', link.range.location - 1);
    const std::size_t line = lineEnd == std::string::npos ? 0 : lineEnd + 1;
    const std::size_t first = text.find_first_not_of(" \t", line);
    return first != std::string::npos && text[first] == '>';
}

void LinkRewriting::leadToNote(std::size_t number, const LinkMeaning& meaning)
{
    const CVKLink& link = links_[number];
    RewrittenLink& told = told_[number];
    told.hasAnchor = !meaning.anchor.empty();
    told.title = meaning.note.title;
    const bool isWiki = link.form == CVKLinkForm::Wiki;
    const bool saysTitle = fold(link.decodedDestination) == fold(meaning.note.title);
    if (isWiki && meaning.note.isKnownByTitle && saysTitle) {
        told.outcome = Outcome::Wiki;
        return;
    }
    const std::optional<std::string> text = textBeside(link, meaning);
    const bool isEmbed = link.isEmbed || isPicture(link.form);
    const bool needsNoCell = !text || !link.isInTableRow;
    if (meaning.note.isKnownByTitle && needsNoCell && (!text || canBeAlias(link))) {
        const std::string written = CVKWikiLink::markdown(meaning.note.title, text);
        return edit({number, {link.range, (isEmbed ? "!" : "") + written}, {true, meaning.note.title}, Outcome::Wiki});
    }
    if (isEmbed) { // which no link by identifier can be
        told.outcome = Outcome::Kept;
        return;
    }
    const std::string url = "tarn://x-callback-url/open-note?id=" + meaning.note.identifier;
    if (isWiki) {
        const std::string shown = textOf(link).value_or(nameWithAnchor(meaning.name, meaning.anchor));
        return edit({number, {link.range, "[" + escapedLinkText(shown) + "](" + url + ")"}, {false, url},
            Outcome::ByIdentifier});
    }
    edit({number, editOfDestination(link, url), {false, url}, Outcome::ByIdentifier});
}

/// The text keeps every byte: what leads elsewhere stands behind it.
CVKTextEdit LinkRewriting::editOfDestination(const CVKLink& link, const std::string& url) const
{
    if (link.form == CVKLinkForm::Inline)
        return {link.destination, url};
    const std::size_t begin = link.text.end();
    return {{begin, link.range.end() - begin}, "](" + url + ")"};
}

/// What a link by title shows beside the title; none where that says it.
std::optional<std::string> LinkRewriting::textBeside(const CVKLink& link, const LinkMeaning& meaning) const
{
    const std::string& title = meaning.note.title;
    if (const std::optional<std::string> own = textOf(link)) {
        const bool repeats = trimmed(std::string_view(*own)).empty() || *own == title;
        return repeats ? std::nullopt : own;
    }
    if (link.isInTableRow)
        return std::nullopt;
    const std::string name = lastPart(meaning.name);
    std::string shown = meaning.anchor.empty() ? name : nameWithAnchor(meaning.name, meaning.anchor);
    const bool repeats
        = meaning.anchor.empty() && (fold(name) == fold(title) || fold(withoutEnding(name)) == fold(title));
    const bool isWritable = shown.find_first_of("[]|\\") == std::string::npos;
    return repeats || !isWritable ? std::nullopt : std::optional(std::move(shown));
}

/// Brackets and bars would end it; pictures have brackets.
bool LinkRewriting::canBeAlias(const CVKLink& link) const
{
    const std::string_view written = link.form == CVKLinkForm::Wiki ? std::string_view() : slice(link.text);
    return written.find_first_of("[]|") == std::string_view::npos;
}

void LinkRewriting::leadToFile(std::size_t number, const LinkMeaning& meaning)
{
    const CVKLink& link = links_[number];
    const std::string url = percentEncodedPath(meaning.path);
    const std::string shown = textOf(link).value_or(link.isEmbed ? std::string() : lastPart(meaning.name));
    const std::string written = std::string(link.isEmbed ? "![" : "[") + escapedLinkText(shown) + "](" + url + ")";
    edit({number, {link.range, written}, {false, url}, Outcome::File});
}

void LinkRewriting::leadToHeading(std::size_t number)
{
    const CVKLink& link = links_[number];
    const std::string heading = nameOf(link).substr(1);
    const std::string url = "#" + percentEncodedPath(heading);
    const std::string shown = textOf(link).value_or(heading);
    edit({number, {link.range, "[" + escapedLinkText(shown) + "](" + url + ")"}, {false, url}, Outcome::Heading});
}

void LinkRewriting::edit(LinkEdit made)
{
    told_[made.link].outcome = made.outcome;
    edits_.push_back(std::move(made));
}

bool LinkRewriting::check(const CVKAST& after, const std::vector<bool>& taken) const
{
    std::vector<ExpectedLink> expected;
    for (const CVKLink& link : links_)
        expected.push_back({link.form == CVKLinkForm::Wiki, link.decodedDestination});
    for (std::size_t i = 0; i < edits_.size(); ++i) {
        if (taken[i])
            expected[edits_[i].link] = edits_[i].after;
    }
    return saysTheSame(document_, after) && linksOf(after) == expected;
}

RewrittenText LinkRewriting::rewritten()
{
    if (edits_.empty())
        return {document_.markdown(), std::move(told_)};
    std::ranges::sort(edits_, {}, [](const LinkEdit& edit) { return edit.edit.range.location; });
    std::vector<CVKTextEdit> edits;
    for (const LinkEdit& edit : edits_)
        edits.push_back(edit.edit);
    const CVKCheckedEdits result = document_.applyEdits(
        edits, [this](const CVKAST& after, const std::vector<bool>& taken) { return check(after, taken); });
    for (std::size_t i = 0; i < edits_.size(); ++i) {
        if (!result.taken[i])
            told_[edits_[i].link].outcome = Outcome::Kept;
    }
    return {withoutUnusedDefinitions(result.document), std::move(told_)};
}

/// A definition that had its uses for links which do not need it any more goes with them.
std::string LinkRewriting::withoutUnusedDefinitions(const CVKAST& after) const
{
    const std::vector<CVKLinkDefinition> before = document_.linkDefinitions();
    const std::vector<CVKLinkDefinition> now = after.linkDefinitions();
    if (before.size() != now.size())
        return after.markdown();
    std::vector<CVKTextEdit> edits;
    for (std::size_t i = 0; i < now.size(); ++i) {
        const auto lines
            = before[i].uses > 0 && now[i].uses == 0 ? wholeLines(after.markdown(), now[i].range) : std::nullopt;
        if (lines)
            edits.push_back({*lines, ""});
    }
    if (edits.empty())
        return after.markdown();
    std::vector<ExpectedLink> expected = linksOf(after);
    return after
        .applyEdits(edits,
            [&](const CVKAST& shorter, const std::vector<bool>&) {
                return saysTheSame(after, shorter) && linksOf(shorter) == expected;
            })
        .document.markdown();
}

Outcome outcomeOfKept(const CVKLink& link, LinkMeanings& meanings)
{
    using Kind = LinkMeaning::Kind;
    if (link.form == CVKLinkForm::Wiki)
        return meanings.leadsSomewhere(link.decodedDestination) ? Outcome::Wiki : Outcome::Waiting;
    if (link.form == CVKLinkForm::Autolink)
        return Outcome::Other;
    switch (meanings.ofDestination(link.decodedDestination).kind) {
    case Kind::Missing:
        return Outcome::Missing;
    case Kind::Outside:
        return Outcome::Outside;
    case Kind::File:
        return Outcome::File;
    default:
        return Outcome::Other;
    }
}

} // namespace

bool saysTheSame(const CVKAST& before, const CVKAST& after)
{
    const CVKTextSummary& old = before.textSummary();
    const CVKTextSummary& now = after.textSummary();
    return old.title == now.title && old.tags == now.tags && old.todoCount == now.todoCount
        && old.doneCount == now.doneCount && old.codeBlockCount == now.codeBlockCount;
}

std::string escapedLinkText(std::string_view text)
{
    std::string escaped;
    for (const char character : text) {
        if (std::string_view("\\`*_[]<>&#|!").find(character) != std::string_view::npos)
            escaped += '\\';
        escaped += character;
    }
    return escaped;
}

RewrittenText textWithLinksKept(const std::string& text, LinkMeanings& meanings)
{
    RewrittenText kept{.text = text, .links = {}};
    for (const CVKLink& link : CVKAST::fromMarkdown(text).links())
        kept.links.push_back({.destination = link.decodedDestination, .outcome = outcomeOfKept(link, meanings)});
    return kept;
}

RewrittenText textWithLinksToNotes(const std::string& text, LinkMeanings& meanings)
{
    return LinkRewriting(text, meanings).result();
}

} // namespace tarn
