#include "tarnmodel/platform/coredata/NSMappingModel.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/StoreErrors.h"
#include "tarnmodel/platform/coredata/description/ModelFile.h"
#include "tarnmodel/platform/coredata/migration/MappingModelReader.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <fmt/format.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kMappingExtension = ".mapping.json";
constexpr std::string_view kModelFolderExtension = ".momd";

NSError invalidMapping(const fs::path& file, std::string_view what)
{
    return {TarnStoreErrorDomain, StoreErrorInvalidModel, fmt::format("{}: {}", file.string(), what)};
}

std::optional<std::string> textOfFile(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf(); // fails, and does not throw, on a folder
    // Nothing read is a failure too: an empty file is no mapping.
    if (!stream.is_open() || text.fail())
        return std::nullopt;
    return text.str();
}

/// The mapping files of a folder by name, those in its "momd" folders first.
std::vector<fs::path> mappingFilesIn(const fs::path& folder, bool looksIntoModelFolders)
{
    std::vector<fs::path> files;
    std::vector<fs::path> folders;
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure)) {
        if (entry->path().filename().string().ends_with(kMappingExtension))
            files.push_back(entry->path());
        else if (looksIntoModelFolders && entry->path().extension() == kModelFolderExtension)
            folders.push_back(entry->path());
    }
    std::ranges::sort(files);
    std::ranges::sort(folders);
    std::vector<fs::path> all;
    for (const fs::path& modelFolder : folders)
        std::ranges::copy(mappingFilesIn(modelFolder, false), std::back_inserter(all));
    std::ranges::copy(files, std::back_inserter(all));
    return all;
}

/// Whether the file says that it leads from one model to the other; one that says nothing legible is logged.
bool leadsBetween(const fs::path& file, const NSManagedObjectModel& source, const NSManagedObjectModel& destination)
{
    const auto text = textOfFile(file);
    try {
        if (!text)
            throw ModelError("cannot be read");
        const auto [from, to] = MappingModelReader::versionsOf(*text);
        return from == source.versionIdentifier() && to == destination.versionIdentifier();
    } catch (const ModelError& problem) {
        logMessage(fmt::format("{}: {}", file.string(), problem.what()));
        return false;
    }
}

} // namespace

NSMappingModel::NSMappingModel() = default;
NSMappingModel::~NSMappingModel() = default;

std::shared_ptr<const NSMappingModel> NSMappingModel::mappingModelFromBundles(
    std::span<const fs::path> folders, const NSManagedObjectModel& source, const NSManagedObjectModel& destination)
{
    for (const fs::path& folder : folders) {
        for (const fs::path& file : mappingFilesIn(folder, true)) {
            if (!leadsBetween(file, source, destination))
                continue;
            NSError error;
            if (auto mapping = mappingModelWithContentsOfFile(file, source, destination, &error))
                return mapping;
            logMessage(error.localizedDescription());
        }
    }
    return nullptr;
}

std::shared_ptr<const NSMappingModel> NSMappingModel::mappingModelWithContentsOfFile(
    const fs::path& file, const NSManagedObjectModel& source, const NSManagedObjectModel& destination, NSError* error)
{
    const auto text = textOfFile(file);
    if (!text) {
        assignError(error, invalidMapping(file, "cannot be read"));
        return nullptr;
    }
    NSError problem;
    auto mapping = mappingModelWithText(*text, source, destination, &problem);
    if (!mapping)
        assignError(error, invalidMapping(file, problem.localizedDescription()));
    return mapping;
}

std::shared_ptr<const NSMappingModel> NSMappingModel::mappingModelWithText(
    std::string_view text, const NSManagedObjectModel& source, const NSManagedObjectModel& destination, NSError* error)
{
    try {
        return MappingModelReader::read(text, source, destination);
    } catch (const ModelError& problem) {
        assignError(error, NSError(TarnStoreErrorDomain, StoreErrorInvalidModel, problem.what()));
        return nullptr;
    }
}

const NSEntityMapping* NSMappingModel::entityMappingNamed(std::string_view name) const noexcept
{
    const auto found = std::ranges::find_if(mappings_, [&](const auto& mapping) { return mapping->name() == name; });
    return found == mappings_.end() ? nullptr : found->get();
}

} // namespace tarn
