#include "tarnmodel/model/ManagedObjectModel.h"

#include "tarnmodel/model/RecordClasses.h"
#include "tarnmodel/model/Resources.h"
#include "tarnmodel/platform/coredata/StoreErrors.h"

#include <nlohmann/json.hpp>

#include <fmt/format.h>

#include <fstream>
#include <map>
#include <mutex>

namespace tarn {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kModelFolder = "Model.momd";
constexpr std::string_view kVersionInformation = "VersionInfo.json";

NSError modelError(std::string_view description)
{
    return NSError(TarnStoreErrorDomain, StoreErrorInvalidModel, description);
}

std::shared_ptr<const NSManagedObjectModel> readModel(const fs::path& file, NSError* error)
{
    auto model = NSManagedObjectModel::modelWithContentsOfFile(file, error);
    if (!model)
        return nullptr;
    if (auto entity = entityOfOtherVersion(*model)) {
        assignError(error,
            modelError(fmt::format(
                "{}: \"{}\" is not what this library was built for; install the library and its resources together",
                file.string(), *entity)));
        return nullptr;
    }
    registerRecordClasses(*model);
    return model;
}

} // namespace

std::optional<fs::path> OVManagedObjectModel::modelURL()
{
    return resourceNamed(kModelFolder);
}

std::optional<fs::path> OVManagedObjectModel::modelURLForVersion(std::string_view version)
{
    auto folder = modelURL();
    if (!folder)
        return std::nullopt;
    fs::path file = *folder / fmt::format("{}.json", version);
    std::error_code failure;
    return fs::is_regular_file(file, failure) ? std::optional<fs::path>(file) : std::nullopt;
}

std::optional<std::string> OVManagedObjectModel::currentVersion(NSError* error)
{
    auto folder = modelURL();
    if (!folder) {
        assignError(error, modelError(fmt::format("{} is missing; set TARN_RESOURCES to its folder", kModelFolder)));
        return std::nullopt;
    }
    const fs::path file = *folder / kVersionInformation;
    std::ifstream stream(file, std::ios::binary);
    const auto information = nlohmann::json::parse(stream, nullptr, false);
    auto current = information.is_object() ? information.find("current") : information.end();
    if (current == information.end() || !current->is_string()) {
        assignError(error, modelError(fmt::format("{}: names no current version", file.string())));
        return std::nullopt;
    }
    return current->get<std::string>();
}

std::shared_ptr<const NSManagedObjectModel> OVManagedObjectModel::current(NSError* error)
{
    auto version = currentVersion(error);
    if (!version)
        return nullptr;
    auto file = modelURLForVersion(*version);
    if (!file) {
        assignError(error, modelError(fmt::format("the model \"{}\" is missing", *version)));
        return nullptr;
    }
    // Kept for the life of the process: object identifiers point into their model.
    static std::mutex mutex;
    static auto* const models = new std::map<fs::path, std::shared_ptr<const NSManagedObjectModel>>;
    std::lock_guard lock(mutex);
    auto known = models->find(*file);
    if (known != models->end())
        return known->second;
    auto model = readModel(*file, error);
    if (model)
        models->emplace(*file, model);
    return model;
}

} // namespace tarn
