#include "corvel/CVKHashtag.h"

#include "corvel/TagNames.h"

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

} // namespace tarn
