#include "platform/coredata/InMemoryState.h"

#include <algorithm>
#include <cmath>

namespace tarn {

namespace {

bool isColumn(const NSPropertyDescription& property)
{
    return property.isRelationship()
        && static_cast<const NSRelationshipDescription&>(property).storage() == RelationshipStorage::Column;
}

/// The store knows no number that is none: SQLite keeps it as nil, and so do we.
void clearNotANumbers(PropertyValues& values)
{
    for (const NSAttributeDescription* attribute : values.entity().attributes()) {
        const PropertyIndex index = attribute->index();
        if (attribute->type() == NSAttributeType::Double && !values.isNil(index) && std::isnan(values.floating(index)))
            values.setNil(index);
    }
}

} // namespace

// Reading -------------------------------------------------------------------------------------------------------------

const StoreRow* InMemoryState::row(const NSEntityDescription& entity, std::int64_t key) const
{
    const auto rows = rows_.find(&entity.rootEntity());
    const RowPointer* found = rows == rows_.end() ? nullptr : rows->second.find(key);
    return found ? found->get() : nullptr;
}

std::vector<InMemoryState::RowPointer> InMemoryState::rowsOfRoot(const NSEntityDescription& root) const
{
    std::vector<RowPointer> all;
    const auto rows = rows_.find(&root);
    if (rows != rows_.end())
        rows->second.forEach([&](std::int64_t, const RowPointer& row) { all.push_back(row); });
    return all;
}

std::vector<std::int64_t> InMemoryState::relatedKeys(
    const NSRelationshipDescription& relationship, std::int64_t key) const
{
    std::vector<std::int64_t> keys;
    const auto related = related_.find(&relationship);
    const KeySet* found = related == related_.end() ? nullptr : related->second.find(key);
    if (found)
        found->forEach([&](std::int64_t other, bool) { keys.push_back(other); });
    return keys;
}

std::size_t InMemoryState::countRelated(const NSRelationshipDescription& relationship, std::int64_t key) const
{
    const auto related = related_.find(&relationship);
    const KeySet* found = related == related_.end() ? nullptr : related->second.find(key);
    return found ? found->size() : 0;
}

// Writing -------------------------------------------------------------------------------------------------------------

void InMemoryState::setIndexed(
    const NSRelationshipDescription& from, std::int64_t key, std::int64_t other, bool present)
{
    KeysByKey& keys = related_[&from];
    if (present) {
        keys[key][other] = true;
        return;
    }
    if (!keys.find(key))
        return;
    KeySet& others = keys[key];
    others.erase(other);
    if (others.isEmpty())
        keys.erase(key);
}

/// Enters the to-ones of a row, seen from their targets, or takes them out.
void InMemoryState::index(const StoreRow& row, bool present)
{
    for (const NSRelationshipDescription* relationship : row.entity->relationships()) {
        const PropertyIndex index = relationship->index();
        if (isColumn(*relationship) && !row.values.isNil(index))
            setIndexed(relationship->inverseRelationship(), row.values.integer(index), row.key, present);
    }
}

void InMemoryState::setRow(StoreRow row)
{
    if (const StoreRow* old = this->row(*row.entity, row.key))
        index(*old, false);
    clearNotANumbers(row.values);
    index(row, true);
    auto& rows = rows_[&row.entity->rootEntity()];
    const std::int64_t key = row.key;
    rows[key] = std::make_shared<const StoreRow>(std::move(row));
}

void InMemoryState::setJoined(
    const NSRelationshipDescription& owning, std::int64_t owner, std::int64_t member, bool joined)
{
    setIndexed(owning, owner, member, joined);
    setIndexed(owning.inverseRelationship(), member, owner, joined);
}

void InMemoryState::removeFromRelationships(const NSEntityDescription& entity, std::int64_t key)
{
    for (const NSRelationshipDescription* relationship : entity.relationships()) {
        if (relationship->storage() == RelationshipStorage::Column)
            continue;
        const NSRelationshipDescription& inverse = relationship->inverseRelationship();
        for (const std::int64_t other : relatedKeys(*relationship, key)) {
            if (relationship->storage() == RelationshipStorage::JoinTable) {
                setIndexed(*relationship, key, other, false);
                setIndexed(inverse, other, key, false);
            } else if (const StoreRow* referring = row(relationship->destinationEntity(), other)) {
                StoreRow changed = *referring;
                changed.values.setNil(inverse.index());
                setRow(std::move(changed));
            }
        }
    }
}

void InMemoryState::removeRow(const NSEntityDescription& entity, std::int64_t key)
{
    const StoreRow* found = row(entity, key);
    if (!found)
        return;
    removeFromRelationships(*found->entity, key);
    if (const StoreRow* still = row(entity, key))
        index(*still, false);
    rows_[&entity.rootEntity()].erase(key);
}

void InMemoryState::clearMissingTargets(const std::vector<NSManagedObjectID>& written)
{
    for (const NSManagedObjectID& id : written) {
        const StoreRow* found = row(id.entity(), id.key());
        if (!found)
            continue;
        StoreRow changed = *found;
        bool cleared = false;
        for (const NSRelationshipDescription* relationship : found->entity->relationships()) {
            const PropertyIndex index = relationship->index();
            if (!isColumn(*relationship) || found->values.isNil(index))
                continue;
            if (row(relationship->destinationEntity(), found->values.integer(index)))
                continue;
            changed.values.setNil(index);
            cleared = true;
        }
        if (cleared)
            setRow(std::move(changed));
    }
}

// Rows as they are handed out -----------------------------------------------------------------------------------------

StoreRow rowWithContents(const StoreRow& row, RowContents contents)
{
    StoreRow given{row.entity, row.key, row.version, {}};
    if (contents == RowContents::Keys)
        return given;
    given.values = row.values;
    for (const NSPropertyDescription* property : row.entity->properties()) {
        const bool elsewhere = property->isRelationship() && !isColumn(*property)
            && static_cast<const NSRelationshipDescription*>(property)->storage() == RelationshipStorage::InverseColumn;
        const bool unread = contents == RowContents::Row && (row.entity->largeMask() & propertyBit(property->index()));
        if (elsewhere || unread)
            given.values.setUnloaded(property->index());
    }
    return given;
}

std::vector<RelatedKey> relatedKeysInState(
    const InMemoryState& state, const NSRelationshipDescription& relationship, std::int64_t key)
{
    std::vector<RelatedKey> related;
    for (const std::int64_t other : state.relatedKeys(relationship, key))
        if (const StoreRow* row = state.row(relationship.destinationEntity(), other))
            related.push_back({row->entity, other});
    return related;
}

std::optional<StoreRow> InMemoryRowReader::readRow(
    const NSEntityDescription& entity, std::int64_t key, RowContents contents) const
{
    const StoreRow* row = state_.row(entity, key);
    if (!row || !row->entity->isKindOfEntity(entity))
        return std::nullopt;
    return rowWithContents(*row, contents);
}

std::vector<RelatedKey> InMemoryRowReader::readRelatedKeys(
    const NSRelationshipDescription& relationship, std::int64_t key) const
{
    return relatedKeysInState(state_, relationship, key);
}

} // namespace tarn
