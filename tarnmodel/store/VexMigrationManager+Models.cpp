// Which versions of the model are installed, and where their mappings lead.

#include "tarnmodel/model/Resources.h"
#include "tarnmodel/platform/coredata/HeldStoreFile.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSMappingModel.h"
#include "tarnmodel/store/VersionNumberInternal.h"
#include "tarnmodel/store/VexMigrationManager.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kModelsFolder = ".momd";
constexpr std::string_view kModelFile = ".json";
constexpr std::string_view kMappingFile = ".mapping.json";
constexpr std::string_view kModelFileAtTheTop = ".model.json";
constexpr std::string_view kVersionInformation = "VersionInfo.json";

NSError noModels()
{
    return {MigrationErrorDomain, MigrationErrorNoPath, "No models found!"};
}

NSError missingMapping()
{
    return {MigrationErrorDomain, MigrationErrorNoPath, "No mapping model found in bundle"};
}

std::string nameOfModelFile(const fs::path& file)
{
    std::string name = file.filename().string();
    name.resize(name.size() - (name.ends_with(kModelFileAtTheTop) ? kModelFileAtTheTop : kModelFile).size());
    return name;
}

/// What is in the folder and has a name that ends so, in the order of the versions.
std::vector<fs::path> itemsInFolder(const fs::path& folder, std::string_view ending)
{
    std::vector<fs::path> items;
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure))
        if (entry->path().filename().string().ends_with(ending))
            items.push_back(entry->path());
    std::ranges::sort(items, [](const fs::path& one, const fs::path& other) {
        const std::string name = nameOfModelFile(one);
        const std::string otherName = nameOfModelFile(other);
        return versionNumberOf(name) < versionNumberOf(otherName);
    });
    return items;
}

bool isVersionOfModel(const fs::path& file)
{
    const std::string name = file.filename().string();
    return name != kVersionInformation && !name.ends_with(kMappingFile);
}

} // namespace

std::vector<fs::path> VexMigrationManager::modelPaths()
{
    std::vector<fs::path> paths;
    const auto resources = resourceFolder();
    if (!resources)
        return paths;
    for (const fs::path& folder : itemsInFolder(*resources, kModelsFolder))
        std::ranges::copy_if(itemsInFolder(folder, kModelFile), std::back_inserter(paths), isVersionOfModel);
    std::ranges::copy(itemsInFolder(*resources, kModelFileAtTheTop), std::back_inserter(paths));
    return paths;
}

std::shared_ptr<const NSManagedObjectModel> VexMigrationManager::sourceModelForSourceMetadata(
    const std::map<std::string, std::string>& metadata)
{
    for (const fs::path& path : modelPaths()) {
        const auto model = NSManagedObjectModel::modelWithContentsOfFile(path);
        if (model && NSPersistentStoreCoordinator::isModelCompatibleWithStoreMetadata(*model, metadata))
            return model;
    }
    return nullptr;
}

bool VexMigrationManager::getDestinationModel(std::shared_ptr<const NSManagedObjectModel>& destinationModel,
    std::shared_ptr<const NSMappingModel>& mappingModel, std::string& modelName,
    const NSManagedObjectModel& sourceModel, NSError* error)
{
    const std::vector<fs::path> paths = modelPaths();
    if (paths.empty()) {
        assignError(error, noModels());
        return false;
    }
    const std::array bundles{resourceFolder().value_or(fs::path())};
    for (const fs::path& path : paths) {
        std::shared_ptr<const NSManagedObjectModel> model = NSManagedObjectModel::modelWithContentsOfFile(path);
        auto mapping = model ? NSMappingModel::mappingModelFromBundles(bundles, sourceModel, *model) : nullptr;
        if (!mapping)
            continue;
        destinationModel = std::move(model);
        mappingModel = std::move(mapping);
        modelName = nameOfModelFile(path);
        return true;
    }
    assignError(error, missingMapping());
    return false;
}

bool VexMigrationManager::findStep(Step& step, NSError* error)
{
    if (modelPaths().empty()) {
        assignError(error, noModels());
        return false;
    }
    step.source = sourceModelForSourceMetadata(held_->metadata());
    std::shared_ptr<const NSMappingModel> found;
    const bool isReadable = NSPersistentStoreCoordinator::formatOfStoreMetadata(held_->metadata())
        == NSPersistentStoreCoordinator::currentStoreFormat();
    if (!step.source || !isReadable) {
        assignError(error, missingMapping());
        return false;
    }
    if (!getDestinationModel(step.destination, found, step.modelName, *step.source, error))
        return false;
    // Mappings that lead back to where the run has been would go on for ever.
    if (std::ranges::find(validMigratedVersions_, step.modelName) != validMigratedVersions_.end()) {
        assignError(error, missingMapping());
        return false;
    }
    if (VexMigrationManagerDelegate* const listener = delegate())
        step.mappings = listener->migrationManagerMappingModelsForSourceModel(*this, step.source);
    std::erase(step.mappings, nullptr);
    if (step.mappings.empty())
        step.mappings.push_back(std::move(found));
    return true;
}

} // namespace tarn
