#include "tools/tarn/import/reading/SourceText.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/import/reading/FrontMatter.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <set>

namespace tarn {

namespace {

enum class Role { None, Title, Aliases, Tags, Creation, Modification, Pinned, Archived };

struct KeyRole {
    std::string_view key; ///< in lower case, without blanks, hyphens and underscores
    Role role;
};

// Of several keys for one date the first in this table counts; the others stay in the text.
constexpr std::array kKeyRoles{
    KeyRole{"title", Role::Title},
    KeyRole{"tags", Role::Tags},
    KeyRole{"tag", Role::Tags},
    KeyRole{"aliases", Role::Aliases},
    KeyRole{"alias", Role::Aliases},
    KeyRole{"pinned", Role::Pinned},
    KeyRole{"archived", Role::Archived},
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

constexpr std::string_view kIdentifierKey = "tarnid";

/// The key in lower case, without blanks, hyphens and underscores.
std::string plainKey(std::string_view key)
{
    std::string plain;
    for (const char character : key) {
        if (character != ' ' && character != '-' && character != '_')
            plain += static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    }
    return plain;
}

std::size_t rankOfKey(std::string_view key)
{
    return static_cast<std::size_t>(std::ranges::find(kKeyRoles, plainKey(key), &KeyRole::key) - kKeyRoles.begin());
}

std::string_view withoutLeadingLineBreaks(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of("\r\n");
    return begin == std::string_view::npos ? std::string_view() : text.substr(begin);
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

/// Reads what front matter says, an entry after the other.
class FrontMatterReading {
public:
    explicit FrontMatterReading(const FrontMatter& frontMatter) : frontMatter_(frontMatter) { }
    SourceText result();

private:
    /// Whether all that the entry says has been taken, so that its lines can go.
    bool take(const FrontMatterEntry& entry);
    bool takeRole(const FrontMatterEntry& entry, Role role);
    bool takeTitle(const FrontMatterEntry& entry);
    bool takeTags(const FrontMatterValue& value);
    bool takeAliases(const FrontMatterValue& value);
    bool takeDate(const FrontMatterEntry& entry, Role role, std::optional<NSDate>& date) const;
    static bool takeFlag(const FrontMatterValue& value, bool& flag);
    bool takeExported(const FrontMatterEntry& entry);
    const FrontMatterEntry* bestEntryFor(Role role) const;

    const FrontMatter& frontMatter_;
    SourceText source_;
};

bool FrontMatterReading::take(const FrontMatterEntry& entry)
{
    if (!entry.value)
        return false;
    if (source_.exported && takeExported(entry))
        return true;
    const std::size_t rank = rankOfKey(entry.key);
    if (rank == kKeyRoles.size())
        return false;
    if (entry.value->items.empty())
        return kKeyRoles[rank].role != Role::Aliases && !entry.value->hasComment; // says nothing
    if (kKeyRoles[rank].role == Role::Title)
        return takeTitle(entry);
    return takeRole(entry, kKeyRoles[rank].role) && !entry.value->hasComment;
}

bool FrontMatterReading::takeRole(const FrontMatterEntry& entry, Role role)
{
    const FrontMatterValue& value = *entry.value;
    switch (role) {
    case Role::Tags:
        return takeTags(value);
    case Role::Aliases:
        return takeAliases(value);
    case Role::Creation:
        return takeDate(entry, role, source_.creationDate);
    case Role::Modification:
        return takeDate(entry, role, source_.modificationDate);
    case Role::Pinned:
        return takeFlag(value, source_.isPinned);
    case Role::Archived:
        return takeFlag(value, source_.isArchived);
    case Role::Title:
    case Role::None:
        break;
    }
    return false;
}

/// The title is one of the lines that are kept until it is known what the note is called.
bool FrontMatterReading::takeTitle(const FrontMatterEntry& entry)
{
    const FrontMatterValue& value = *entry.value;
    if (value.isList || source_.title)
        return false;
    const std::string_view title = trimmed(std::string_view(value.items.front()));
    if (title.empty())
        return !value.hasComment;
    source_.title = std::string(title);
    source_.kept.push_back({entry.source, !value.hasComment});
    return true;
}

bool FrontMatterReading::takeTags(const FrontMatterValue& value)
{
    bool complete = true;
    for (const std::string& item : value.items) {
        for (const std::string& name : namesOfItem(item)) {
            const std::string sanitized = CVKHashtag::sanitizeTagName(name);
            complete = complete && sanitized == name;
            if (!sanitized.empty())
                source_.tags.push_back(sanitized);
        }
    }
    return complete;
}

/// A note has no place for them but its text, so that their lines stay.
bool FrontMatterReading::takeAliases(const FrontMatterValue& value)
{
    for (const std::string& item : value.items) {
        if (const std::string_view alias = trimmed(std::string_view(item)); !alias.empty())
            source_.aliases.emplace_back(alias);
    }
    return false;
}

bool FrontMatterReading::takeDate(const FrontMatterEntry& entry, Role role, std::optional<NSDate>& date) const
{
    if (bestEntryFor(role) != &entry)
        return false;
    date = dateOfValue(entry.value->items.front());
    return true;
}

bool FrontMatterReading::takeFlag(const FrontMatterValue& value, bool& flag)
{
    if (value.isList)
        return false;
    const std::string text = fold(trimmed(std::string_view(value.items.front())));
    flag = flag || text == "true";
    return text == "true" || text == "false";
}

/// What an export of ours wrote, which no other file has.
bool FrontMatterReading::takeExported(const FrontMatterEntry& entry)
{
    const FrontMatterValue& value = *entry.value;
    const std::string key = plainKey(entry.key);
    if (value.isList || value.hasComment || value.items.empty())
        return false;
    if (key == kIdentifierKey)
        return value.items.front() == source_.exported->identifier;
    if (key == "tarnlinks") {
        source_.exported->linksToFiles = value.items.front() == "files";
        return source_.exported->linksToFiles;
    }
    if (key == "trashed")
        return takeFlag(value, source_.exported->isTrashed);
    if (key == "readonly")
        return takeFlag(value, source_.exported->isReadOnly);
    if (key != "conflict")
        return false;
    source_.exported->conflict = value.items.front();
    return true;
}

const FrontMatterEntry* FrontMatterReading::bestEntryFor(Role role) const
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

SourceText FrontMatterReading::result()
{
    for (const FrontMatterEntry& entry : frontMatter_.entries) {
        const bool isIdentifier = entry.value && !entry.value->isList && plainKey(entry.key) == kIdentifierKey;
        if (isIdentifier && !entry.value->items.empty() && !source_.exported)
            source_.exported = ExportedIdentity{.identifier = entry.value->items.front()};
    }
    for (const FrontMatterEntry& entry : frontMatter_.entries) {
        if (!take(entry))
            source_.kept.push_back({entry.source, false});
    }
    source_.lineEnd = frontMatter_.lineEnd;
    // What was exported is the text to its first byte.
    source_.body = source_.exported ? frontMatter_.body : withoutLeadingLineBreaks(frontMatter_.body);
    return std::move(source_);
}

/// Puts the lines into a fenced block below the text.
void appendFenced(std::string& text, const std::string& lines, const std::string& lineEnd)
{
    // A fence is longer than any run of backticks inside it.
    std::size_t longest = 2;
    for (std::size_t offset = 0; (offset = lines.find('`', offset)) != std::string::npos;) {
        const std::size_t end = std::min(lines.find_first_not_of('`', offset), lines.size());
        longest = std::max(longest, end - offset);
        offset = end;
    }
    const std::string fence(longest + 1, '`');
    if (!text.empty()) {
        if (!text.ends_with('\n'))
            text += lineEnd;
        if (!text.ends_with("\n\n") && !text.ends_with("\n\r\n"))
            text += lineEnd;
    }
    text += fence + "yaml" + lineEnd + lines + fence + lineEnd;
}

} // namespace

SourceText sourceTextOfFile(std::string_view text)
{
    if (const std::optional<FrontMatter> frontMatter = frontMatterOfText(text))
        return FrontMatterReading(*frontMatter).result();
    SourceText source;
    source.body = text;
    return source;
}

std::string textOfSource(const SourceText& source, std::string body, bool saysTitle)
{
    std::string lines;
    for (const SourceText::KeptLines& kept : source.kept) {
        if (!(kept.isTitle && saysTitle))
            lines += kept.source;
    }
    if (!lines.empty())
        appendFenced(body, lines, source.lineEnd);
    return textWithTags(std::move(body), source.tags);
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
