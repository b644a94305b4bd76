#pragma once

#include "tarnmodel/platform/coredata/NSEntityMigrationPolicy.h"

namespace tarn {

/// Notes on their way from version 1 to version 2: each comes to `OVNote::migrateManagedObjectToVersion2` when it is
/// made.
///
/// Called as every policy is.
class Model1toModel2OVNoteMigrationPolicy : public NSEntityMigrationPolicy {
public:
    /// What is inherited, and then `migrateNote` with the note that was made last of this record. What is inherited
    /// decides the answer; when it fails, nothing follows.
    bool createDestinationInstancesForSourceInstance(const MigrationRecord& source, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override;

protected:
    /// Hands the note over; for subclasses.
    virtual void migrateNote(MigrationRecord& note);
};

} // namespace tarn
