#include "tarnmodel/files/OVLocalFileManager.h"

#include "tarnmodel/files/FileNames.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/PrivateFolder.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <functional>
#include <map>
#include <mutex>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPersistentDataFolder = "Application Data";
constexpr std::string_view kDatabase = "database.sqlite";

struct Settings {
    std::mutex mutex;
    ApplicationIdentity identity;
    std::optional<fs::path> group;
    std::optional<fs::path> persistentDataInTests;
    std::map<std::string, std::shared_ptr<OVLocalFileManager>, std::less<>> managers; ///< by component
};

/// Never destroyed: threads may still ask when the process ends.
Settings& settings()
{
    static auto* const instance = new Settings;
    return *instance;
}

/// Where the system keeps the data of a user's applications. By the rules of XDG a relative folder counts as none.
fs::path userDataFolder()
{
    const Environment& environment = Environment::current();
    const fs::path data = environment.variable("XDG_DATA_HOME").value_or("");
    return data.is_absolute() ? data : environment.homeDirectory() / ".local" / "share";
}

} // namespace

fs::path OVLocalFileManager::applicationGroupURL()
{
    Settings& current = settings();
    const std::lock_guard lock(current.mutex);
    return current.group ? *current.group : userDataFolder() / current.identity.groupIdentifier;
}

fs::path OVLocalFileManager::defaultApplicationGroupURL()
{
    Settings& current = settings();
    const std::lock_guard lock(current.mutex);
    return userDataFolder() / current.identity.groupIdentifier;
}

fs::path OVLocalFileManager::applicationPersistentDataURL()
{
    {
        Settings& current = settings();
        const std::lock_guard lock(current.mutex);
        if (current.persistentDataInTests)
            return *current.persistentDataInTests;
    }
    fs::path folder = applicationGroupURL() / kPersistentDataFolder;
    createPrivateFolder(folder);
    return folder;
}

fs::path OVLocalFileManager::databaseURL()
{
    return applicationPersistentDataURL() / kDatabase;
}

fs::path OVLocalFileManager::databaseURLInGroupFolder(const fs::path& folder)
{
    return folder / kPersistentDataFolder / kDatabase;
}

fs::path OVLocalFileManager::applicationSupportURL()
{
    std::string identifier;
    {
        Settings& current = settings();
        const std::lock_guard lock(current.mutex);
        identifier = current.identity.bundleIdentifier;
    }
    fs::path folder = userDataFolder() / identifier;
    createPrivateFolder(folder);
    return folder;
}

fs::path OVLocalFileManager::applicationCachesURL()
{
    Settings& current = settings();
    const std::lock_guard lock(current.mutex);
    return Environment::current().cacheDirectory() / current.identity.bundleIdentifier;
}

void OVLocalFileManager::setApplicationIdentity(ApplicationIdentity identity)
{
    Settings& current = settings();
    const std::lock_guard lock(current.mutex);
    current.identity = std::move(identity);
    current.managers.clear();
}

void OVLocalFileManager::setApplicationGroupURL(std::optional<fs::path> folder)
{
    Settings& current = settings();
    const std::lock_guard lock(current.mutex);
    current.group = std::move(folder);
    current.managers.clear();
}

void OVLocalFileManager::setApplicationPersistentDataTestURL(std::optional<fs::path> folder)
{
    Settings& current = settings();
    const std::lock_guard lock(current.mutex);
    current.persistentDataInTests = std::move(folder);
}

// One folder of attachments -------------------------------------------------------------------------------------------

OVLocalFileManager::OVLocalFileManager(fs::path baseURL) : baseURL_(std::move(baseURL)) { }

std::shared_ptr<OVLocalFileManager> OVLocalFileManager::initWithBaseURL(fs::path baseURL)
{
    if (baseURL.empty())
        return nullptr;
    return std::shared_ptr<OVLocalFileManager>(new OVLocalFileManager(std::move(baseURL)));
}

