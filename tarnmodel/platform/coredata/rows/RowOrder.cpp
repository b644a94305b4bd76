#include "tarnmodel/platform/coredata/rows/RowOrder.h"

#include "tarnmodel/platform/coredata/description/CompleteOrder.h"
#include "tarnmodel/platform/foundation/time/Collation.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>
#include <compare>

namespace tarn {

namespace {

using Part = RowOrder::Place::Part;

/// The key that a to-one of the row names, or 0.
std::int64_t targetOf(const NSRelationshipDescription& toOne, const StoreRow& row, const RowReader& reader)
{
    if (toOne.storage() == RelationshipStorage::Column)
        return row.values.isNil(toOne.index()) ? 0 : row.values.integer(toOne.index());
    const auto related = reader.readRelatedKeys(toOne, row.key);
    return related.empty() ? 0 : related.front().key;
}

std::partial_ordering compareParts(NSAttributeType type, const Part& left, const Part& right)
{
    if (left.isNil || right.isNil)
        return !left.isNil <=> !right.isNil;
    switch (type) {
    case NSAttributeType::Double:
        return left.floating <=> right.floating;
    case NSAttributeType::String:
    case NSAttributeType::Data:
        return left.bytes <=> right.bytes;
    default:
        return left.integer <=> right.integer;
    }
}

} // namespace

RowOrder::RowOrder(std::span<const NSSortDescriptor> descriptors, const NSEntityDescription& entity)
{
    const CompleteOrder order = completeOrder(descriptors, entity);
    for (const NSSortDescriptor& descriptor : order.descriptors)
        keys_.push_back(sortKey(descriptor, entity));
    keysAscend_ = order.keysAscend;
}

RowOrder::SortKey RowOrder::sortKey(const NSSortDescriptor& descriptor, const NSEntityDescription& entity)
{
    SortKey key;
    key.isAscending = descriptor.ascending;
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
    key.isLocalized = descriptor.comparison == SortComparison::LocalizedStandard
        && key.attribute->type() == NSAttributeType::String;
    return key;
}

RowOrder::Place::Part RowOrder::partOf(const SortKey& key, const StoreRow& row, const RowReader& reader)
{
    Part part;
    std::optional<StoreRow> reached;
    const StoreRow* here = &row;
    for (const NSRelationshipDescription* step : key.way) {
        const std::int64_t target = targetOf(*step, *here, reader);
        if (target <= 0)
            return part;
        reached = reader.readRow(step->destinationEntity(), target, RowContents::Row);
        if (!reached)
            return part;
        here = &*reached;
    }
    const PropertyIndex index = key.attribute->index();
    if (!here->values.isLoaded(index)) {
        reached = reader.readRow(*here->entity, here->key, RowContents::WholeRow);
        if (!reached)
            return part;
        here = &*reached;
    }
    part.isNil = here->values.isNil(index);
    if (part.isNil)
        return part;
    switch (key.attribute->type()) {
    case NSAttributeType::Double:
        part.floating = here->values.floating(index);
        break;
    case NSAttributeType::String:
    case NSAttributeType::Data:
        part.bytes = key.isLocalized ? localizedStandardSortKey(here->values.bytes(index))
                                     : std::string(here->values.bytes(index));
        break;
    default:
        part.integer = here->values.integer(index);
    }
    return part;
}

RowOrder::Place RowOrder::placeOf(const StoreRow& row, const RowReader& reader) const
{
    Place place;
    place.key = row.key;
    for (const SortKey& key : keys_)
        place.parts.push_back(partOf(key, row, reader));
    return place;
}

bool RowOrder::comesBefore(const Place& left, const Place& right) const
{
    for (std::size_t at = 0; at < keys_.size(); ++at) {
        const auto order = compareParts(keys_[at].attribute->type(), left.parts[at], right.parts[at]);
        if (order != 0)
            return keys_[at].isAscending ? order < 0 : order > 0;
    }
    return keysAscend_ ? left.key < right.key : right.key < left.key;
}

} // namespace tarn
