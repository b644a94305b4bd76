#include "platform/coredata/MergeConflicts.h"

#include "platform/coredata/ContextCore.h"
#include "platform/coredata/RecordAccess.h"
#include "platform/foundation/Log.h"

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

void reportLoss(ContextCore& core, NSManagedObject& record, PropertyMask lost, const PropertyValues& losing)
{
    if (lost == 0)
        return;
    MergeConflict conflict;
    conflict.record = &record;
    std::string names;
    for (const NSPropertyDescription* property : record.entity().properties()) {
        if (!(lost & propertyBit(property->index())))
            continue;
        conflict.properties.push_back(property->name());
        if (!property->isRelationship())
            conflict.lostValues.emplace(property->name(), losing.attributeValue(property->index()));
        names += (names.empty() ? "" : ", ") + property->name();
    }
    logMessage("Two writers changed " + record.objectID().URIRepresentation()
        + "; the values of one side were dropped: " + names);
    if (core.conflictHandler)
        core.conflictHandler(conflict);
}

} // namespace

void mergeRowIntoRecord(ContextCore& core, NSManagedObject& record, StoreRow row, MergeWinner winner)
{
    const NSEntityDescription& entity = record.entity();
    RecordDetails& details = RecordAccess::details(record);
    const PropertyValues mine = RecordAccess::values(record);
    const bool storeWins = winner == MergeWinner::Store;

    PropertyMask ours = details.rowChanged & differences(entity, mine, details.committed);
    // A large attribute that was written without having been read has no base to compare with.
    ours |= details.rowChanged & entity.largeMask() & ~details.committed.loadedMask();
    PropertyMask theirs = differences(entity, row.values, details.committed);
    if (const PropertyMask group = entity.textGroupMask(); (ours & group) && (theirs & group)) {
        ours |= group & ~entity.toManyMask();
        theirs |= group & ~entity.toManyMask();
        if (storeWins)
            for (const NSRelationshipDescription* relationship : entity.relationships())
                if (relationship->isToMany() && relationship->isInTextGroup())
                    core.relationships.unload(record, *relationship);
    }
    const PropertyMask both = ours & theirs;
    const PropertyMask kept = storeWins ? ours & ~theirs : ours;
    const PropertyValues& losing = storeWins ? mine : row.values;
    PropertyMask lost = 0;
    for (const NSPropertyDescription* property : entity.properties())
        if ((both & propertyBit(property->index())) && differs(mine, row.values, property->index()))
            lost |= propertyBit(property->index());
    reportLoss(core, record, lost, losing);

    PropertyValues merged = row.values;
    for (const NSPropertyDescription* property : entity.properties())
        if ((kept & propertyBit(property->index())) && mine.isLoaded(property->index()))
            merged.assign(property->index(), mine);
    details.committed = std::move(row.values);
    details.rowChanged = kept;
    details.changed = (details.changed & entity.toManyMask()) | kept;
    RecordAccess::fill(record, std::move(merged), row.version);
    core.noteRefreshed(record);
}

} // namespace tarn