std::shared_ptr<OVLocalFileManager> OVLocalFileManager::initWithPathComponent(std::string_view component)
{
    return initWithBaseURL(folderURLForPathComponent(component));
}

std::shared_ptr<OVLocalFileManager> OVLocalFileManager::localFileManagerForPathComponent(std::string_view component)
{
    Settings& current = settings();
    {
        const std::lock_guard lock(current.mutex);
        const auto known = current.managers.find(component);
        if (known != current.managers.end() && !current.persistentDataInTests)
            return known->second;
    }
    std::shared_ptr<OVLocalFileManager> manager = initWithPathComponent(component);
    const std::lock_guard lock(current.mutex);
    if (!manager)
        return nullptr;
    auto& kept = current.managers[std::string(component)];
    // Another thread may have been first.
    if (!kept || current.persistentDataInTests)
        kept = std::move(manager);
    return kept;
}

fs::path OVLocalFileManager::folderURLForPathComponent(std::string_view component)
{
    fs::path folder = applicationPersistentDataURL() / component;
    std::error_code ignored;
    if (!fs::exists(folder, ignored))
        createPrivateFolder(folder);
    return folder;
}

std::optional<fs::path> OVLocalFileManager::getOrCreateFolderForUniqueID(
    std::string_view uniqueIdentifier, NSError* error) const
{
    fs::path folder = folderURLForUniqueID(uniqueIdentifier);
    std::error_code ignored;
    if (!fs::exists(folder, ignored) && !NSFileManager::createDirectoryAtURL(folder, error))
        return std::nullopt;
    return folder;
}

fs::path OVLocalFileManager::folderURLForUniqueID(std::string_view uniqueIdentifier) const
{
    return baseURL_ / fileNameWithinFolder(uniqueIdentifier);
}

fs::path OVLocalFileManager::fileURLForUniqueID(std::string_view uniqueIdentifier, std::string_view filename) const
{
    return folderURLForUniqueID(uniqueIdentifier) / fileNameWithinFolder(filename);
}

namespace {

/// Runs what brings a file into the record's folder, and takes the folder away again where it was made in vain.
std::optional<fs::path> bring(const OVLocalFileManager& manager, std::string_view uniqueIdentifier,
    std::string_view filename, const std::function<bool(const fs::path&)>& operation, NSError* error)
{
    std::error_code ignored;
    const bool isNew = !fs::exists(manager.folderURLForUniqueID(uniqueIdentifier), ignored);
    if (!manager.getOrCreateFolderForUniqueID(uniqueIdentifier, error))
        return std::nullopt;
    fs::path destination = manager.fileURLForUniqueID(uniqueIdentifier, filename);
    if (operation(destination))
        return destination;
    if (isNew)
        fs::remove(manager.folderURLForUniqueID(uniqueIdentifier), ignored); // an empty one only
    return std::nullopt;
}

} // namespace

std::optional<fs::path> OVLocalFileManager::copyFileAtURL(
    const fs::path& source, std::string_view toLocalFolderForUniqueID, std::string_view filename, NSError* error) const
{
    return bring(
        *this, toLocalFolderForUniqueID, filename,
        [&](const fs::path& destination) { return NSFileManager::copyItemAtURL(source, destination, error); }, error);
}

std::optional<fs::path> OVLocalFileManager::moveFileAtURL(
    const fs::path& source, std::string_view toLocalFolderForUniqueID, std::string_view filename, NSError* error) const
{
    return bring(
        *this, toLocalFolderForUniqueID, filename,
        [&](const fs::path& destination) { return NSFileManager::moveItemAtURL(source, destination, error); }, error);
}

void OVLocalFileManager::deleteFileForUniqueID(std::optional<std::string_view> uniqueIdentifier) const
{
    if (uniqueIdentifier)
        NSFileManager::removeItemAtURL(folderURLForUniqueID(*uniqueIdentifier));
}

} // namespace tarn
