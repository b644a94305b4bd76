#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"

#include <cerrno>

namespace tarn {

void failWithSystem(const std::filesystem::path& file, std::string_view action)
{
    throw BackupFailure(errorOfSystem(errno, file, action));
}

} // namespace tarn
