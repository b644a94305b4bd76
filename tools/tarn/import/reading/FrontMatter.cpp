#include "tools/tarn/import/reading/FrontMatter.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>

namespace tarn {

namespace {

struct Line {
    std::string_view content; ///< without its line end
    std::string_view source;  ///< with it
};

Line lineAt(std::string_view text, std::size_t offset)
{
    const std::size_t end = text.find('\n', offset);
    const std::string_view source = text.substr(offset, end == std::string_view::npos ? end : end + 1 - offset);
    std::string_view content = source;
    if (content.ends_with('\n'))
        content.remove_suffix(1);
    if (content.ends_with('\r'))
        content.remove_suffix(1);
    return {content, source};
}

std::string_view withoutTrailingBlanks(std::string_view text)
{
    const std::size_t last = text.find_last_not_of(" \t");
    return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

bool isFence(std::string_view line)
{
    return withoutTrailingBlanks(line) == "---";
}

bool isBlank(std::string_view line)
{
    return withoutTrailingBlanks(line).empty();
}

struct KeyLine {
    std::string key;
    std::string_view value;
};

/// "key: value", "key:", also with the key in quotes.
std::optional<KeyLine> keyLineOf(std::string_view line)
{
    constexpr std::string_view kNoKeyBegins = "-?:,[]{}#&*!|>%@`";
    if (line.empty() || kNoKeyBegins.find(line.front()) != std::string_view::npos)
        return std::nullopt;
    std::size_t searchFrom = 0;
    const bool quoted = line.front() == '"' || line.front() == '\'';
    if (quoted) {
        searchFrom = line.find(line.front(), 1);
        if (searchFrom == std::string_view::npos)
            return std::nullopt;
    }
    std::size_t colon = line.find(':', searchFrom);
    while (
        colon != std::string_view::npos && colon + 1 < line.size() && line[colon + 1] != ' ' && line[colon + 1] != '\t')
        colon = line.find(':', colon + 1);
    if (colon == std::string_view::npos)
        return std::nullopt;
    std::string_view key = withoutTrailingBlanks(line.substr(0, colon));
    if (quoted) {
        if (key.size() < 2 || key.back() != key.front())
            return std::nullopt;
        key = key.substr(1, key.size() - 2);
    }
    if (key.empty())
        return std::nullopt;
    return KeyLine{std::string(key), line.substr(colon + 1)};
}

/// Gathers the lines between the fences into entries.
class EntryReader {
public:
    /// False when the line has no place in simple YAML.
    bool add(const Line& line);
    std::vector<FrontMatterEntry> finish();

private:
    bool addKey(const Line& line);
    void closeEntry();

    std::vector<FrontMatterEntry> entries_;
    bool open_ = false;
    std::string_view inlineText_;
    std::vector<std::string_view> deeperLines_;
    std::string blankLines_; ///< belong to the entry only when it goes on after them
};

bool EntryReader::add(const Line& line)
{
    if (isBlank(line.content)) {
        blankLines_ += line.source;
        return true;
    }
    const char first = line.content.front();
    const bool listItem = line.content == "-" || line.content.starts_with("- ");
    const bool deeper = first == ' ' || first == '\t' || (listItem && isBlank(inlineText_));
    if (!deeper)
        return addKey(line);
    if (!open_)
        return false;
    entries_.back().source += blankLines_;
    entries_.back().source += line.source;
    blankLines_.clear();
    deeperLines_.push_back(line.content);
    return true;
}

bool EntryReader::addKey(const Line& line)
{
    const bool comment = line.content.front() == '#';
    std::optional<KeyLine> keyLine;
    if (!comment && !(keyLine = keyLineOf(line.content)))
        return false;
    closeEntry();
    entries_.push_back({keyLine ? keyLine->key : std::string(), std::string(line.source), std::nullopt});
    open_ = !comment;
    inlineText_ = keyLine ? keyLine->value : std::string_view();
    return true;
}

void EntryReader::closeEntry()
{
    if (open_)
        entries_.back().value = readFrontMatterValue(inlineText_, deeperLines_);
    open_ = false;
    deeperLines_.clear();
    blankLines_.clear();
}

std::vector<FrontMatterEntry> EntryReader::finish()
{
    closeEntry();
    return std::move(entries_);
}

} // namespace

std::optional<FrontMatter> frontMatterOfText(std::string_view text)
{
    const Line opening = lineAt(text, 0);
    if (!isFence(opening.content) || opening.source.size() == opening.content.size())
        return std::nullopt;

    EntryReader reader;
    std::size_t offset = opening.source.size();
    for (;;) {
        if (offset >= text.size())
            return std::nullopt; // never closed
        const Line line = lineAt(text, offset);
        offset += line.source.size();
        if (isFence(line.content) || withoutTrailingBlanks(line.content) == "...")
            break;
        if (!reader.add(line))
            return std::nullopt;
    }

    FrontMatter frontMatter{reader.finish(), text.substr(offset), opening.source.ends_with("\r\n") ? "\r\n" : "\n"};
    const bool hasKey = std::ranges::any_of(frontMatter.entries, [](const auto& entry) { return !entry.key.empty(); });
    return hasKey ? std::optional(std::move(frontMatter)) : std::nullopt;
}

} // namespace tarn
