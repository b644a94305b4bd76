#include "tarnmodel/platform/coredata/memory/InMemoryTransaction.h"

#include "tarnmodel/platform/coredata/rows/StoreFailure.h"

#include <algorithm>

namespace tarn {

namespace {

/// A stored row is whole: what a caller did not load is nil, temporary targets are none.
StoreRow storedRow(const StoreRow& row)
{
    StoreRow stored = row;
    stored.version = 1;
    for (const NSPropertyDescription* property : row.entity->properties()) {
        const PropertyIndex index = property->index();
        const bool isColumn = !property->isRelationship()
            || static_cast<const NSRelationshipDescription*>(property)->storage() == RelationshipStorage::Column;
        const bool isValue = isColumn && row.values.isLoaded(index);
        if (!isValue || (property->isRelationship() && stored.values.integer(index) <= 0))
            stored.values.setNil(index);
    }
    return stored;
}

} // namespace

InMemoryTransaction::InMemoryTransaction(InMemoryStore& store) : store_(store), stateNumber_(store.commits_)
{
    store_.working_ = std::make_shared<InMemoryState>(*store_.state());
}

InMemoryTransaction::~InMemoryTransaction()
{
    if (finished_)
        return;
    // Keys that were reserved are out in the world, in identifiers of records.
    auto kept = std::make_shared<InMemoryState>(*store_.committed_);
    kept->nextKeys = state().nextKeys;
    store_.setState(std::move(kept));
    finish();
}

void InMemoryTransaction::finish()
{
    finished_ = true;
    store_.working_.reset();
    store_.turn_.giveBack();
}

bool InMemoryTransaction::insertRow(const StoreRow& row, NSError* error)
{
    return reportingFailure(error, [&] {
        if (state().row(*row.entity, row.key))
            throw StoreFailure(StoreErrorGeneric, "There is a row with this key already.");
        StoreRow stored = storedRow(row);
        checkUnique(stored);
        state().setRow(std::move(stored));
        written_.emplace_back(store_.identity(), *row.entity, row.key);
    });
}

RowWriteResult InMemoryTransaction::updateRow(const StoreRow& row, PropertyMask changed, NSError* error)
{
    const StoreRow* old = state().row(*row.entity, row.key);
    if (!old)
        return RowWriteResult::Gone;
    if (old->version != row.version)
        return RowWriteResult::Conflict;
    const bool written = reportingFailure(error, [&] {
        const StoreRow given = storedRow(row);
        StoreRow stored = *old;
        ++stored.version;
        for (PropertyMask rest = changed & ~row.entity->toManyMask(); rest != 0; rest &= rest - 1) {
            const auto index = static_cast<PropertyIndex>(std::countr_zero(rest));
            stored.values.assign(index, given.values);
        }
        checkUnique(stored);
        state().setRow(std::move(stored));
        written_.emplace_back(store_.identity(), *row.entity, row.key);
    });
    return written ? RowWriteResult::Written : RowWriteResult::Failed;
}

/// The model's unique indexes; rows with a nil in them are never equal.
void InMemoryTransaction::checkUnique(const StoreRow& row)
{
    for (const IndexDescription& index : row.entity->indexes()) {
        if (!index.unique)
            continue;
        for (const auto& other : state().rowsOfRoot(row.entity->rootEntity())) {
            const auto isEqual = [&](const IndexDescription::Column& column) {
                const PropertyIndex property = row.entity->propertyNamed(column.property)->index();
                return !row.values.isNil(property) && other->values.equals(property, row.values);
            };
            if (other->key != row.key && other->entity->isKindOfEntity(*row.entity)
                && std::all_of(index.columns.begin(), index.columns.end(), isEqual))
                throw StoreFailure(StoreErrorGeneric, "There is a row with these values already.");
        }
    }
}

RowWriteResult InMemoryTransaction::deleteRow(
    const NSEntityDescription& entity, std::int64_t key, std::int64_t version, NSError* error)
{
    const StoreRow* row = state().row(entity, key);
    if (!row)
        return RowWriteResult::Gone;
    if (version != 0 && row->version != version)
        return RowWriteResult::Conflict;
    const bool removed = reportingFailure(error, [&] { state().removeRow(entity, key); });
    return removed ? RowWriteResult::Written : RowWriteResult::Failed;
}

bool InMemoryTransaction::changeJoins(std::span<const JoinChange> changes, NSError* error)
{
    return reportingFailure(error, [&] {
        for (const JoinChange& change : changes) {
            const NSRelationshipDescription& owning = *change.relationship;
            const bool bothExist = state().row(owning.inverseRelationship().destinationEntity(), change.ownerKey)
                && state().row(owning.destinationEntity(), change.memberKey);
            if (bothExist || !change.added)
                state().setJoined(owning, change.ownerKey, change.memberKey, change.added);
        }
    });
}

bool InMemoryTransaction::commit(NSError* error)
{
    if (finished_) {
        assignError(error, NSError(TarnStoreErrorDomain, StoreErrorGeneric, "The transaction is over."));
        return false;
    }
    state().clearMissingTargets(written_);
    store_.setState(store_.working_);
    stateNumber_ = ++store_.commits_; // before the lock is free
    finish();
    return true;
}

} // namespace tarn
