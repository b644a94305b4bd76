#include "tarnmodel/platform/coredata/context/child/OverlaidRows.h"

#include "tarnmodel/platform/coredata/rows/StoreFailure.h"

#include <algorithm>

namespace tarn {

namespace {

std::vector<StoreRow> storedRows(
    RowStore& store, const NSEntityDescription& entity, std::span<const std::int64_t> keys, RowContents contents)
{
    std::vector<StoreRow> rows;
    NSError error;
    if (!keys.empty() && !store.rowsForKeys(entity, keys, contents, rows, &error))
        throw StoreFailure(std::move(error));
    return rows;
}

} // namespace

bool OverlaidRows::isDeleted(const NSEntityDescription& root, std::int64_t key) const
{
    const UnsavedSnapshot::Entry* entry = snapshot_.entry(root, key);
    return entry && entry->isDeleted;
}

StoreRow OverlaidRows::rowOfEntry(const UnsavedSnapshot::Entry& entry, RowContents contents) const
{
    if (contents == RowContents::Keys)
        return {entry.row.entity, entry.row.key, entry.row.version, {}};
    StoreRow row = entry.row;
    const PropertyMask large = row.entity->largeMask();
    if (contents == RowContents::WholeRow && (large & ~row.values.loadedMask())) {
        const auto stored = storedRows(base_, row.entity->rootEntity(), std::span(&row.key, 1), contents);
        for (const NSPropertyDescription* property : row.entity->properties())
            if ((large & propertyBit(property->index())) && !row.values.isLoaded(property->index()) && !stored.empty())
                row.values.assign(property->index(), stored.front().values);
    }
    return row;
}

std::vector<StoreRow> OverlaidRows::readRows(
    const NSEntityDescription& entity, std::span<const std::int64_t> keys, RowContents contents) const
{
    const NSEntityDescription& root = entity.rootEntity();
    std::vector<std::int64_t> stored;
    std::vector<StoreRow> pending;
    for (const std::int64_t key : keys) {
        const UnsavedSnapshot::Entry* entry = snapshot_.entry(root, key);
        if (!entry)
            stored.push_back(key);
        else if (!entry->isDeleted)
            pending.push_back(rowOfEntry(*entry, contents));
    }
    std::vector<StoreRow> rows = storedRows(base_, entity, stored, contents);
    std::move(pending.begin(), pending.end(), std::back_inserter(rows));
    return rows;
}

std::optional<StoreRow> OverlaidRows::readRow(
    const NSEntityDescription& entity, std::int64_t key, RowContents contents) const
{
    std::vector<StoreRow> rows = readRows(entity, std::span(&key, 1), contents);
    return rows.empty() ? std::nullopt : std::optional(std::move(rows.front()));
}

std::vector<RelatedKey> OverlaidRows::storedRelatedKeys(
    const NSRelationshipDescription& relationship, std::int64_t key) const
{
    std::vector<RelatedKey> related;
    NSError error;
    if (!base_.relatedKeys(relationship, key, related, &error))
        throw StoreFailure(std::move(error));
    return related;
}

std::vector<RelatedKey> OverlaidRows::readRelatedKeys(
    const NSRelationshipDescription& relationship, std::int64_t key) const
{
    const NSRelationshipDescription& inverse = relationship.inverseRelationship();
    if (isDeleted(inverse.destinationEntity().rootEntity(), key))
        return {};
    const NSEntityDescription& root = relationship.destinationEntity().rootEntity();
    std::vector<RelatedKey> related = storedRelatedKeys(relationship, key);
    if (relationship.isToMany() && inverse.isToMany()) {
        for (const UnsavedSnapshot::JoinDelta& delta : snapshot_.joinDeltas(relationship, key)) {
            std::erase(related, delta.member);
            if (delta.isAdded)
                related.push_back(delta.member);
        }
        std::erase_if(related, [&](const RelatedKey& member) { return isDeleted(root, member.key); });
    } else {
        // The column stands at the other end, so the pending rows there say it all.
        std::erase_if(related, [&](const RelatedKey& member) { return snapshot_.entry(root, member.key); });
        const auto holders = snapshot_.holders(inverse, key);
        related.insert(related.end(), holders.begin(), holders.end());
    }
    std::ranges::sort(related, {}, &RelatedKey::key);
    return related;
}

} // namespace tarn
