#include "tarnmodel/platform/coredata/description/ModelReader.h"

#include <fmt/format.h>

#include <algorithm>

namespace tarn {
namespace {

std::uint64_t fnv1a(std::string_view text)
{
    std::uint64_t hash = 0xCBF29CE484222325ULL;
    for (char character : text) {
        hash ^= static_cast<unsigned char>(character);
        hash *= 0x100000001B3ULL;
    }
    return hash;
}

std::string canonicalText(const NSAttributeDescription& attribute)
{
    return fmt::format("attribute {} type {} optional {} large {}\n", attribute.name(),
        static_cast<int>(attribute.type()), attribute.isOptional(), attribute.isLarge());
}

std::string canonicalText(const NSRelationshipDescription& relationship)
{
    return fmt::format("relationship {} optional {} to {} many {} inverse {} storage {} owner {}\n",
        relationship.name(), relationship.isOptional(), relationship.destinationEntity().name(),
        relationship.isToMany(), relationship.inverseRelationship().name(), static_cast<int>(relationship.storage()),
        relationship.ownsJoinTable());
}

std::vector<const NSPropertyDescription*> propertiesByName(const NSEntityDescription& entity)
{
    std::vector<const NSPropertyDescription*> properties = entity.properties();
    std::sort(properties.begin(), properties.end(),
        [](const auto* left, const auto* right) { return left->name() < right->name(); });
    return properties;
}

/// What decides how rows look. Documentation, delete rules, defaults and index hints do not; nor does the order of
/// properties, since rows are read by column name. The numbers of types and storages are written: they are pinned.
std::string canonicalText(
    const NSEntityDescription& entity, const std::vector<const NSPropertyDescription*>& properties)
{
    const NSEntityDescription* parent = entity.superentity();
    std::string text = fmt::format(
        "entity {} parent {} abstract {}\n", entity.name(), parent ? parent->name() : "", entity.isAbstract());
    for (const NSPropertyDescription* property : properties) {
        if (const auto* relationship = dynamic_cast<const NSRelationshipDescription*>(property))
            text += canonicalText(*relationship);
        else
            text += canonicalText(static_cast<const NSAttributeDescription&>(*property));
    }
    return text;
}

} // namespace

void ModelReader::setVersionHashes()
{
    const auto hash = [](const std::string& text) { return fmt::format("{:016x}", fnv1a(text)); };
    for (const auto& owned : model_->ownedEntities_) {
        owned->versionHash_ = hash(canonicalText(*owned, propertiesByName(*owned)));
        owned->accessorHash_ = hash(canonicalText(*owned, owned->properties()));
    }
}

} // namespace tarn
