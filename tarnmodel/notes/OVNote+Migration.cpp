#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/coredata/MigrationRecord.h"

namespace tarn {

void OVNote::migrateManagedObjectToVersion2(MigrationRecord&) { }

void OVNote::migrateManagedObjectToVersion3(MigrationRecord&) { }

void OVNote::migrateDataToCurrentVersion()
{
    if (encryptedValue())
        return;
    ManagedMigrationRecord record(*this);
    migrateManagedObjectToVersion2(record);
    migrateManagedObjectToVersion3(record);
}

} // namespace tarn
