#include "tarnmodel/platform/coredata/description/KeyPathWalk.h"

namespace tarn {

namespace {

/// A property of one sub-entity may be named in a fetch on the whole family.
const NSPropertyDescription* propertyInFamily(const NSEntityDescription& entity, const std::string& key)
{
    const NSPropertyDescription* property = entity.propertyNamed(key);
    for (std::size_t sub = 0; !property && sub < entity.subentities().size(); ++sub)
        property = entity.subentities()[sub]->propertyNamed(key);
    return property;
}

} // namespace

void walkKeyPath(const NSEntityDescription& entity, const std::vector<std::string>& keys, const KeyPathVisitor& visit)
{
    const NSEntityDescription* here = &entity;
    std::vector<const NSRelationshipDescription*> way;
    for (const std::string& key : keys) {
        const NSPropertyDescription* property = propertyInFamily(*here, key);
        if (!property)
            return;
        visit(way, *here, *property);
        if (!property->isRelationship())
            return;
        way.push_back(static_cast<const NSRelationshipDescription*>(property));
        here = &way.back()->destinationEntity();
    }
}

} // namespace tarn
