#include "tarnmodel/platform/coredata/context/merging/MergeConflicts.h"

#include "tarnmodel/platform/coredata/context/records/HeldRecords.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/coredata/context/records/RelationshipMaintenance.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <utility>

namespace tarn {

namespace {

bool differs(const PropertyValues& left, const PropertyValues& right, PropertyIndex index)
{
    return left.isLoaded(index) && right.isLoaded(index) && !left.equals(index, right);
}

/// Which attributes and to-ones of `values` are other than in `base`.
PropertyMask differences(const NSEntityDescription& entity, const PropertyValues& values, const PropertyValues& base)
{
    PropertyMask mask = 0;
    for (const NSPropertyDescription* property : entity.properties())
        if (!(entity.toManyMask() & propertyBit(property->index())) && differs(values, base, property->index()))
            mask |= propertyBit(property->index());
    return mask;
}

/// What this context changed in the row. A large attribute that was written without having been read has no base to
/// compare with.
PropertyMask ownChanges(const NSManagedObject& record)
{
    const RecordDetails& details = RecordAccess::details(record);
    const NSEntityDescription& entity = record.entity();
    return details.rowChanged
        & (differences(entity, RecordAccess::values(record), details.committed)
            | (entity.largeMask() & ~details.committed.loadedMask()));
}

/// Null for none, and for one that is not here.
NSManagedObject* targetNamed(
    const HeldRecords& records, const NSPropertyDescription& property, const PropertyValues& values)
{
    if (!values.isLoaded(property.index()) || values.isNil(property.index()))
        return nullptr;
    const auto& relationship = static_cast<const NSRelationshipDescription&>(property);
    return records.registry.find(relationship.destinationEntity().rootEntity(), values.integer(property.index()));
}

/// The properties, and those that stand or fall with them.
PropertyMask withGroups(const NSEntityDescription& entity, PropertyMask properties)
{
    PropertyMask all = properties;
    for (const MergeGroup& group : entity.mergeGroups())
        if (properties & group.members)
            all |= group.members;
    return all;
}

} // namespace

/// Who keeps what both sides changed, groups as a whole.
void MergeConflicts::decide(RecordMerge& merge, PropertyMask ours, PropertyMask theirs) const
{
    const NSEntityDescription& entity = merge.record_->entity();
    PropertyMask single = ours & theirs;
    for (const MergeGroup& group : entity.mergeGroups()) {
        if (!(ours & group.members) || !(theirs & group.members))
            continue;
        const bool oursLeads = ours & group.leads;
        const bool theirsLeads = theirs & group.leads;
        const MergeSide winner = oursLeads == theirsLeads ? preferred_
            : oursLeads                                   ? MergeSide::Context
                                                          : MergeSide::Store;
        const PropertyMask members = group.members & ~entity.toManyMask();
        merge.decided_ |= members;
        if (winner == MergeSide::Context)
            merge.keptByContext_ |= members;
        single &= ~members;
    }
    merge.decided_ |= single;
    if (preferred_ == MergeSide::Context)
        merge.keptByContext_ |= single;
    const PropertyMask losers = (ours & ~merge.keptByContext_) | (theirs & merge.keptByContext_);
    merge.lost_ = losers & merge.decided_ & differences(entity, merge.ofContext_, merge.ofStore_);
}

void MergeConflicts::mergeRow(NSManagedObject& record, StoreRow row)
{
    const NSEntityDescription& entity = record.entity();
    RecordDetails& details = RecordAccess::details(record);
    const PropertyMask ours = ownChanges(record);
    RecordMerge merge(record, details.committed, RecordAccess::values(record), row.values);
    decide(merge, ours, differences(entity, row.values, details.committed));
    const PropertyMask kept = ((ours & ~merge.decided_) | merge.keptByContext_) & merge.ofContext_.loadedMask()
        & ~entity.inverseColumnMask();

    // What was set at an end whose column is the other one's says nothing of this row.
    const PropertyMask ends = details.changed & entity.inverseColumnMask() & ~entity.toManyMask();
    PropertyValues merged = row.values;
    for (const NSPropertyDescription* property : entity.properties())
        if ((kept | ends) & propertyBit(property->index()))
            merged.assign(property->index(), merge.ofContext_);
    details.committed = std::move(row.values);
    details.rowChanged = kept;
    details.changed = (details.changed & entity.toManyMask()) | ends | kept;
    RecordAccess::fill(record, std::move(merged), row.version);
    forgetGivenWay(merge);
    relationships_.followRow(record, merge.ofContext_);
    records_.pendingIndex.touch(record, ~PropertyMask{0});
    records_.noteRefreshed(record);
    if (merge.decided_ != 0)
        merges_.push_back(std::move(merge));
}

/// Where the store kept a relationship, the other ends that this context had moved say what the store says again.
void MergeConflicts::forgetGivenWay(const RecordMerge& merge)
{
    NSManagedObject& record = *merge.record_;
    const PropertyMask given = merge.decided_ & ~merge.keptByContext_;
    for (const NSRelationshipDescription* relationship : record.entity().relationships()) {
        const PropertyIndex index = relationship->index();
        if (relationship->storage() == RelationshipStorage::Column) {
            if (differs(merge.ofContext_, RecordAccess::values(record), index))
                relationships_.forgetTarget(record, *relationship, merge.ofContext_, merge.former_);
            continue;
        }
        const bool isOfLostGroup = relationship->isToMany() && relationship->group() == PropertyGroup::Text
            && (given & record.entity().textGroupMask());
        if (isOfLostGroup && relationship->storage() == RelationshipStorage::JoinTable)
            relationships_.forgetChangedMembers(record, *relationship);
    }
}

void MergeConflicts::note(MergeConflict::Cause cause, NSManagedObject& record, MergeSide loser, PropertyMask lost,
    const PropertyValues& losing, const PropertyValues& former)
{
    if (lost == 0)
        return;
    MergeConflict conflict;
    conflict.cause = cause;
    conflict.loser = loser;
    conflict.record = &record;
    for (const NSPropertyDescription* property : record.entity().properties()) {
        const PropertyIndex index = property->index();
        if (!(lost & propertyBit(index)))
            continue;
        conflict.properties.push_back(property->name());
        if (!property->isRelationship())
            conflict.lostValues.emplace(property->name(), losing.attributeValue(index));
        else if (NSManagedObject* target = targetNamed(records_, *property, losing))
            conflict.lostValues.emplace(property->name(), Value(target));
    }
    addFormerValues(conflict, withGroups(record.entity(), lost), former);
    conflicts_.push_back(std::move(conflict));
}

void MergeConflicts::addFormerValues(MergeConflict& conflict, PropertyMask mask, const PropertyValues& former) const
{
    if (former.isEmpty())
        return;
    const NSEntityDescription& entity = conflict.record->entity();
    for (const NSPropertyDescription* property : entity.properties()) {
        const PropertyIndex index = property->index();
        if (!(mask & ~entity.toManyMask() & propertyBit(index)) || !former.isLoaded(index))
            continue;
        if (!property->isRelationship())
            conflict.formerValues.emplace(property->name(), former.attributeValue(index));
        else if (NSManagedObject* target = targetNamed(records_, *property, former))
            conflict.formerValues.emplace(property->name(), Value(target));
    }
}

void MergeConflicts::noteDeletedElsewhere(NSManagedObject& record)
{
    const RecordDetails* details = RecordAccess::detailsIfAny(record);
    if (!details || record.isFault() || record.isInserted() || record.isDeleted())
        return;
    note(MergeConflict::Cause::DeletedElsewhere, record, MergeSide::Context, ownChanges(record),
        RecordAccess::values(record), details->committed);
}

void MergeConflicts::noteDeletedHere(NSManagedObject& record, const StoreRow& row)
{
    const RecordDetails* details = RecordAccess::detailsIfAny(record);
    const PropertyValues& former
        = details && !details->committed.isEmpty() ? details->committed : RecordAccess::values(record);
    if (former.isEmpty())
        return;
    PropertyMask theirs = differences(record.entity(), row.values, former) & ~record.entity().relationshipMask();
    // What was never read here counts as changed where its group was.
    for (const MergeGroup& group : record.entity().mergeGroups())
        if (theirs & group.members)
            theirs |= group.leads & ~former.loadedMask();
    note(MergeConflict::Cause::DeletedHere, record, MergeSide::Store, theirs, row.values, former);
}

void MergeConflicts::awakeRecords()
{
    for (RecordMerge& merge : merges_)
        if (!merge.record_->isDeleted())
            merge.record_->awakeFromMerge(merge);
    for (const RecordMerge& merge : std::exchange(merges_, {})) {
        const PropertyMask byContext = merge.lost_ & ~merge.keptByContext_;
        note(MergeConflict::Cause::ChangedByBoth, *merge.record_, MergeSide::Context, byContext, merge.ofContext_,
            merge.former_);
        note(MergeConflict::Cause::ChangedByBoth, *merge.record_, MergeSide::Store, merge.lost_ & ~byContext,
            merge.ofStore_, merge.former_);
    }
}

void MergeConflicts::tell()
{
    struct Wording {
        std::string_view before;
        std::string_view after;
    };
    constexpr Wording kWordings[] = {
        {"Two writers changed ", "; the values of one side were dropped: "},
        {"Another writer deleted ", "; its unsaved changes were dropped: "},
        {"Another writer changed ", ", which is deleted here; these changes were dropped: "},
    };
    for (const MergeConflict& conflict : std::exchange(conflicts_, {})) {
        std::string names;
        for (const std::string& property : conflict.properties)
            names += (names.empty() ? "" : ", ") + property;
        const Wording& wording = kWordings[static_cast<std::size_t>(conflict.cause)];
        logMessage(std::string(wording.before) + conflict.record->objectID().URIRepresentation()
            + std::string(wording.after) + names);
        if (handler_)
            handler_(conflict);
    }
}

} // namespace tarn
