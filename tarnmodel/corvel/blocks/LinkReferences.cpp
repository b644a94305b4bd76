#include "tarnmodel/corvel/blocks/LinkReferences.h"

#include "tarnmodel/corvel/blocks/LeafContent.h"
#include "tarnmodel/corvel/scanning/CharacterClasses.h"
#include "tarnmodel/corvel/scanning/LinkScanner.h"

#include "tarnmodel/platform/foundation/text/Folding.h"

#include <optional>

namespace tarn::corvel {

namespace {

struct ScannedDefinition {
    SourceRange label;
    SourceRange destination;
    std::optional<SourceRange> title;
    std::size_t end = 0; ///< at the start of the next line
};

/// The offset after blanks and the line's end; nothing when ink is left on the line.
std::optional<std::size_t> endOfBlankRest(std::string_view content, std::size_t offset)
{
    while (offset < content.size() && isSpaceOrTab(content[offset]))
        ++offset;
    if (offset == content.size())
        return offset;
    if (!isLineEnd(content[offset]))
        return std::nullopt;
    const bool pair = content[offset] == '\r' && offset + 1 < content.size() && content[offset + 1] == '\n';
    return offset + (pair ? 2 : 1);
}

std::optional<ScannedDefinition> scanDefinition(std::string_view content, std::size_t offset)
{
    const auto label = scanLabel(content, offset);
    if (!label || label->end + 1 >= content.size() || content[label->end + 1] != ':')
        return std::nullopt;
    const std::size_t begin = skipBlanksAndOneLineEnd(content, label->end + 2);
    const auto destination = scanDestination(content, begin);
    if (!destination || destination->end == begin)
        return std::nullopt;

    ScannedDefinition definition{*label, destination->range, std::nullopt, 0};
    const std::size_t titleBegin = skipBlanksAndOneLineEnd(content, destination->end);
    const auto title = titleBegin > destination->end ? scanTitle(content, titleBegin) : std::nullopt;
    if (title) {
        if (const auto end = endOfBlankRest(content, title->end)) {
            definition.title = title->range;
            definition.end = *end;
            return definition;
        }
    }
    // What looked like a title may be the text of the next line.
    const auto end = endOfBlankRest(content, destination->end);
    if (!end)
        return std::nullopt;
    definition.end = *end;
    return definition;
}

} // namespace

std::string normalizedLabel(std::string_view label)
{
    std::string collapsed;
    collapsed.reserve(label.size());
    bool ascii = true;
    for (const char c : label) {
        if (isBlank(c)) {
            if (!collapsed.empty() && collapsed.back() != ' ')
                collapsed += ' ';
            continue;
        }
        ascii = ascii && static_cast<unsigned char>(c) < 0x80;
        collapsed += lowerASCII(c);
    }
    if (!collapsed.empty() && collapsed.back() == ' ')
        collapsed.pop_back();
    return ascii ? collapsed : foldCase(collapsed);
}

std::size_t LinkReferences::takeDefinitions(const LeafContent& content)
{
    const std::string_view text = content.text();
    std::size_t offset = 0;
    while (offset < text.size() && text[offset] == '[') {
        const auto scanned = scanDefinition(text, offset);
        if (!scanned)
            break;
        const auto slice = [&](SourceRange range) { return text.substr(range.begin, range.length()); };
        LinkDefinition definition;
        definition.destination = content.sourceRange(scanned->destination.begin, scanned->destination.end);
        if (scanned->title) {
            definition.hasTitle = true;
            definition.title = slice(*scanned->title);
        }
        const auto index = static_cast<DefinitionIndex>(definitions_.size());
        if (indexForLabel_.try_emplace(normalizedLabel(slice(scanned->label)), index).second)
            definitions_.push_back(std::move(definition));
        offset = scanned->end;
    }
    return offset;
}

DefinitionIndex LinkReferences::find(std::string_view label) const
{
    if (definitions_.empty())
        return kNoDefinition;
    const auto found = indexForLabel_.find(normalizedLabel(label));
    return found == indexForLabel_.end() ? kNoDefinition : found->second;
}

} // namespace tarn::corvel
