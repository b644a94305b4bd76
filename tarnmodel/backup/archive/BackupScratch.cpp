#include "tarnmodel/backup/archive/BackupScratch.h"

#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/files/OVLocalFileManager.h"

#include <cerrno>
#include <system_error>

namespace tarn {

BackupScratch::BackupScratch() : url_(OVLocalFileManager::temporaryUniqueDirectoryURL())
{
    std::error_code failure;
    if (!std::filesystem::is_directory(url_, failure)) {
        errno = failure ? failure.value() : ENOENT;
        failWithSystem(url_, "used");
    }
}

BackupScratch::~BackupScratch()
{
    std::error_code ignored;
    std::filesystem::remove_all(url_, ignored);
}

} // namespace tarn
