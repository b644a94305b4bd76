#include "tarnmodel/platform/coredata/context/child/OverlaidFetch.h"

#include "tarnmodel/platform/coredata/context/SortOrder.h"
#include "tarnmodel/platform/coredata/description/KeyPathWalk.h"
#include "tarnmodel/platform/coredata/description/PredicateKeys.h"
#include "tarnmodel/platform/coredata/rows/RowOrder.h"
#include "tarnmodel/platform/coredata/rows/SaturatingSum.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/predicate/PredicateEvaluator.h"

#include <algorithm>

namespace tarn {

OverlaidFetch::OverlaidFetch(RowStore& base, const UnsavedSnapshot& snapshot, const StoreFetch& fetch)
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
    walkKeyPath(*fetch_.entity, keys, [this](const auto& way, const auto& entity, const auto&) {
        if (way.empty())
            return;
        for (const auto& [pendingKey, entry] : snapshot_.entriesOfRoot(entity.rootEntity()))
            if (!entry->isDeleted)
                reachBack(way, pendingKey);
    });
}

void OverlaidFetch::reachBack(std::span<const NSRelationshipDescription* const> path, std::int64_t key)
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

/// Asks the store for all rows but the unsure ones, from the first on.
template <typename Ask> void OverlaidFetch::askStore(Ask&& ask) const
{
    std::vector<std::int64_t> excluded(unsure_.begin(), unsure_.end());
    excluded.insert(excluded.end(), fetch_.excludedKeys.begin(), fetch_.excludedKeys.end());
    std::ranges::sort(excluded);
    StoreFetch stored = fetch_;
    stored.excludedKeys = excluded;
    stored.offset = 0;
    stored.limit = fetch_.limit ? saturatingSum(fetch_.offset, fetch_.limit) : 0;
    // What is put among others by its values has to have them.
    if (!fetch_.sortDescriptors.empty() && stored.contents == RowContents::Keys)
        stored.contents = RowContents::Row;
    NSError error;
    if (!ask(stored, error))
        throw StoreFailure(std::move(error));
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

/// Puts each judged row in its place among the stored ones, which come in order; few of those are looked at.
std::vector<StoreRow> OverlaidFetch::merged(std::vector<StoreRow> stored, std::vector<StoreRow> judged) const
{
    const RowOrder order(fetch_.sortDescriptors, *fetch_.entity);
    std::vector<std::pair<RowOrder::Place, StoreRow>> placed;
    for (StoreRow& row : judged) {
        RowOrder::Place place = order.placeOf(row, overlaid_);
        placed.emplace_back(std::move(place), std::move(row));
    }
    std::ranges::sort(
        placed, [&](const auto& left, const auto& right) { return order.comesBefore(left.first, right.first); });

    std::vector<StoreRow> all;
    all.reserve(stored.size() + placed.size());
    auto next = stored.begin();
    for (auto& [itsPlace, row] : placed) {
        const RowOrder::Place& place = itsPlace;
        const auto behind = std::partition_point(next, stored.end(),
            [&](const StoreRow& other) { return order.comesBefore(order.placeOf(other, overlaid_), place); });
        std::move(next, behind, std::back_inserter(all));
        all.push_back(std::move(row));
        next = behind;
    }
    std::move(next, stored.end(), std::back_inserter(all));
    return all;
}

std::vector<StoreRow> OverlaidFetch::rows()
{
    std::vector<StoreRow> stored;
    askStore([&](const StoreFetch& fetch, NSError& error) { return base_.fetch(fetch, stored, &error); });
    std::vector<StoreRow> all = merged(std::move(stored), judgedRows());
    const std::size_t first = std::min(fetch_.offset, all.size());
    const std::size_t count = fetch_.limit ? std::min(fetch_.limit, all.size() - first) : all.size() - first;
    std::vector<StoreRow> result;
    result.reserve(count);
    for (std::size_t at = first; at < first + count; ++at) {
        if (fetch_.contents == RowContents::Keys)
            all[at].values = PropertyValues();
        result.push_back(std::move(all[at]));
    }
    return result;
}

std::size_t OverlaidFetch::count()
{
    std::size_t stored = 0;
    askStore([&](const StoreFetch& fetch, NSError& error) { return base_.count(fetch, stored, &error); });
    const std::size_t all = stored + judgedRows().size();
    const std::size_t behind = all - std::min(fetch_.offset, all);
    return fetch_.limit ? std::min(fetch_.limit, behind) : behind;
}

} // namespace tarn
