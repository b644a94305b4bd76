#include "tarnmodel/platform/coredata/migration/MigrationRecords.h"

#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/migration/MigrationDestination.h"
#include "tarnmodel/platform/coredata/migration/MigrationSource.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

[[noreturn]] void raiseUnknownKey(const NSEntityDescription& entity, std::string_view key)
{
    throw NSException(
        NSUndefinedKeyException, "\"" + entity.name() + "\" has no property \"" + std::string(key) + "\"");
}

const NSAttributeDescription& attributeOf(const NSEntityDescription& entity, std::string_view key)
{
    const NSPropertyDescription* property = entity.propertyNamed(key);
    if (!property)
        raiseUnknownKey(entity, key);
    if (property->isRelationship())
        throw NSException(NSInvalidArgumentException,
            "\"" + std::string(key) + "\" of \"" + entity.name() + "\" is a relationship, not a value");
    return static_cast<const NSAttributeDescription&>(*property);
}

const NSRelationshipDescription& relationshipOf(const NSEntityDescription& entity, std::string_view key)
{
    const NSRelationshipDescription* relationship = entity.relationshipNamed(key);
    if (!relationship)
        raiseUnknownKey(entity, key);
    return *relationship;
}

/// Large attributes are read when one of them is asked for first.
void load(StoreRow& row, PropertyIndex index, const StoreSelects& selects, SQLiteConnection& connection)
{
    if (row.values.isLoaded(index))
        return;
    const auto whole = selects.row(connection, *row.entity, row.key, RowContents::WholeRow);
    if (!whole)
        throw StoreFailure(StoreErrorCorrupt, "A row of \"" + row.entity->name() + "\" is gone.");
    for (const NSAttributeDescription* attribute : row.entity->attributes())
        if (!row.values.isLoaded(attribute->index()))
            row.values.assign(attribute->index(), whole->values);
}

std::vector<NSManagedObjectID> objectIDs(const StoreIdentity& identity, const std::vector<RelatedKey>& related)
{
    std::vector<NSManagedObjectID> identifiers;
    for (const RelatedKey& one : related)
        identifiers.emplace_back(identity, *one.entity, one.key);
    return identifiers;
}

std::vector<NSManagedObjectID> relatedOf(const StoreRow& row, std::string_view key, const StoreIdentity& identity,
    const StoreSelects& selects, SQLiteConnection& connection)
{
    const NSRelationshipDescription& relationship = relationshipOf(*row.entity, key);
    if (relationship.storage() != RelationshipStorage::Column)
        return objectIDs(identity, selects.related(connection, relationship, row.key));
    if (row.values.isNil(relationship.index()))
        return {};
    const std::int64_t target = row.values.integer(relationship.index());
    const auto found = selects.row(connection, relationship.destinationEntity(), target, RowContents::Keys);
    return found ? std::vector{NSManagedObjectID(identity, *found->entity, target)} : std::vector<NSManagedObjectID>();
}

} // namespace

// Of the source -------------------------------------------------------------------------------------------------------

NSManagedObjectID SourceMigrationRecord::objectID() const
{
    return {source_.identity(), *row_.entity, row_.key};
}

Value SourceMigrationRecord::valueForKey(std::string_view key) const
{
    const NSAttributeDescription& attribute = attributeOf(*row_.entity, key);
    load(row_, attribute.index(), source_.selects(), source_.connection());
    return row_.values.attributeValue(attribute.index());
}

void SourceMigrationRecord::setValueForKey(std::string_view key, const Value&)
{
    throw NSException(NSInternalInconsistencyException,
        "\"" + std::string(key) + "\" of a record of the old store cannot be changed");
}

std::vector<NSManagedObjectID> SourceMigrationRecord::relatedObjectIDs(std::string_view relationship) const
{
    return relatedOf(row_, relationship, source_.identity(), source_.selects(), source_.connection());
}

void SourceMigrationRecord::setRelatedObjectIDs(std::string_view relationship, std::span<const NSManagedObjectID>)
{
    setValueForKey(relationship, {});
}

// Of the destination --------------------------------------------------------------------------------------------------

NSManagedObjectID DestinationMigrationRecord::objectID() const
{
    return {identity_, *row_.entity, row_.key};
}

