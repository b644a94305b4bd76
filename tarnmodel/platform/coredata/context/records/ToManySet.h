#pragma once

#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/context/records/OrderedSet.h"

#include <cstddef>
#include <span>
#include <vector>

namespace tarn {

class RelationshipMaintenance;

/// The members of a to-many relationship of one record.
///
/// While it is not loaded it keeps only what was added and removed, so a change never reads the other members.
/// Owned by its record. Every change keeps the inverse in step.
class ToManySet {
public:
    ToManySet(
        RelationshipMaintenance& maintenance, NSManagedObject& owner, const NSRelationshipDescription& relationship);

    /// All members: stored ones by primary key, then added ones in order. Loads the set.
    const std::vector<NSManagedObject*>& members();
    /// Without loading other members where it can.
    bool contains(const NSManagedObject& member);
    std::size_t count();
    void add(NSManagedObject& member);
    void remove(NSManagedObject& member);
    /// Writes the difference only; an equal set changes nothing.
    void set(std::span<NSManagedObject* const> members);

    bool isLoaded() const noexcept { return loaded_; }
    const NSRelationshipDescription& relationship() const noexcept { return *relationship_; }
    /// Since the last save.
    const std::vector<NSManagedObject*>& added() const { return added_.values(); }
    const std::vector<NSManagedObject*>& removed() const { return removed_.values(); }

private:
    friend class HeldRecords;
    friend class RelationshipMaintenance;
    bool holds(const NSManagedObject& member) const;
    void put(NSManagedObject& member);
    void take(NSManagedObject& member);
    void settle();
    void unload();
    /// Reads the stored members again at next use; unsaved additions and removals stay.
    void forgetStored();

    void putInOrder();

    RelationshipMaintenance* maintenance_;
    NSManagedObject* owner_;
    const NSRelationshipDescription* relationship_;
    bool loaded_ = false;
    bool isInOrder_ = true;
    std::size_t place_ = 0;                ///< among the loaded sets of the context
    OrderedSet<NSManagedObject*> members_; ///< while not loaded those that were, if any
    OrderedSet<NSManagedObject*> added_;
    OrderedSet<NSManagedObject*> removed_;
};

} // namespace tarn
