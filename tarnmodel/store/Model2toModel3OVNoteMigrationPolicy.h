#pragma once

#include "tarnmodel/platform/coredata/NSEntityMigrationPolicy.h"
#include "tarnmodel/platform/foundation/values/Value.h"

#include <span>
#include <string_view>

namespace tarn {

/// Notes on their way from version 2 to version 3: each comes to `OVNote::migrateManagedObjectToVersion3` when it is
/// tied to others, and their texts tell whether there is source code in them.
///
/// Called as every policy is.
class Model2toModel3OVNoteMigrationPolicy : public NSEntityMigrationPolicy {
public:
    /// What is inherited, and then, whatever came of that, `migrateNote`. What is inherited decides the answer.
    bool createRelationshipsForDestinationInstance(MigrationRecord& destination, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override;
    /// `hasSourceCode(text)`: whether a text has a block of code, fenced or indented; one that is nil has none. Raises
    /// `NSInvalidArgumentException` for other names and other arguments.
    Value valueOfFunction(
        std::string_view name, std::span<const Value> arguments, const NSEntityMapping& mapping) override;

protected:
    /// Hands the note over; for subclasses.
    virtual void migrateNote(MigrationRecord& note);
};

} // namespace tarn