Value DestinationMigrationRecord::valueForKey(std::string_view key) const
{
    const NSAttributeDescription& attribute = attributeOf(*row_.entity, key);
    load(row_, attribute.index(), destination_.selects(), destination_.connection());
    return row_.values.attributeValue(attribute.index());
}

void DestinationMigrationRecord::setValueForKey(std::string_view key, const Value& value)
{
    const NSAttributeDescription& attribute = attributeOf(*row_.entity, key);
    row_.values.setAttributeValue(attribute.index(), value);
    changed_ |= propertyBit(attribute.index());
}

void DestinationMigrationRecord::checkHasRelationships() const
{
    if (kind_ == Kind::New)
        throw NSException(NSInternalInconsistencyException, "Relationships are made when all records are there");
}

std::vector<NSManagedObjectID> DestinationMigrationRecord::relatedObjectIDs(std::string_view relationship) const
{
    checkHasRelationships();
    return relatedOf(row_, relationship, identity_, destination_.selects(), destination_.connection());
}

void DestinationMigrationRecord::setRelatedObjectIDs(
    std::string_view relationship, std::span<const NSManagedObjectID> related)
{
    checkHasRelationships();
    const NSRelationshipDescription& description = relationshipOf(*row_.entity, relationship);
    if (!description.isToMany() && related.size() > 1)
        throw NSException(NSInvalidArgumentException, "\"" + std::string(relationship) + "\" names one record at most");
    std::vector<std::int64_t> keys;
    for (const NSManagedObjectID& one : related) {
        if (!one || !one.entity().isKindOfEntity(description.destinationEntity()))
            throw NSException(NSInvalidArgumentException,
                "\"" + std::string(relationship) + "\" cannot name a record of this entity");
        keys.push_back(one.key());
    }
    destination_.relate(*row_.entity, description, row_.key, keys);
    if (description.storage() != RelationshipStorage::Column)
        return;
    if (keys.empty())
        row_.values.setNil(description.index());
    else
        row_.values.setInteger(description.index(), keys.front());
}

void DestinationMigrationRecord::write()
{
    if (kind_ == Kind::New)
        destination_.insert(row_);
    else if (changed_ != 0)
        destination_.writer().update(row_, changed_);
    kind_ = Kind::Written;
    changed_ = 0;
}

// Of a context --------------------------------------------------------------------------------------------------------

NSManagedObjectID ManagedMigrationRecord::objectID() const
{
    return record_.objectID();
}

Value ManagedMigrationRecord::valueForKey(std::string_view key) const
{
    attributeOf(record_.entity(), key);
    return record_.valueForKey(key);
}

void ManagedMigrationRecord::setValueForKey(std::string_view key, const Value& value)
{
    attributeOf(record_.entity(), key);
    record_.setValueForKey(key, value);
}

std::vector<NSManagedObjectID> ManagedMigrationRecord::relatedObjectIDs(std::string_view relationship) const
{
    relationshipOf(record_.entity(), relationship);
    const Value value = record_.storedValueForKey(relationship);
    std::vector<NSManagedObjectID> identifiers;
    const auto add = [&](const Value& one) {
        identifiers.push_back(static_cast<const NSManagedObject&>(one.asObject()).objectID());
    };
    if (value.kind() == Value::Kind::Object)
        add(value);
    else if (value.kind() == Value::Kind::Array)
        for (const Value& one : value.asArray())
            add(one);
    std::ranges::sort(identifiers, {}, &NSManagedObjectID::key);
    return identifiers;
}

void ManagedMigrationRecord::setRelatedObjectIDs(
    std::string_view relationship, std::span<const NSManagedObjectID> related)
{
    const NSRelationshipDescription& description = relationshipOf(record_.entity(), relationship);
    if (!description.isToMany() && related.size() > 1)
        throw NSException(NSInvalidArgumentException, "\"" + std::string(relationship) + "\" names one record at most");
    std::vector<Value> records;
    for (const NSManagedObjectID& one : related)
        if (NSManagedObject* record = record_.managedObjectContext().existingObjectWithID(one))
            records.emplace_back(record);
    if (description.isToMany())
        record_.setValueForKey(relationship, Value(std::move(records)));
    else
        record_.setValueForKey(relationship, records.empty() ? Value() : records.front());
}

} // namespace tarn
