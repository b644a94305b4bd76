#include "tarnmodel/platform/coredata/rows/RowObject.h"

#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

namespace tarn {

namespace {

constexpr std::size_t kMostObjects = 20'000;

} // namespace

// Object --------------------------------------------------------------------------------------------------------------

NSManagedObjectID RowObject::identifyingObjectID() const
{
    return {graph_.reader().storeIdentity(), *row_.entity, row_.key};
}

Value RowObject::storedValueForKey(std::string_view key) const
{
    const NSPropertyDescription* property = row_.entity->propertyNamed(key);
    if (!property)
        throw NSException(
            NSUndefinedKeyException, "\"" + row_.entity->name() + "\" has no key \"" + std::string(key) + "\"");
    if (property->isRelationship())
        return relatedValue(static_cast<const NSRelationshipDescription&>(*property));
    return attributeValue(static_cast<const NSAttributeDescription&>(*property));
}

Value RowObject::attributeValue(const NSAttributeDescription& attribute) const
{
    if (!row_.values.isLoaded(attribute.index())) {
        auto whole = graph_.reader().readRow(*row_.entity, row_.key, RowContents::WholeRow);
        if (!whole)
            throw StoreFailure(StoreErrorGeneric, "A row vanished while it was read.");
        row_ = std::move(*whole);
    }
    return row_.values.attributeValue(attribute.index());
}

Value RowObject::relatedValue(const NSRelationshipDescription& relationship) const
{
    if (relationship.storage() == RelationshipStorage::Column) {
        if (row_.values.isNil(relationship.index()))
            return {};
        return graph_.object(relationship.destinationEntity(), row_.values.integer(relationship.index()));
    }
    Value::Array members;
    for (const RelatedKey& related : graph_.reader().readRelatedKeys(relationship, row_.key)) {
        const RowObject* member = graph_.object(*related.entity, related.key);
        if (!relationship.isToMany())
            return member;
        if (member)
            members.emplace_back(member);
    }
    return relationship.isToMany() ? Value(std::move(members)) : Value();
}

// Graph ---------------------------------------------------------------------------------------------------------------

const RowObject& RowGraph::objectForRow(StoreRow row)
{
    const NSManagedObjectID id(reader_.storeIdentity(), *row.entity, row.key);
    auto& object = objects_[id];
    if (!object)
        object = std::make_unique<RowObject>(*this, std::move(row));
    return *object;
}

const RowObject* RowGraph::object(const NSEntityDescription& entity, std::int64_t key)
{
    const auto found = objects_.find(NSManagedObjectID(reader_.storeIdentity(), entity, key));
    if (found != objects_.end())
        return found->second.get();
    auto row = reader_.readRow(entity, key, RowContents::Row);
    return row ? &objectForRow(std::move(*row)) : nullptr;
}

void RowGraph::trim()
{
    if (objects_.size() > kMostObjects)
        objects_.clear();
}

} // namespace tarn
