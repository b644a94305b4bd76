#include "tarnmodel/platform/coredata/migration/WholeTableCopy.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/migration/MigrationDestination.h"
#include "tarnmodel/platform/coredata/migration/MigrationSource.h"

#include <set>
#include <string>
#include <vector>

namespace tarn {

namespace {

std::vector<const EntityStep*> stepsInto(const NSEntityDescription& root, EntitySteps& steps)
{
    std::vector<const EntityStep*> into;
    for (const EntityStep& step : steps.all())
        if (step.hasBoth() && &step.to->rootEntity() == &root)
            into.push_back(&step);
    return into;
}

/// The column of the source that a column takes its values from as they are; none where it does not.
std::optional<std::string> sourceColumnOf(const EntityStep& step, const StoreColumn& column, EntitySteps& steps)
{
    if (const NSAttributeDescription* attribute = column.attribute()) {
        const NSAttributeDescription* from = step.takenFrom(*attribute);
        return from && !from->isLarge() ? std::optional(from->name()) : std::nullopt;
    }
    const auto& relationship = static_cast<const NSRelationshipDescription&>(*column.property);
    const NSRelationshipDescription* from = step.madeOf(relationship);
    const bool isSame = from && from->storage() == RelationshipStorage::Column
        && targetOffsets(*from, relationship, steps) == std::set{INT64_C(0)};
    return isSame ? std::optional(from->name()) : std::nullopt;
}

/// The same for the folded value of an attribute.
std::optional<std::string> sourceShadowOf(
    const EntityStep& step, const NSAttributeDescription& attribute, const MigrationSource& source)
{
    const NSAttributeDescription* from = step.takenFrom(attribute);
    const bool isSame = from && source.hasCurrentShadow(*from) && !source.hasStaleShadow(*from);
    return isSame ? std::optional(shadowColumnName(*from)) : std::nullopt;
}

/// The columns of the source that those of a table take their values from, in its order; none where one does not.
std::optional<std::vector<std::string>> sourceColumns(
    const EntityStep& step, const StoreTable& table, const MigrationSource& source, EntitySteps& steps)
{
    std::vector<std::string> names{"pk", "rowVersion"};
    std::vector<std::string> shadows;
    for (const StoreColumn& column : table.columns) {
        const auto name = sourceColumnOf(step, column, steps);
        if (!name)
            return std::nullopt;
        names.push_back(*name);
        const NSAttributeDescription* attribute = column.attribute();
        if (!attribute || !hasShadowColumn(*attribute))
            continue;
        const auto shadow = sourceShadowOf(step, *attribute, source);
        if (!shadow)
            return std::nullopt;
        shadows.push_back(*shadow);
    }
    names.insert(names.end(), shadows.begin(), shadows.end());
    return names;
}

BulkStatement copyOf(const std::string& from, const std::string& to)
{
    return {"INSERT INTO side." + quotedIdentifier(to) + " SELECT * FROM main." + quotedIdentifier(from), to};
}

} // namespace

std::optional<BulkStatement> wholeTableStatement(
    const StoreTable& table, const MigrationSource& source, const MigrationDestination& destination, EntitySteps& steps)
{
    // Rows of several entities may have values where only another entity has a property.
    const std::vector<const EntityStep*> into = stepsInto(*table.root, steps);
    if (!destination.isNew() || table.hasDiscriminator || into.size() != 1)
        return std::nullopt;
    const EntityStep& step = *into.front();
    const StoreTable& from = source.schema().table(*step.from);
    if (from.hasDiscriminator || step.keyOffset != 0 || !isMadeBySQL(step) || step.passes.createsInstances
        || step.passes.createsRelationships)
        return std::nullopt;
    const auto columns = sourceColumns(step, table, source, steps);
    if (!columns || *columns != source.columnNames(from.name))
        return std::nullopt;
    return copyOf(from.name, table.name);
}

std::optional<BulkStatement> wholeJoinStatement(
    const JoinTable& join, const MigrationSource& source, const MigrationDestination& destination, EntitySteps& steps)
{
    const NSRelationshipDescription& to = *join.relationship;
    // A join table says nothing of entities that have a part of a table only.
    if (!destination.isNew() || !entityCondition(to.declaringEntity(), true, "t").empty()
        || !entityCondition(to.destinationEntity(), true, "t").empty())
        return std::nullopt;
    const JoinTable* from = nullptr;
    for (const EntityStep* step : stepsInto(to.declaringEntity().rootEntity(), steps)) {
        const NSRelationshipDescription* relationship = step->madeOf(to);
        if (!relationship || !relationship->ownsJoinTable() || step->keyOffset != 0 || step->passes.createsRelationships
            || targetOffsets(*relationship, to, steps) != std::set{INT64_C(0)})
            return std::nullopt;
        const JoinTable* own = &source.schema().join(*relationship);
        if (from && from != own)
            return std::nullopt;
        from = own;
    }
    return from ? std::optional(copyOf(from->name, join.name)) : std::nullopt;
}

} // namespace tarn
