#include "platform/coredata/OverlaidFetch.h"

#include "platform/coredata/PredicateKeys.h"
#include "platform/coredata/RowOrder.h"
#include "platform/coredata/SortOrder.h"
#include "platform/coredata/StoreFailure.h"
#include "platform/predicate/PredicateEvaluator.h"

#include <algorithm>

namespace tarn {

OverlaidFetch::OverlaidFetch(NSPersistentStore& base, const PendingSnapshot& snapshot, const StoreFetch& fetch)
    : base_(base), snapshot_(snapshot), fetch_(fetch), overlaid_(base, snapshot)
{
    for (const auto& [key, entry] : snapshot.entriesOfRoot(fetch.entity->rootEntity()))
        unsure_.insert(key);
    if (fetch.predicate)
        for (const auto& keys : keyPathsReadByPredicate(*fetch.predicate))
            noteKeyPath(keys);
    for (const NSSortDescriptor& descriptor : fetch.sortDescriptors)
        noteKeyPath(keysOfPath(descriptor.key));
}

/// Rows whose answer depends on a pending record at the other end of a path.
void OverlaidFetch::noteKeyPath(const std::vector<std::string>& keys)
{
    const NSEntityDescription* entity = fetch_.entity;
    std::vector<const NSRelationshipDescription*> path;
    for (const std::string& key : keys) {
        const NSPropertyDescription* property = entity->propertyNamed(key);
        // A property of one sub-entity may be named in a fetch on the whole family.
        for (std::size_t sub = 0; !property && sub < entity->subentities().size(); ++sub)
            property = entity->subentities()[sub]->propertyNamed(key);
        if (!property)
            return;
        if (!path.empty())
            for (const auto& [pendingKey, entry] : snapshot_.entriesOfRoot(entity->rootEntity()))
                if (!entry->isDeleted)
                    reachBack(path, pendingKey);
        if (!property->isRelationship())
            return;
        path.push_back(static_cast<const NSRelationshipDescription*>(property));
        entity = &path.back()->destinationEntity();
    }
}

void OverlaidFetch::reachBack(const std::vector<const NSRelationshipDescription*>& path, std::int64_t key)
{
    std::set<std::int64_t> front{key};
    for (auto step = path.rbegin(); step != path.rend(); ++step) {
        const NSRelationshipDescription& back = (*step)->inverseRelationship();
        std::set<std::int64_t> next;
        for (const std::int64_t member : front) {
            if (!back.isToMany() && back.storage() == RelationshipStorage::Column) {
                const auto row = overlaid_.readRow((*step)->destinationEntity(), member, RowContents::Row);
                if (row && !row->values.isNil(back.index()))
                    next.insert(row->values.integer(back.index()));
            } else {
                for (const RelatedKey& related : overlaid_.readRelatedKeys(back, member))
                    next.insert(related.key);
            }
        }
        front = std::move(next);
    }
    unsure_.insert(front.begin(), front.end());
}

bool OverlaidFetch::isOfEntity(const NSEntityDescription& entity) const
{
    return fetch_.includesSubentities ? entity.isKindOfEntity(*fetch_.entity) : &entity == fetch_.entity;
}

std::vector<StoreRow> OverlaidFetch::storedRows()
{
    std::vector<std::int64_t> excluded(unsure_.begin(), unsure_.end());
    excluded.insert(excluded.end(), fetch_.excludedKeys.begin(), fetch_.excludedKeys.end());
    std::ranges::sort(excluded);
    StoreFetch stored = fetch_;
    stored.excludedKeys = excluded;
    stored.offset = 0;
    stored.limit = fetch_.limit ? fetch_.offset + fetch_.limit : 0;
    if (!fetch_.sortDescriptors.empty() && stored.contents == RowContents::Keys)
        stored.contents = RowContents::Row;
    std::vector<StoreRow> rows;
    NSError error;
    if (!base_.fetch(stored, rows, &error))
        throw StoreFailure(std::move(error));
    return rows;
}

std::vector<StoreRow> OverlaidFetch::judgedRows()
{
    std::vector<std::int64_t> keys;
    std::ranges::copy_if(unsure_, std::back_inserter(keys), [&](std::int64_t key) {
        return !std::binary_search(fetch_.excludedKeys.begin(), fetch_.excludedKeys.end(), key);
    });
    const bool readsText = fetch_.predicate && readsLargeAttribute(*fetch_.predicate, *fetch_.entity);
    const RowContents contents
        = readsText || fetch_.contents == RowContents::WholeRow ? RowContents::WholeRow : RowContents::Row;
    std::vector<StoreRow> rows = overlaid_.readRows(*fetch_.entity, keys, contents);
    std::erase_if(rows, [&](const StoreRow& row) { return !isOfEntity(*row.entity); });
    if (!fetch_.predicate)
        return rows;
    checkKeysOfPredicate(*fetch_.predicate, *fetch_.entity);
    const PredicateEvaluator evaluator(*fetch_.predicate);
    RowGraph graph(overlaid_);
    std::erase_if(rows, [&](const StoreRow& row) { return !evaluator.evaluate(graph.objectForRow(row)); });
    return rows;
}

std::vector<StoreRow> OverlaidFetch::rows()
{
    const RowOrder order(fetch_.sortDescriptors, *fetch_.entity);
    std::vector<std::pair<RowOrder::Place, StoreRow>> placed;
    const auto place = [&](std::vector<StoreRow> rows) {
        for (StoreRow& row : rows) {
            RowOrder::Place at = order.placeOf(row, overlaid_);
            placed.emplace_back(std::move(at), std::move(row));
        }
    };
    place(storedRows());
    place(judgedRows());
    std::ranges::sort(
        placed, [&](const auto& left, const auto& right) { return order.comesBefore(left.first, right.first); });
    const std::size_t first = std::min(fetch_.offset, placed.size());
    const std::size_t count = fetch_.limit ? std::min(fetch_.limit, placed.size() - first) : placed.size() - first;
    std::vector<StoreRow> result;
    result.reserve(count);
    for (std::size_t at = first; at < first + count; ++at) {
        if (fetch_.contents == RowContents::Keys)
            placed[at].second.values = PropertyValues();
        result.push_back(std::move(placed[at].second));
    }
    return result;
}

} // namespace tarn
