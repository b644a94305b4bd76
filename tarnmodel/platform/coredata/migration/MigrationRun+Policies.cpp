#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSMigrationManager.h"
#include "tarnmodel/platform/coredata/migration/InstanceStatements.h"
#include "tarnmodel/platform/coredata/migration/MigrationRun.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"

#include <algorithm>
#include <limits>

// What a run does for policies, and for those that have no way of their own.

namespace tarn {

// Making records ------------------------------------------------------------------------------------------------------

MigrationRecord& MigrationRun::insert(
    const NSEntityMapping& mapping, std::string_view entityName, const MigrationRecord& source)
{
    EntityStep& step = steps_.named(mapping.name());
    const NSEntityDescription* entity = manager_.destinationModel()->entityNamed(entityName);
    const std::int64_t sourceKey = source.objectID().key();
    if (!entity || !isFirstPass_ || stepInHand_ != &step || sourceKey != sourceKeyInHand_)
        throw StoreFailure(StoreErrorGeneric,
            "A record of \"" + std::string(entityName)
                + "\" can only be made in the first pass, for the source's record in hand.");
    StoreRow row{entity, 0, sourceVersionInHand_, PropertyValues(*entity)};
    for (const NSAttributeDescription* attribute : entity->attributes())
        row.values.setAttributeValue(attribute->index(), attribute->defaultValue());
    const auto isTaken = [&](std::int64_t key) {
        return std::ranges::any_of(recordsInHand_,
            [&](const auto& record) { return record->key() == key && record->entity().isKindOfEntity(*step.to); });
    };
    if (step.keyOffset && entity == step.to && !isTaken(step.destinationKey(sourceKey))) {
        row.key = step.destinationKey(sourceKey);
    } else {
        row.key = steps_.takeKey(entity->rootEntity());
        source_.associate(step, {sourceKey, &entity->rootEntity(), row.key});
    }
    recordsInHand_.push_back(std::make_unique<DestinationMigrationRecord>(
        source_.identity(), destination_, std::move(row), DestinationMigrationRecord::Kind::New));
    return *recordsInHand_.back();
}

void MigrationRun::createInstance(const MigrationRecord& source, const NSEntityMapping& mapping)
{
    const EntityStep& step = steps_.named(mapping.name());
    MigrationRecord& record = insert(mapping, mapping.destinationEntityName(), source);
    for (const NSPropertyMapping& property : mapping.attributeMappings())
        if (property.valueExpression.kind() != MappingExpression::Kind::Default)
            record.setValueForKey(property.name,
                valueOfExpression(property.valueExpression, source, step, *step.to->attributeNamed(property.name)));
}

// Making relationships ------------------------------------------------------------------------------------------------

const std::string& MigrationRun::selectOf(const EntityStep& step, const NSPropertyMapping& property)
{
    const auto [found, isNew] = selects_.try_emplace(&property);
    if (!isNew)
        return found->second;
    std::string select = relationshipSelect(step, property, source_, steps_);
    // Many relationships are empty from one end of a store to the other.
    SQLiteStatement any = source_.connection().prepare("SELECT EXISTS (" + select + ")");
    any.bindInteger(1, std::numeric_limits<std::int64_t>::min());
    any.bindInteger(2, std::numeric_limits<std::int64_t>::max());
    any.step();
    if (any.integer(0) != 0)
        found->second = std::move(select);
    return found->second;
}

void MigrationRun::createRelationships(MigrationRecord& destination, const NSEntityMapping& mapping)
{
    const EntityStep& step = steps_.named(mapping.name());
    const NSManagedObjectID source = sourceOf(mapping.name(), destination.objectID());
    for (const NSPropertyMapping& property : mapping.relationshipMappings()) {
        const NSRelationshipDescription* relationship = destination.entity().relationshipNamed(property.name);
        if (!relationship || !relationship->isKept() || !step.madeOf(*relationship) || !source)
            continue;
        std::vector<std::int64_t> targets;
        const std::string& select = selectOf(step, property);
        if (select.empty())
            continue;
        SQLiteStatement statement = source_.connection().prepare(select);
        statement.bindInteger(1, source.key() - 1);
        statement.bindInteger(2, source.key());
        while (statement.step())
            targets.push_back(statement.integer(1));
        if (!targets.empty())
            destination_.relate(destination.entity(), *relationship, destination.objectID().key(), targets);
    }
}

// Finding records -----------------------------------------------------------------------------------------------------

NSManagedObjectID MigrationRun::sourceID(const EntityStep& step, std::int64_t key) const
{
    return {source_.identity(), *step.from, key};
}

std::vector<NSManagedObjectID> MigrationRun::destinationsOf(
    std::string_view mappingName, const NSManagedObjectID& source)
{
    const EntityStep& step = steps_.named(mappingName);
    std::vector<NSManagedObjectID> found;
    if (!step.hasBoth() || !source)
        return found;
    if (isFirstPass_ && stepInHand_ == &step && source.key() == sourceKeyInHand_ && !recordsInHand_.empty()) {
        for (const auto& record : recordsInHand_)
            found.push_back(record->objectID());
        return found;
    }
    const auto add = [&](const NSEntityDescription& root, std::int64_t key) {
        if (const NSEntityDescription* entity = destination_.entityOf(root, key))
            found.emplace_back(source_.identity(), *entity, key);
    };
    if (step.keyOffset && isMadeOf(step, source.key()))
        add(step.to->rootEntity(), step.destinationKey(source.key()));
    for (const MigrationSource::Association& made : source_.associationsOf(step, source.key()))
        add(*made.root, made.destination);
    return found;
}

NSManagedObjectID MigrationRun::sourceOf(std::string_view mappingName, const NSManagedObjectID& destination)
{
    const EntityStep& step = steps_.named(mappingName);
    if (!step.hasBoth() || !destination)
        return {};
    if (const auto key = source_.associatedSource(step, *destination.root(), destination.key()))
        return sourceID(step, *key);
    if (!step.keyOffset || destination.root() != &step.to->rootEntity())
        return {};
    const std::int64_t key = destination.key() - *step.keyOffset;
    const auto row = source_.selects().row(source_.connection(), *step.from, key, RowContents::Keys);
    return row && row->entity == step.from ? sourceID(step, key) : NSManagedObjectID();
}

const MigrationRecord* MigrationRun::sourceRecord(const NSManagedObjectID& objectID)
{
    sourceLookedAt_.reset();
    if (!objectID || &objectID.entity().model() != manager_.sourceModel().get())
        return nullptr;
    auto row = source_.selects().row(source_.connection(), objectID.entity(), objectID.key(), RowContents::Row);
    if (row)
        sourceLookedAt_ = std::make_unique<SourceMigrationRecord>(source_, std::move(*row));
    return sourceLookedAt_.get();
}

MigrationRecord* MigrationRun::destinationRecord(const NSManagedObjectID& objectID)
{
    if (!objectID || &objectID.entity().model() != manager_.destinationModel().get())
        return nullptr;
    for (const auto& record : recordsInHand_)
        if (record->objectID() == objectID)
            return record.get();
    writeRecordLookedAt();
    if (isFirstPass_)
        return nullptr;
    auto row = destination_.selects().row(
        destination_.connection(), objectID.entity().rootEntity(), objectID.key(), RowContents::Row);
    if (row)
        destinationLookedAt_ = std::make_unique<DestinationMigrationRecord>(
            source_.identity(), destination_, std::move(*row), DestinationMigrationRecord::Kind::Written);
    return destinationLookedAt_.get();
}

std::vector<NSManagedObjectID> MigrationRun::destinationsWithFoldedValue(
    std::string_view entityName, std::string_view attributeName, std::string_view text)
{
    const NSEntityDescription* entity = manager_.destinationModel()->entityNamed(entityName);
    const NSAttributeDescription* attribute = entity ? entity->attributeNamed(attributeName) : nullptr;
    if (!attribute || attribute->type() != NSAttributeType::String)
        throw StoreFailure(StoreErrorGeneric,
            "\"" + std::string(entityName) + "\" has no text \"" + std::string(attributeName) + "\".");
    std::vector<NSManagedObjectID> found;
    for (const std::int64_t key : destination_.keysOfFoldedValue(*entity, *attribute, text))
        found.emplace_back(source_.identity(), *destination_.entityOf(entity->rootEntity(), key), key);
    return found;
}

} // namespace tarn
