#include "tarnmodel/backup/StoreBackup.h"

#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/backup/snapshot/BackupRun.h"
#include "tarnmodel/backup/snapshot/CompanionSnapshot.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"

namespace tarn {

std::optional<BackupManifest> StoreBackup::writeToURL(
    const std::filesystem::path& file, const BackupOptions& options, NSError* error)
{
    requireNamesOfCompanions(options.companions);
    std::optional<BackupManifest> manifest;
    reportingBackupFailure(error, [&] { manifest = BackupRun(store_, file, options).run(); });
    return manifest;
}

} // namespace tarn
