#pragma once

#include "tarnmodel/platform/coredata/context/records/ToManySet.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <cstdint>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tarn {

class HeldRecords;

/// Primary keys by root entity.
using KeysOfEntities = std::unordered_map<const NSEntityDescription*, std::unordered_set<std::int64_t>>;

/// Keeps both ends of every relationship in step, in memory.
class RelationshipMaintenance {
public:
    explicit RelationshipMaintenance(HeldRecords& records) : records_(records) { }

    /// The record's target; null for none. A target that is deleted reads as none.
    NSManagedObject* toOne(const NSManagedObject& record, const NSRelationshipDescription& relationship);
    /// The same for a target that is deleted, too.
    NSManagedObject* named(const NSManagedObject& record, const NSRelationshipDescription& relationship);
    /// A target that is deleted, or that the store does not have any more, makes it none.
    void setToOne(NSManagedObject& record, const NSRelationshipDescription& relationship, NSManagedObject* target);
    ToManySet& toMany(const NSManagedObject& record, const NSRelationshipDescription& relationship);
    void addMember(ToManySet& set, NSManagedObject& member);
    void removeMember(ToManySet& set, NSManagedObject& member);
    void loadMembers(ToManySet& set);
    std::size_t countMembers(ToManySet& set);

    /// All records at the other end; a copy.
    std::vector<NSManagedObject*> related(const NSManagedObject& record, const NSRelationshipDescription& relationship);
    /// Takes a record out of a relationship, at both ends.
    void detach(NSManagedObject& record, const NSRelationshipDescription& relationship);

    /// After a save: what was added is stored now.
    void settle(NSManagedObject& record);
    /// Drops the unsaved changes of one set, at this end.
    void unload(NSManagedObject& record, const NSRelationshipDescription& relationship);
    /// Reads stored members of a record's sets again at next use; its unsaved additions and removals stay.
    void forgetStoredMembers(NSManagedObject& record);
    /// An unsaved record has another key than `former` now: who names it names it by that one.
    void followKey(const NSManagedObject& record, std::int64_t former);

    // When others have saved (RelationshipMerging.cpp) --------------------------------------------------------------
    /// Records that name one of these name nothing now; their rows say so already.
    void dropReferences(const KeysOfEntities& gone);
    /// What the record holds of relationships that other records' rows say is read again at next use.
    void forgetEndsWithoutColumn(NSManagedObject& record);
    /// A merge gave a to-one of the record another target than this context: the ends that this context had moved say
    /// what is stored. `own` and `former`: the record's values before the merge, and before its unsaved changes.
    void forgetTarget(NSManagedObject& record, const NSRelationshipDescription& relationship, const PropertyValues& own,
        const PropertyValues& former);
    /// Drops the unsaved members of a many-to-many relationship, more and less, at both ends.
    void forgetChangedMembers(NSManagedObject& record, const NSRelationshipDescription& relationship);
    /// Others tied the record to one that is deleted here: takes it out, at this end.
    void detachFromDeleted(
        NSManagedObject& record, const NSRelationshipDescription& relationship, NSManagedObject& deleted);

    // When records are read again (RelationshipRefresh.cpp) ---------------------------------------------------------
    /// The record's row was read; `before` are the values that it had, empty for a fault. Where it names another record
    /// than before, what is known there is read again; one to one, an unsaved change there has the last word.
    void followRow(NSManagedObject& record, const PropertyValues& before);
    /// The record is going to be read again: so is what is known of it at the other ends.
    void forgetOtherEnds(NSManagedObject& record);
    /// Those whose rows name the record, one to one, and show the store.
    std::vector<NSManagedObject*> holdersOf(const NSManagedObject& record) const;
    /// Brings the record's changed relationships back to what was saved, at both ends. Where another unsaved record
    /// has taken its place one to one, that one gives way.
    void takeBack(NSManagedObject& record);

    // Called by sets: which of them are loaded.
    void noteLoaded(ToManySet& set);
    void noteForgotten(ToManySet& set);
    /// Before all records go.
    void clear();

    // Changes of others below unsaved ones ----------------------------------------------------------------------------
    /// Changes of other writers came in below unsaved ones: relationships may say what nobody saved.
    void noteMerged() noexcept { holdsMerged_ = true; }
    bool holdsMerged() const noexcept { return holdsMerged_; }
    /// Nothing is unsaved any more: relationships that were changed here and elsewhere are read again at next use, and
    /// nothing names a record that was `deleted` here while others came to name it.
    void settleMerged(const std::vector<NSManagedObject*>& deleted);

private:
    void loadInverseToOne(const NSManagedObject& record, const NSRelationshipDescription& relationship);
    std::vector<RelatedKey> storedKeys(const NSManagedObject& owner, const NSRelationshipDescription& relationship);
    void forgetEnd(const NSRelationshipDescription& relationship, std::int64_t key);
    void meetEnd(NSManagedObject& record, const NSRelationshipDescription& relationship, NSManagedObject& target);
    /// Members that say otherwise than the store were moved by another writer since they were read.
    void readMovedMembers(const ToManySet& set, const std::vector<RelatedKey>& stored);
    /// Sets of members that were read before another writer made them members.
    void forgetSetsWithoutOwner(const ToManySet& set);
    std::vector<NSManagedObject*> changedHolders(
        const NSManagedObject& record, const NSRelationshipDescription& relationship);
    void takeBackToOne(NSManagedObject& holder, const NSRelationshipDescription& relationship);
    void takeBackJoins(NSManagedObject& record, const NSRelationshipDescription& relationship);
    void forgetChange(NSManagedObject& record, const NSRelationshipDescription& relationship, NSManagedObject& member);
    void forgetChangedMember(
        NSManagedObject& owner, const NSRelationshipDescription& relationship, NSManagedObject& member);
    void forgetGone(NSManagedObject& record);
    void store(NSManagedObject& record, const NSRelationshipDescription& relationship, NSManagedObject* target);
    void attachInverse(NSManagedObject& target, const NSRelationshipDescription& inverse, NSManagedObject& record);
    void detachInverse(NSManagedObject& target, const NSRelationshipDescription& inverse, NSManagedObject& record);

    HeldRecords& records_;
    std::vector<ToManySet*> loaded_;
    bool holdsMerged_ = false;
};

} // namespace tarn
