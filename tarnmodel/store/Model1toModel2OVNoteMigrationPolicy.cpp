#include "tarnmodel/store/Model1toModel2OVNoteMigrationPolicy.h"

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/coredata/MigrationRecord.h"
#include "tarnmodel/platform/coredata/NSMigrationManager.h"

namespace tarn {

bool Model1toModel2OVNoteMigrationPolicy::createDestinationInstancesForSourceInstance(
    const MigrationRecord& source, const NSEntityMapping& mapping, NSMigrationManager& manager, NSError* error)
{
    if (!NSEntityMigrationPolicy::createDestinationInstancesForSourceInstance(source, mapping, manager, error))
        return false;
    const auto notes = manager.destinationInstancesForEntityMappingNamed(mapping.name(), source.objectID());
    MigrationRecord* note = notes.empty() ? nullptr : manager.destinationInstanceWithID(notes.back());
    if (note)
        migrateNote(*note);
    return true;
}

void Model1toModel2OVNoteMigrationPolicy::migrateNote(MigrationRecord& note)
{
    OVNote::migrateManagedObjectToVersion2(note);
}

} // namespace tarn
