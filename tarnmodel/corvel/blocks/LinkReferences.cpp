#include "tarnmodel/corvel/blocks/LinkReferences.h"

#include "tarnmodel/corvel/blocks/LeafContent.h"
#include "tarnmodel/corvel/scanning/CharacterClasses.h"
#include "tarnmodel/corvel/scanning/LinkScanner.h"

#include "tarnmodel/platform/foundation/text/Folding.h"

namespace tarn::corvel {

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
