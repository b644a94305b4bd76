#include "tarnmodel/platform/coredata/NSEntityDescription.h"

#include <algorithm>

namespace tarn {

bool NSEntityDescription::isKindOfEntity(const NSEntityDescription& other) const noexcept
{
    for (const NSEntityDescription* entity = this; entity; entity = entity->superentity_) {
        if (entity == &other)
            return true;
    }
    return false;
}

const NSPropertyDescription* NSEntityDescription::propertyNamed(std::string_view name) const noexcept
{
    const auto found = std::ranges::lower_bound(propertiesByName_, name, {}, &NSPropertyDescription::name);
    return found != propertiesByName_.end() && (*found)->name() == name ? *found : nullptr;
}

const NSAttributeDescription* NSEntityDescription::attributeNamed(std::string_view name) const noexcept
{
    const NSPropertyDescription* property = propertyNamed(name);
    return property && !property->isRelationship() ? static_cast<const NSAttributeDescription*>(property) : nullptr;
}

const NSRelationshipDescription* NSEntityDescription::relationshipNamed(std::string_view name) const noexcept
{
    const NSPropertyDescription* property = propertyNamed(name);
    return property && property->isRelationship() ? static_cast<const NSRelationshipDescription*>(property) : nullptr;
}

std::vector<const NSAttributeDescription*> NSEntityDescription::attributes() const
{
    std::vector<const NSAttributeDescription*> attributes;
    for (const NSPropertyDescription* property : properties_) {
        if (!property->isRelationship())
            attributes.push_back(static_cast<const NSAttributeDescription*>(property));
    }
    return attributes;
}

std::vector<const NSRelationshipDescription*> NSEntityDescription::relationships() const
{
    std::vector<const NSRelationshipDescription*> relationships;
    for (const NSPropertyDescription* property : properties_) {
        if (property->isRelationship())
            relationships.push_back(static_cast<const NSRelationshipDescription*>(property));
    }
    return relationships;
}

} // namespace tarn
