#include "platform/coredata/InMemoryFetch.h"

#include "platform/coredata/PredicateKeys.h"
#include "platform/foundation/Collation.h"
#include "platform/foundation/NSException.h"
#include "platform/predicate/PredicateEvaluator.h"

#include <algorithm>
#include <compare>

namespace tarn {

namespace {

using RowPointer = InMemoryState::RowPointer;

/// The to-ones on the way to an attribute, and the attribute.
struct SortKey {
    std::vector<const NSRelationshipDescription*> way;
    const NSAttributeDescription* attribute = nullptr;
    bool ascending = true;
    bool localized = false;
};

SortKey sortKey(const NSSortDescriptor& descriptor, const NSEntityDescription& entity)
{
    SortKey key;
    key.ascending = descriptor.ascending;
    const NSEntityDescription* here = &entity;
    std::string_view rest = descriptor.key;
    while (!key.attribute) {
        const std::size_t end = std::min(rest.find('.'), rest.size());
        const NSPropertyDescription* property = here->propertyNamed(rest.substr(0, end));
        if (!property)
            throw NSException(NSUndefinedKeyException,
                "\"" + here->name() + "\" has no key \"" + std::string(rest.substr(0, end)) + "\"");
        const bool isLast = end == rest.size();
        const auto* relationship
            = property->isRelationship() ? static_cast<const NSRelationshipDescription*>(property) : nullptr;
        if ((relationship != nullptr) == isLast || (relationship && relationship->isToMany()))
            throw NSException(
                NSInvalidArgumentException, "\"" + entity.name() + "\" cannot be sorted by \"" + descriptor.key + "\"");
        if (!relationship) {
            key.attribute = static_cast<const NSAttributeDescription*>(property);
            break;
        }
        key.way.push_back(relationship);
        here = &relationship->destinationEntity();
        rest.remove_prefix(end + 1);
    }
    key.localized = descriptor.comparison == SortComparison::LocalizedStandard
        && key.attribute->type() == NSAttributeType::String;
    return key;
}

/// The row that holds the value; null when one on the way is missing.
const StoreRow* rowOfSortKey(const SortKey& key, const StoreRow& row, const InMemoryState& state)
{
    const StoreRow* here = &row;
    for (const NSRelationshipDescription* step : key.way) {
        std::int64_t target = 0;
        if (step->storage() == RelationshipStorage::Column) {
            target = here->values.isNil(step->index()) ? 0 : here->values.integer(step->index());
        } else {
            const auto related = state.relatedKeys(*step, here->key);
            target = related.empty() ? 0 : related.front();
        }
        here = target > 0 ? state.row(step->destinationEntity(), target) : nullptr;
        if (!here)
            return nullptr;
    }
    return here->values.isNil(key.attribute->index()) ? nullptr : here;
}

std::weak_ordering compareBytes(const SortKey& key, std::string_view left, std::string_view right)
{
    return key.localized ? std::weak_ordering(localizedStandardCompare(left, right))
                         : std::weak_ordering(left <=> right);
}

std::weak_ordering compareByKey(const SortKey& key, const StoreRow* left, const StoreRow* right)
{
    if (!left || !right)
        return (left != nullptr) <=> (right != nullptr); // nil first
    const PropertyIndex index = key.attribute->index();
    switch (key.attribute->type()) {
    case NSAttributeType::Double: {
        const auto order = left->values.floating(index) <=> right->values.floating(index);
        return order < 0 ? std::weak_ordering::less
            : order > 0  ? std::weak_ordering::greater
                         : std::weak_ordering::equivalent;
    }
    case NSAttributeType::String:
    case NSAttributeType::Data:
        return compareBytes(key, left->values.bytes(index), right->values.bytes(index));
    default:
        return left->values.integer(index) <=> right->values.integer(index);
    }
}

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
    std::vector<SortKey> keys;
    for (const NSSortDescriptor& descriptor : fetch.sortDescriptors)
        keys.push_back(sortKey(descriptor, *fetch.entity));
    std::vector<RowPointer> rows = matchingRows(fetch, state, identity);
    // Rows come by key, and a stable sort keeps that order where the keys are equal.
    std::stable_sort(rows.begin(), rows.end(), [&](const RowPointer& left, const RowPointer& right) {
        for (const SortKey& key : keys) {
            const auto order = compareByKey(key, rowOfSortKey(key, *left, state), rowOfSortKey(key, *right, state));
            if (order != 0)
                return key.ascending ? order < 0 : order > 0;
        }
        return false;
    });
    const std::size_t first = std::min(fetch.offset, rows.size());
    const std::size_t count = fetch.limit > 0 ? std::min(fetch.limit, rows.size() - first) : rows.size() - first;
    std::vector<StoreRow> given;
    given.reserve(count);
    for (std::size_t i = first; i < first + count; ++i)
        given.push_back(rowWithContents(*rows[i], fetch.contents));
    return given;
}

} // namespace tarn
