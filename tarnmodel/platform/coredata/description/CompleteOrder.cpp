#include "tarnmodel/platform/coredata/description/CompleteOrder.h"

#include <algorithm>

namespace tarn {

namespace {

/// Whether an index begins with this order, forwards or backwards.
bool beginsWith(const IndexDescription& index, std::span<const NSSortDescriptor> order)
{
    if (order.size() > index.columns.size())
        return false;
    const bool isBackwards = order.front().ascending == index.columns.front().descending;
    for (std::size_t i = 0; i < order.size(); ++i) {
        const bool isSame = order[i].key == index.columns[i].property
            && (order[i].ascending == index.columns[i].descending) == isBackwards
            && order[i].comparison == SortComparison::Standard;
        if (!isSame)
            return false;
    }
    return true;
}

bool hasAttributesOnly(const IndexDescription& index, const NSEntityDescription& entity)
{
    return std::ranges::all_of(index.columns,
        [&](const IndexDescription::Column& column) { return entity.attributeNamed(column.property) != nullptr; });
}

/// The index of an attribute's own, as one of a single column.
bool isOwnIndex(const NSEntityDescription& entity, std::span<const NSSortDescriptor> wanted)
{
    const NSAttributeDescription* attribute = wanted.size() == 1 ? entity.attributeNamed(wanted.front().key) : nullptr;
    return attribute && attribute->isIndexed() && wanted.front().comparison == SortComparison::Standard;
}

} // namespace

CompleteOrder completeOrder(std::span<const NSSortDescriptor> wanted, const NSEntityDescription& entity)
{
    CompleteOrder order{{wanted.begin(), wanted.end()}};
    order.isIndexed = wanted.empty();
    if (wanted.empty())
        return order;
    const auto& indexes = entity.rootEntity().indexes();
    const auto index = std::ranges::find_if(indexes, [&](const IndexDescription& candidate) {
        return beginsWith(candidate, wanted) && hasAttributesOnly(candidate, entity.rootEntity());
    });
    if (index == indexes.end()) {
        order.isIndexed = isOwnIndex(entity, wanted);
        order.keysAscend = !order.isIndexed || wanted.front().ascending;
        return order;
    }
    order.isIndexed = true;
    // Whatever the directions of its columns, an index that is walked forwards has equal rows by ascending key.
    order.keysAscend = wanted.front().ascending != index->columns.front().descending;
    for (std::size_t i = wanted.size(); i < index->columns.size(); ++i)
        order.descriptors.push_back({index->columns[i].property, index->columns[i].descending != order.keysAscend});
    return order;
}

} // namespace tarn
