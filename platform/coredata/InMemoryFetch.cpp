#include "platform/coredata/InMemoryFetch.h"

#include "platform/coredata/PredicateKeys.h"
#include "platform/coredata/RowOrder.h"
#include "platform/predicate/PredicateEvaluator.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

using RowPointer = InMemoryState::RowPointer;

bool isOfEntity(const StoreRow& row, const StoreFetch& fetch)
{
    return fetch.includesSubentities ? row.entity->isKindOfEntity(*fetch.entity) : row.entity == fetch.entity;
}

std::vector<RowPointer> matchingRows(const StoreFetch& fetch, const InMemoryState& state, const StoreIdentity& identity)
{
    std::vector<RowPointer> rows = state.rowsOfRoot(fetch.entity->rootEntity());
    std::erase_if(rows, [&](const RowPointer& row) {
        return !isOfEntity(*row, fetch)
            || std::binary_search(fetch.excludedKeys.begin(), fetch.excludedKeys.end(), row->key);
    });
    if (!fetch.predicate)
        return rows;
    checkKeysOfPredicate(*fetch.predicate, *fetch.entity);
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

} // namespace tarn
