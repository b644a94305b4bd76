#pragma once

#include "tarnmodel/platform/coredata/NSEntityMigrationPolicy.h"
#include "tarnmodel/platform/coredata/NSManagedObjectID.h"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>

namespace tarn {

/// Makes a record of each wiki link that stands in a note's text, which version 1 had none of. They are those that the
/// note gets when its text is next parsed, and lead where those would.
///
/// Called as every policy is.
class Model1toModel2OVNoteBackLinkMigrationPolicy : public NSEntityMigrationPolicy {
public:
    /// One record for each link of the note's text; what is inherited is not called.
    bool createDestinationInstancesForSourceInstance(const MigrationRecord& source, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override;
    /// Both ends of the link: the note that it stands in, and the one that has its title, if there is one.
    bool createRelationshipsForDestinationInstance(MigrationRecord& destination, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override;

private:
    void rememberUntitledNote(const MigrationRecord& source);
    std::optional<NSManagedObjectID> targetOf(const std::string& title, NSMigrationManager& manager);
    std::optional<NSManagedObjectID> findTarget(
        const std::string& title, const std::string& key, NSMigrationManager& manager) const;

    /// Notes of the source that links find by their identifier, by a hash of that. Few notes have no title.
    std::unordered_multimap<std::size_t, NSManagedObjectID> untitledNotes_;
    /// Where links to a title lead, for the titles that were asked for of late.
    std::unordered_map<std::string, std::optional<NSManagedObjectID>> targets_;
};

} // namespace tarn
