#include "tarnmodel/platform/coredata/memory/InMemoryFetch.h"

#include "tarnmodel/platform/coredata/description/EqualityProbes.h"
#include "tarnmodel/platform/coredata/description/PredicateKeys.h"
#include "tarnmodel/platform/coredata/rows/RowOrder.h"
#include "tarnmodel/platform/predicate/PredicateEvaluator.h"

#include <algorithm>
#include <set>
#include <utility>

namespace tarn {

namespace {

using RowPointer = InMemoryState::RowPointer;

bool isOfEntity(const StoreRow& row, const StoreFetch& fetch)
{
    return fetch.includesSubentities ? row.entity->isKindOfEntity(*fetch.entity) : row.entity == fetch.entity;
}

std::vector<RowPointer> rowsToJudge(const StoreFetch& fetch, const InMemoryState& state)
{
    const auto probes
        = fetch.predicate ? equalityProbes(*fetch.entity, *fetch.predicate, InMemoryState::hasIndex) : std::nullopt;
    const NSEntityDescription& root = fetch.entity->rootEntity();
    if (!probes)
        return state.rowsOfRoot(root);
    std::set<std::int64_t> keys;
    for (const EqualityProbe& probe : *probes)
        for (const std::int64_t key : state.keysWithValue(probe))
            keys.insert(key);
    std::vector<RowPointer> rows;
    for (const std::int64_t key : keys)
        if (const RowPointer& row = state.rowPointer(root, key))
            rows.push_back(row);
    return rows;
}

std::vector<RowPointer> matchingRows(const StoreFetch& fetch, const InMemoryState& state, const StoreIdentity& identity)
{
    if (fetch.predicate)
        checkKeysOfPredicate(*fetch.predicate, *fetch.entity);
    std::vector<RowPointer> rows = rowsToJudge(fetch, state);
    std::erase_if(rows, [&](const RowPointer& row) {
        return !isOfEntity(*row, fetch)
            || std::binary_search(fetch.excludedKeys.begin(), fetch.excludedKeys.end(), row->key);
    });
    if (!fetch.predicate)
        return rows;
    const PredicateEvaluator evaluator(*fetch.predicate);
    const InMemoryRowReader reader(identity, state);
    RowGraph graph(reader);
    std::erase_if(rows, [&](const RowPointer& row) {
        graph.trim();
        return !evaluator.evaluate(graph.objectForRow(rowWithContents(*row, RowContents::WholeRow)));
    });
    return rows;
}

} // namespace

std::vector<StoreRow> rowsOfFetch(const StoreFetch& fetch, const InMemoryState& state, const StoreIdentity& identity)
{
    const RowOrder order(fetch.sortDescriptors, *fetch.entity);
    const InMemoryRowReader reader(identity, state);
    std::vector<std::pair<RowOrder::Place, RowPointer>> rows;
    for (RowPointer& row : matchingRows(fetch, state, identity)) {
        RowOrder::Place place = order.placeOf(*row, reader);
        rows.emplace_back(std::move(place), std::move(row));
    }
    std::sort(rows.begin(), rows.end(),
        [&](const auto& left, const auto& right) { return order.comesBefore(left.first, right.first); });
    const std::size_t first = std::min(fetch.offset, rows.size());
    const std::size_t count = fetch.limit > 0 ? std::min(fetch.limit, rows.size() - first) : rows.size() - first;
    std::vector<StoreRow> given;
    given.reserve(count);
    for (std::size_t i = first; i < first + count; ++i)
        given.push_back(rowWithContents(*rows[i].second, fetch.contents));
    return given;
}

std::string explanationOfFetch(const StoreFetch& fetch, const InMemoryState& state)
{
    const std::string& name = fetch.entity->rootEntity().name();
    const bool isLookUp
        = fetch.predicate && equalityProbes(*fetch.entity, *fetch.predicate, InMemoryState::hasIndex).has_value();
    const std::string count = std::to_string(rowsToJudge(fetch, state).size());
    return (isLookUp ? "looks up " : "walks all ") + count + " rows of " + name + "\n";
}

} // namespace tarn
