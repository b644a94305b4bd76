#include "tools/tarn/ImportedText.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/FrontMatter.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <set>

namespace tarn {

namespace {

enum class Role { None, Title, Tags, Creation, Modification };

struct KeyRole {
    std::string_view key; ///< in lower case, without blanks, hyphens and underscores
    Role role;
};

// Of several keys for one date the first in this table counts; the others stay in the text.
constexpr std::array kKeyRoles{
    KeyRole{"title", Role::Title},
    KeyRole{"tags", Role::Tags},
    KeyRole{"tag", Role::Tags},
    KeyRole{"created", Role::Creation},
    KeyRole{"createdat", Role::Creation},
    KeyRole{"creationdate", Role::Creation},
    KeyRole{"datecreated", Role::Creation},
    KeyRole{"date", Role::Creation},
    KeyRole{"modified", Role::Modification},
    KeyRole{"modifiedat", Role::Modification},
    KeyRole{"modificationdate", Role::Modification},
    KeyRole{"datemodified", Role::Modification},
    KeyRole{"updated", Role::Modification},
    KeyRole{"updatedat", Role::Modification},
    KeyRole{"lastmodified", Role::Modification},
    KeyRole{"lastmod", Role::Modification},
};

std::size_t rankOfKey(std::string_view key)
{
    std::string plain;
    for (const char character : key) {
        if (character != ' ' && character != '-' && character != '_')
            plain += static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    }
    return static_cast<std::size_t>(std::ranges::find(kKeyRoles, plain, &KeyRole::key) - kKeyRoles.begin());
}

std::string_view withoutLeadingLineBreaks(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of("\r\n");
    return begin == std::string_view::npos ? std::string_view() : text.substr(begin);
}

/// Whether the first line that says something is a heading. Lines of hashtags alone say nothing.
bool beginsWithHeading(std::string_view text)
{
    std::string paragraph;
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t end = std::min(text.find('\n', offset), text.size());
        const std::string_view line = text.substr(offset, end - offset);
        offset = end + 1;
        if (trimmed(line).empty()) {
            if (!paragraph.empty())
                break;
            continue;
        }
        if (paragraph.empty()) {
            const CVKAST document = CVKAST::fromMarkdown(line);
            if (document.textSummary().title.empty() && !document.textSummary().tags.empty())
                continue;
        }
        paragraph += line;
        paragraph += '\n';
    }
    const std::string html = CVKAST::fromMarkdown(std::move(paragraph)).html();
    return html.starts_with("<h") && html.size() > 2 && html[2] >= '1' && html[2] <= '6';
}

/// Whether the heading says this title and nothing else: no tag, no link.
bool headingMeans(const std::string& heading, std::string_view title)
{
    const CVKAST document = CVKAST::fromMarkdown(heading);
    const CVKTextSummary& summary = document.textSummary();
    return summary.title == title && summary.tags.empty() && summary.links.empty() && summary.wikiLinks.empty();
}

/// The heading that reads as `title`; none when no heading does (a title of two lines).
std::optional<std::string> headingForTitle(std::string_view title)
{
    std::string heading = "# " + std::string(title);
    if (headingMeans(heading, title))
        return heading;
    heading = "# ";
    for (const char character : title) {
        if (std::string_view("\\`*_[]<>#&~=!|").find(character) != std::string_view::npos)
            heading += '\\';
        heading += character;
    }
    return headingMeans(heading, title) ? std::optional(heading) : std::nullopt;
}

/// "2024-05-01 10:00:00 +0200" has a blank before its zone that the reader of ISO 8601 does not take.
std::optional<NSDate> dateOfValue(std::string_view text)
{
    if (const auto date = dateFromISO8601String(text))
        return date;
    const std::size_t blank = text.rfind(' ');
    if (blank == std::string_view::npos || blank + 1 == text.size()
        || std::string_view("+-Z").find(text[blank + 1]) == std::string_view::npos)
        return std::nullopt;
    return dateFromISO8601String(std::string(text.substr(0, blank)) + std::string(text.substr(blank + 1)));
}

/// Names as people write them into a value: "a, b", "#a #b" or one name.
std::vector<std::string> namesOfItem(std::string_view item)
{
    char separator = ',';
    if (item.find(',') == std::string_view::npos)
        separator = trimmed(item).starts_with('#') ? ' ' : '\0';
    std::vector<std::string> names;
    for (std::size_t offset = 0; offset <= item.size();) {
        const std::size_t end = separator == '\0' ? item.size() : std::min(item.find(separator, offset), item.size());
        std::string_view name = trimmed(item.substr(offset, end - offset));
        if (name.starts_with('#'))
            name.remove_prefix(1);
        if (!name.empty())
            names.emplace_back(name);
        offset = end + 1;
    }
    return names;
}

/// Puts a note's text together from a file's front matter and body.
class FrontMatterImport {
public:
    explicit FrontMatterImport(const FrontMatter& frontMatter)
        : frontMatter_(frontMatter), body_(withoutLeadingLineBreaks(frontMatter.body))
    { }
    ImportedText result();

private:
    /// Whether the text says all that the entry says, so that its lines can go.
    bool use(const FrontMatterEntry& entry);
    bool useTitle(const FrontMatterValue& value);
    bool useTags(const FrontMatterValue& value);
    bool useDate(const FrontMatterEntry& entry, Role role, std::optional<NSDate>& date) const;
    const FrontMatterEntry* bestEntryFor(Role role) const;
    void appendKeptEntries();

