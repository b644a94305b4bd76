#include "tarnmodel/files/StrayFiles.h"

#include "tarnmodel/files/FileNames.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include <fmt/format.h>

#include <string>

namespace tarn {

bool moveToStrayFiles(const std::filesystem::path& item, std::string_view identifier)
{
    const std::filesystem::path place = OVLocalFileManager::folderURLForPathComponent(
        fmt::format("{}/{}", OVNoteLocalFileDirectoryName, OVNoteStrayFileDirectoryName));
    const auto folder = NSFileManager::createUniqueDirectoryInDirectory(place, fileNameWithinFolder(identifier) + ".");
    if (!folder)
        return false;
    if (NSFileManager::moveItemAtURL(item, *folder / item.filename()))
        return true;
    NSFileManager::removeItemAtURL(*folder);
    return false;
}

} // namespace tarn
