#include "tarnmodel/platform/coredata/migration/EntityStep.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/migration/MigrationPolicies.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"

#include <algorithm>
#include <string>

namespace tarn {

namespace {

const MappingExpression& expressionNamed(const std::vector<NSPropertyMapping>& mappings, const std::string& name)
{
    return std::ranges::find(mappings, name, &NSPropertyMapping::name)->valueExpression;
}

} // namespace

const MappingExpression& EntityStep::expressionOf(const NSAttributeDescription& attribute) const
{
    return expressionNamed(mapping->attributeMappings(), attribute.name());
}

const NSAttributeDescription* EntityStep::takenFrom(const NSAttributeDescription& attribute) const
{
    const MappingExpression& expression = expressionOf(attribute);
    if (expression.kind() != MappingExpression::Kind::SourceKey)
        return nullptr;
    const NSAttributeDescription* source = from->attributeNamed(expression.name());
    return source->type() == attribute.type() ? source : nullptr;
}

const NSRelationshipDescription* EntityStep::madeOf(const NSRelationshipDescription& relationship) const
{
    const MappingExpression& expression = expressionNamed(mapping->relationshipMappings(), relationship.name());
    return expression.kind() == MappingExpression::Kind::SourceKey ? from->relationshipNamed(expression.name())
                                                                   : nullptr;
}

std::set<std::int64_t> targetOffsets(
    const NSRelationshipDescription& from, const NSRelationshipDescription& to, EntitySteps& steps)
{
    std::set<std::int64_t> offsets;
    for (const EntityStep& step : steps.all())
        if (step.hasBoth() && step.keyOffset && step.from->isKindOfEntity(from.destinationEntity())
            && step.to->isKindOfEntity(to.destinationEntity()))
            offsets.insert(*step.keyOffset);
    return offsets;
}

EntitySteps::EntitySteps(const NSMappingModel& mapping, const NSManagedObjectModel& source,
    const NSManagedObjectModel& destination, const NextKeys& nextKeys)
{
    for (const NSEntityDescription* entity : destination.entities())
        nextKeys_.emplace(&entity->rootEntity(), 1);
    for (const auto& entityMapping : mapping.entityMappings()) {
        EntityStep step;
        step.mapping = entityMapping.get();
        step.from = source.entityNamed(entityMapping->sourceEntityName());
        step.to = destination.entityNamed(entityMapping->destinationEntityName());
        step.number = static_cast<int>(steps_.size());
        auto [policy, passes] = MigrationPolicies::make(entityMapping->entityMigrationPolicyClassName());
        step.policy = std::move(policy);
        step.passes = passes;
        const bool isCustom = entityMapping->mappingType() == NSEntityMappingType::Custom;
        // What a policy makes of a record, and whether it makes something at all, is for the policy to say.
        step.passes.createsInstances = passes.createsInstances || isCustom;
        step.passes.createsRelationships = passes.createsRelationships || isCustom;
        if (step.hasBoth() && !isCustom)
            step.keyOffset = offsetFor(*step.from, *step.to, nextKeys);
        steps_.push_back(std::move(step));
    }
}

std::int64_t EntitySteps::offsetFor(
    const NSEntityDescription& from, const NSEntityDescription& to, const NextKeys& nextKeys)
{
    const NSEntityDescription* const root = &to.rootEntity();
    std::vector<Lane>& lanes = lanes_[root];
    const auto takes = [&](const Lane& lane) {
        return lane.sourceRoot == &from.rootEntity() && std::ranges::find(lane.entities, &from) == lane.entities.end();
    };
    auto lane = std::ranges::find_if(lanes, takes);
    if (lane == lanes.end()) {
        const std::int64_t offset = nextKeys_.at(root) - 1;
        lanes.push_back({&from.rootEntity(), {}, offset});
        nextKeys_.at(root) = offset + std::max<std::int64_t>(nextKeys.at(&from.rootEntity()), 1);
        lane = std::prev(lanes.end());
    }
    lane->entities.push_back(&from);
    return lane->offset;
}

EntityStep& EntitySteps::named(std::string_view mappingName)
{
    const auto found
        = std::ranges::find_if(steps_, [&](const EntityStep& step) { return step.mapping->name() == mappingName; });
    if (found == steps_.end())
        throw StoreFailure(StoreErrorGeneric, "There is no entity mapping \"" + std::string(mappingName) + "\".");
    return *found;
}

void EntitySteps::reserveKeys(const NSEntityDescription& root, std::int64_t next)
{
    std::int64_t& present = nextKeys_.at(&root);
    present = std::max(present, next);
}

} // namespace tarn
