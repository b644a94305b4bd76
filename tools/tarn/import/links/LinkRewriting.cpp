#include "tools/tarn/import/links/LinkRewriting.h"

#include "tarnmodel/corvel/CVKLink.h"
#include "tarnmodel/corvel/CVKWikiLink.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/import/links/LinkComparison.h"
#include "tools/tarn/import/links/LinkText.h"
#include "tools/tarn/import/reading/NoteExtensions.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

using Outcome = RewrittenLink::Outcome;

/// An edit of one link, and what the link is with it.
struct LinkEdit {
    std::size_t link = 0; ///< its number in the text
    CVKTextEdit edit;
    LinkTarget after;
    Outcome outcome = Outcome::Other;
};

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
        return link.hasText ? std::optional(unescapedLinkText(slice(link.text))) : std::nullopt;
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
    const std::string name = lastPartOfName(meaning.name);
    std::string shown = meaning.anchor.empty() ? name : nameWithAnchor(meaning.name, meaning.anchor);
    const bool repeats = meaning.anchor.empty()
        && (fold(name) == fold(title)
            || fold(name.substr(0, name.size() - lengthOfNoteExtension(name))) == fold(title));
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
    const std::string shown = textOf(link).value_or(link.isEmbed ? std::string() : lastPartOfName(meaning.name));
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
    std::vector<LinkTarget> expected;
    for (const CVKLink& link : links_)
        expected.push_back({link.form == CVKLinkForm::Wiki, link.decodedDestination});
    for (std::size_t i = 0; i < edits_.size(); ++i) {
        if (taken[i])
            expected[edits_[i].link] = edits_[i].after;
    }
    return saysTheSame(document_, after) && linkTargetsOf(after) == expected;
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
    return {withoutUnusedDefinitions(document_, result.document), std::move(told_)};
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