    const FrontMatter& frontMatter_;
    std::string_view body_;
    ImportedText imported_;
    std::optional<std::string> heading_;
    std::vector<std::string> tags_;
    std::string kept_;
};

bool FrontMatterImport::use(const FrontMatterEntry& entry)
{
    const std::size_t rank = rankOfKey(entry.key);
    if (rank == kKeyRoles.size() || !entry.value)
        return false;
    const FrontMatterValue& value = *entry.value;
    if (value.items.empty())
        return !value.hasComment; // says nothing
    switch (kKeyRoles[rank].role) {
    case Role::Title:
        return useTitle(value) && !value.hasComment;
    case Role::Tags:
        return useTags(value) && !value.hasComment;
    case Role::Creation:
        return useDate(entry, Role::Creation, imported_.creationDate) && !value.hasComment;
    case Role::Modification:
        return useDate(entry, Role::Modification, imported_.modificationDate) && !value.hasComment;
    case Role::None:
        break;
    }
    return false;
}

bool FrontMatterImport::useTitle(const FrontMatterValue& value)
{
    if (value.isList || heading_)
        return false;
    const std::string_view title = trimmed(value.items.front());
    if (title.empty())
        return true;
    if (beginsWithHeading(body_))
        return CVKAST::fromMarkdown(body_).textSummary().title == title;
    heading_ = headingForTitle(title);
    return heading_.has_value();
}

bool FrontMatterImport::useTags(const FrontMatterValue& value)
{
    bool complete = true;
    for (const std::string& item : value.items) {
        for (const std::string& name : namesOfItem(item)) {
            const std::string sanitized = CVKHashtag::sanitizeTagName(name);
            complete = complete && sanitized == name;
            if (!sanitized.empty())
                tags_.push_back(sanitized);
        }
    }
    return complete;
}

bool FrontMatterImport::useDate(const FrontMatterEntry& entry, Role role, std::optional<NSDate>& date) const
{
    if (bestEntryFor(role) != &entry)
        return false;
    date = dateOfValue(entry.value->items.front());
    return true;
}

const FrontMatterEntry* FrontMatterImport::bestEntryFor(Role role) const
{
    const FrontMatterEntry* best = nullptr;
    std::size_t bestRank = kKeyRoles.size();
    for (const FrontMatterEntry& entry : frontMatter_.entries) {
        const std::size_t rank = rankOfKey(entry.key);
        if (rank >= bestRank || kKeyRoles[rank].role != role || !entry.value || entry.value->isList)
            continue;
        if (entry.value->items.empty() || !dateOfValue(entry.value->items.front()))
            continue;
        best = &entry;
        bestRank = rank;
    }
    return best;
}

void FrontMatterImport::appendKeptEntries()
{
    if (kept_.empty())
        return;
    // A fence is longer than any run of backticks inside it.
    std::size_t longest = 2;
    for (std::size_t offset = 0; (offset = kept_.find('`', offset)) != std::string::npos;) {
        const std::size_t end = std::min(kept_.find_first_not_of('`', offset), kept_.size());
        longest = std::max(longest, end - offset);
        offset = end;
    }
    const std::string fence(longest + 1, '`');
    const std::string lineEnd(frontMatter_.lineEnd);
    std::string& text = imported_.text;
    if (!text.empty()) {
        if (!text.ends_with('\n'))
            text += lineEnd;
        if (!text.ends_with("\n\n") && !text.ends_with("\n\r\n"))
            text += lineEnd;
    }
    text += fence + "yaml" + lineEnd + kept_ + fence + lineEnd;
}

ImportedText FrontMatterImport::result()
{
    for (const FrontMatterEntry& entry : frontMatter_.entries) {
        if (!use(entry))
            kept_ += entry.source;
    }
    const std::string lineEnd(frontMatter_.lineEnd);
    if (heading_)
        imported_.text = *heading_ + lineEnd + (body_.empty() ? std::string() : lineEnd);
    imported_.text += body_;
    appendKeptEntries();
    imported_.text = textWithTags(std::move(imported_.text), tags_);
    return std::move(imported_);
}

} // namespace

ImportedText importedTextOfFile(std::string_view text)
{
    const std::optional<FrontMatter> frontMatter = frontMatterOfText(text);
    if (!frontMatter)
        return {std::string(text), std::nullopt, std::nullopt};
    return FrontMatterImport(*frontMatter).result();
}

std::string textWithTags(std::string text, const std::vector<std::string>& names)
{
    if (names.empty())
        return text;
    std::set<std::string> present;
    const CVKAST document = CVKAST::fromMarkdown(text);
    for (const std::string& tag : document.textSummary().tags)
        present.insert(CVKHashtag::normalizeTagName(tag));
    for (const std::string& name : names) {
        if (present.insert(CVKHashtag::normalizeTagName(name)).second)
            text = CVKHashtag::addTagNameToTheBottomOfString(name, text).markdown();
    }
    return text;
}

} // namespace tarn
