#include "tarnmodel/platform/coredata/memory/InMemoryState.h"

#include "tarnmodel/platform/foundation/text/Folding.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace tarn {

namespace {

bool isColumn(const NSPropertyDescription& property)
{
    return property.isRelationship()
        && static_cast<const NSRelationshipDescription&>(property).storage() == RelationshipStorage::Column;
}

/// So many numbers that rows with different texts seldom share one, and so few that copying a state stays cheap.
constexpr std::size_t kTextHashes = std::size_t{1} << 16U;

std::int64_t hashOfText(std::string_view text)
{
    return static_cast<std::int64_t>(std::hash<std::string_view>()(text) % kTextHashes);
}

/// Whether both rows say the same of a property; a row that is not there says nothing.
bool saysTheSame(const StoreRow* old, const StoreRow* row, PropertyIndex index)
{
    return old && row && old->values.equals(index, row->values);
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

const InMemoryState::RowPointer& InMemoryState::rowPointer(const NSEntityDescription& entity, std::int64_t key) const
{
    static const RowPointer none;
    const auto rows = rows_.find(&entity.rootEntity());
    const RowPointer* found = rows == rows_.end() ? nullptr : rows->second.find(key);
    return found ? *found : none;
}

const StoreRow* InMemoryState::row(const NSEntityDescription& entity, std::int64_t key) const
{
    return rowPointer(entity, key).get();
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
    const RowKeys* found = related == related_.end() ? nullptr : related->second.find(key);
    if (found)
        found->forEach([&](std::int64_t other, bool) { keys.push_back(other); });
    return keys;
}

std::size_t InMemoryState::countRelated(const NSRelationshipDescription& relationship, std::int64_t key) const
{
    const auto related = related_.find(&relationship);
    const RowKeys* found = related == related_.end() ? nullptr : related->second.find(key);
    return found ? found->size() : 0;
}

bool InMemoryState::hasIndex(const NSPropertyDescription& property, bool folded)
{
    if (property.isRelationship())
        return isColumn(property);
    const auto& attribute = static_cast<const NSAttributeDescription&>(property);
    return folded ? attribute.isFolded() : attribute.isIndexed();
}

std::vector<std::int64_t> InMemoryState::keysWithValue(const EqualityProbe& probe) const
{
    const NSPropertyDescription& property = *probe.property;
    if (property.isRelationship())
        return relatedKeys(static_cast<const NSRelationshipDescription&>(property).inverseRelationship(), probe.key);
    std::vector<std::int64_t> keys;
    const auto index = texts_.find({&property.declaringEntity(), property.index(), probe.folded});
    const RowKeys* found = index == texts_.end() ? nullptr : index->second.find(hashOfText(probe.text));
    if (found)
        found->forEach([&](std::int64_t key, bool) { keys.push_back(key); });
    return keys;
}

// Writing -------------------------------------------------------------------------------------------------------------

void InMemoryState::setMember(KeysByKey& keys, std::int64_t key, std::int64_t other, bool present)
{
    if (present) {
        keys[key][other] = true;
        return;
    }
    if (!keys.find(key))
        return;
    RowKeys& others = keys[key];
    others.erase(other);
    if (others.isEmpty())
        keys.erase(key);
}

void InMemoryState::setIndexed(
    const NSRelationshipDescription& from, std::int64_t key, std::int64_t other, bool present)
{
    setMember(related_[&from], key, other, present);
}

void InMemoryState::indexText(const NSAttributeDescription& attribute, bool folded, const StoreRow& row, bool present)
{
    if (attribute.type() != NSAttributeType::String || !hasIndex(attribute, folded)
        || row.values.isNil(attribute.index()))
        return;
    const std::string_view text = row.values.bytes(attribute.index());
    const std::int64_t hash = folded ? hashOfText(fold(text)) : hashOfText(text);
    setMember(texts_[{&attribute.declaringEntity(), attribute.index(), folded}], hash, row.key, present);
}

/// Takes what the old row says out of the indexes and enters what the row says in its place; either may be null.
void InMemoryState::index(const StoreRow* old, const StoreRow* row)
{
    const NSEntityDescription& entity = *(old ? old : row)->entity;
    for (const NSPropertyDescription* property : entity.properties()) {
        if (saysTheSame(old, row, property->index()))
            continue;
        for (const StoreRow* one : {old, row}) {
            if (!one)
                continue;
            const bool present = one == row;
            if (!property->isRelationship()) {
                for (const bool folded : {false, true})
                    indexText(static_cast<const NSAttributeDescription&>(*property), folded, *one, present);
            } else if (isColumn(*property) && !one->values.isNil(property->index())) {
                setIndexed(static_cast<const NSRelationshipDescription*>(property)->inverseRelationship(),
                    one->values.integer(property->index()), one->key, present);
            }
        }
    }
}

void InMemoryState::setRow(StoreRow row)
{
    clearNotANumbers(row.values);
    index(this->row(*row.entity, row.key), &row);
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
        index(still, nullptr);
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
