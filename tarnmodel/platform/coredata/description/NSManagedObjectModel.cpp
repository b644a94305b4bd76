#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

#include "tarnmodel/platform/coredata/StoreErrors.h"
#include "tarnmodel/platform/coredata/description/ModelReader.h"

#include <fmt/format.h>

#include <algorithm>
#include <fstream>
#include <sstream>

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
    auto found = propertiesByName_.find(name);
    return found == propertiesByName_.end() ? nullptr : found->second;
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

NSManagedObjectModel::NSManagedObjectModel() = default;
NSManagedObjectModel::~NSManagedObjectModel() = default;

std::shared_ptr<NSManagedObjectModel> NSManagedObjectModel::modelWithText(std::string_view text, NSError* error)
{
    try {
        return ModelReader::read(parseModelFile(text));
    } catch (const ModelError& problem) {
        assignError(error, NSError(TarnStoreErrorDomain, StoreErrorInvalidModel, problem.what()));
        return nullptr;
    }
}

std::shared_ptr<NSManagedObjectModel> NSManagedObjectModel::modelWithContentsOfFile(
    const std::filesystem::path& file, NSError* error)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf(); // fails, and does not throw, on a folder
    if (!stream.is_open() || text.bad()) {
        assignError(error,
            NSError(TarnStoreErrorDomain, StoreErrorInvalidModel, fmt::format("{}: cannot be read", file.string())));
        return nullptr;
    }
    NSError problem;
    auto model = modelWithText(text.str(), &problem);
    if (!model)
        assignError(error,
            NSError(problem.domain(), problem.code(),
                fmt::format("{}: {}", file.string(), problem.localizedDescription())));
    return model;
}

const NSEntityDescription* NSManagedObjectModel::entityNamed(std::string_view name) const noexcept
{
    auto found = entitiesByName_.find(name);
    return found == entitiesByName_.end() ? nullptr : found->second;
}

std::vector<std::pair<std::string, std::string>> NSManagedObjectModel::entityVersionHashes() const
{
    std::vector<std::pair<std::string, std::string>> hashes;
    for (const NSEntityDescription* entity : entities_)
        hashes.emplace_back(entity->name(), entity->versionHash());
    std::sort(hashes.begin(), hashes.end());
    return hashes;
}

void NSManagedObjectModel::setRecordConstructor(std::string_view entityName, RecordConstructor constructor)
{
    auto found = entitiesByName_.find(entityName);
    if (found != entitiesByName_.end())
        found->second->constructor_ = constructor;
}

} // namespace tarn
