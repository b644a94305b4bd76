#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/HeldFolder.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/PrivateFolder.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <array>
#include <map>
#include <mutex>
#include <string>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kTemporaryItems = "Temporary Items";
constexpr std::string_view kCaches = "Caches";
constexpr std::string_view kProcessPrefix = "Process.";
constexpr std::string_view kScratchPrefix = "TarnTemp.";
/// Where everybody may write, a name must not be given away by another program: it is asked of the system each time.
constexpr std::string_view kSharedFolderPrefix = "TarnModel.";

struct ProcessFolders {
    std::mutex mutex;
    std::map<fs::path, HeldFolder> byPlace; ///< where they lie, and what this process has there
};

/// Never destroyed: the folder is held as long as the process lives.
ProcessFolders& processFolders()
{
    static auto* const folders = new ProcessFolders;
    return *folders;
}

/// Where the folders of all processes of this application lie.
fs::path placeOfTemporaryItems()
{
    const fs::path caches = OVLocalFileManager::applicationCachesURL();
    const fs::path group = OVLocalFileManager::applicationGroupURL();
    const fs::path own = NSFileManager::areOnOneFileSystem(caches, group) ? caches : group / kCaches;
    return own / kTemporaryItems;
}

std::optional<HeldFolder> makeProcessFolder(const fs::path& place)
{
    if (!createPrivateFolder(place))
        if (auto folder = HeldFolder::makeIn(place, kProcessPrefix))
            return folder;
    return HeldFolder::makeIn(Environment::current().temporaryDirectory(), kSharedFolderPrefix);
}

} // namespace

fs::path OVLocalFileManager::temporaryDirectoryURL()
{
    const fs::path place = placeOfTemporaryItems();
    ProcessFolders& folders = processFolders();
    const std::lock_guard lock(folders.mutex);
    std::error_code ignored;
    if (const auto known = folders.byPlace.find(place); known != folders.byPlace.end()) {
        if (fs::is_directory(known->second.path(), ignored))
            return known->second.path();
        folders.byPlace.erase(known); // somebody cleared the cache folder away
    }
    auto folder = makeProcessFolder(place);
    return folder ? folders.byPlace.emplace(place, std::move(*folder)).first->second.path() : fs::path();
}

fs::path OVLocalFileManager::temporaryUniqueDirectoryURL()
{
    const fs::path folder = temporaryDirectoryURL();
    return NSFileManager::createUniqueDirectoryInDirectory(folder, kScratchPrefix)
        .value_or(folder / (std::string(kScratchPrefix) + newUUIDString()));
}

std::string OVLocalFileManager::temporaryUniqueDirectoryPath()
{
    return temporaryUniqueDirectoryURL().string();
}

std::optional<fs::path> OVLocalFileManager::copyFileURLToTemporaryDirectory(const std::optional<fs::path>& file)
{
    if (!file)
        return std::nullopt;
    fs::path copy = temporaryUniqueDirectoryURL() / file->filename();
    return NSFileManager::copyItemAtURL(*file, copy) ? std::optional(std::move(copy)) : std::nullopt;
}

void OVLocalFileManager::deleteTemporaryDirectoryContent()
{
    std::error_code failure;
    const fs::path own = temporaryDirectoryURL();
    if (own.empty())
        return;
    for (fs::directory_iterator entry(own, failure), end; !failure && entry != end; entry.increment(failure))
        NSFileManager::removeItemAtURL(entry->path());
    removeAbandonedTemporaryDirectories();
}

void OVLocalFileManager::removeAbandonedTemporaryDirectories()
{
    for (const auto& [place, prefix] : {std::pair(placeOfTemporaryItems(), kProcessPrefix),
             std::pair(Environment::current().temporaryDirectory(), kSharedFolderPrefix)})
        for (HeldFolder& left : HeldFolder::abandonedIn(place, prefix))
            left.remove();
}

} // namespace tarn
