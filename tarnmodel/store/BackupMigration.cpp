#include "tarnmodel/store/BackupMigration.h"

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/store/VexMigrationManager.h"

namespace tarn {

bool migrateRecordsOfBackup(const std::filesystem::path& store, NSError* error)
{
    const auto model = OVManagedObjectModel::current(error);
    return model && VexMigrationManager().progressivelyMigrateURL(store, StoreType::SQLite, model, error);
}

} // namespace tarn
