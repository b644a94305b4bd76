#include "tarnmodel/files/OVLocalFileManager.h"

#include "tarnmodel/files/PrivateFolder.h"
#include "tarnmodel/platform/foundation/system/Environment.h"

#include <mutex>
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

void OVLocalFileManager::setApplicationIdentity(ApplicationIdentity identity)
{
    Settings& current = settings();
    const std::lock_guard lock(current.mutex);
    current.identity = std::move(identity);
}

void OVLocalFileManager::setApplicationGroupURL(std::optional<fs::path> folder)
{
    Settings& current = settings();
    const std::lock_guard lock(current.mutex);
    current.group = std::move(folder);
}

void OVLocalFileManager::setApplicationPersistentDataTestURL(std::optional<fs::path> folder)
{
    Settings& current = settings();
    const std::lock_guard lock(current.mutex);
    current.persistentDataInTests = std::move(folder);
}

} // namespace tarn
