#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

#include "tarnmodel/platform/coredata/StoreErrors.h"
#include "tarnmodel/platform/coredata/description/ModelReader.h"

#include <fmt/format.h>

#include <algorithm>
#include <fstream>
#include <sstream>

namespace tarn {

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
