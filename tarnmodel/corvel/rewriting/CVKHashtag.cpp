#include "tarnmodel/corvel/CVKHashtag.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/rewriting/TagRewriting.h"
#include "tarnmodel/corvel/scanning/HashtagScanner.h"
#include "tarnmodel/corvel/scanning/TagNames.h"

namespace tarn {

std::string CVKHashtag::sanitizeTagName(std::string_view name)
{
    return corvel::sanitizedTagName(name);
}

std::string CVKHashtag::normalizeTagName(std::string_view name)
{
    return corvel::normalizedTagName(name);
}

std::vector<std::string> CVKHashtag::componentsForForTagName(std::string_view name)
{
    return corvel::tagComponents(name);
}

std::string CVKHashtag::tagNameFromComponents(const std::vector<std::string>& components)
{
    std::string name;
    for (const std::string& component : components) {
        if (!name.empty())
            name += '/';
        name += component;
    }
    return name;
}

std::string CVKHashtag::hashtagStringForTagName(std::string_view name)
{
    return corvel::hashtagForName(name);
}

std::optional<CVKHashtag::Found> CVKHashtag::hashtagAt(std::string_view text, std::size_t offset) noexcept
{
    const auto hashtag = corvel::scanHashtag(text, offset);
    if (!hashtag)
        return std::nullopt;
    return Found{text.substr(hashtag->name.begin, hashtag->name.end - hashtag->name.begin), hashtag->end};
}

CVKAST CVKHashtag::addTagNameToTheTopOfString(std::string_view name, std::string_view text)
{
    return corvel::withTagAtTop(CVKAST::fromMarkdown(text), name);
}

CVKAST CVKHashtag::addTagNameToTheBottomOfString(std::string_view name, std::string_view text)
{
    return corvel::withTagAtBottom(CVKAST::fromMarkdown(text), name);
}

CVKAST CVKHashtag::renameTagName(std::string_view name, std::string_view newName, std::string_view text)
{
    return corvel::renamedTag(CVKAST::fromMarkdown(text), name, newName);
}

CVKAST CVKHashtag::removeTagName(std::string_view name, std::string_view text)
{
    return corvel::withoutTag(CVKAST::fromMarkdown(text), name);
}

} // namespace tarn
