#include "tarnmodel/platform/coredata/migration/InstanceStatements.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/migration/AttributeConversion.h"
#include "tarnmodel/platform/coredata/migration/MigrationDestination.h"
#include "tarnmodel/platform/coredata/migration/MigrationSource.h"
#include "tarnmodel/platform/coredata/migration/PolicyFunctions.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace tarn {

namespace {

std::string inMain(const std::string& table)
{
    return "main." + quotedIdentifier(table);
}

std::string inSide(const std::string& table)
{
    return "side." + quotedIdentifier(table);
}

std::string withOffset(const std::string& key, std::int64_t offset)
{
    return offset == 0 ? key : fmt::format("{} + {}", key, offset);
}

/// A value as SQL writes it, whatever a text holds.
std::string literal(const Value& value)
{
    switch (value.kind()) {
    case Value::Kind::Bool:
        return value.asBool() ? "1" : "0";
    case Value::Kind::Integer:
        return std::to_string(value.asInteger());
    case Value::Kind::Double:
        return fmt::format("{:.17e}", value.asDouble());
    case Value::Kind::String: {
        std::string hexadecimal;
        for (const char c : value.asString())
            hexadecimal += fmt::format("{:02X}", static_cast<unsigned char>(c));
        return "CAST(x'" + hexadecimal + "' AS TEXT)";
    }
    default:
        return "NULL";
    }
}

/// A relationship of the destination that is in a column, and was in one.
const NSRelationshipDescription* sourceOfColumn(const EntityStep& step, const NSRelationshipDescription& relationship)
{
    const NSRelationshipDescription* source = step.madeOf(relationship);
    const bool isColumn = source && source->storage() == RelationshipStorage::Column
        && relationship.storage() == RelationshipStorage::Column;
    return isColumn ? source : nullptr;
}

} // namespace

bool isMadeBySQL(const EntityStep& step)
{
    const auto isSQL = [&](const NSPropertyMapping& property) {
        if (property.valueExpression.kind() != MappingExpression::Kind::SourceKey)
            return true;
        const NSAttributeDescription& from = *step.from->attributeNamed(property.valueExpression.name());
        return convertedColumn("", from.type(), step.to->attributeNamed(property.name)->type()).has_value();
    };
    return step.keyOffset && std::ranges::all_of(step.mapping->attributeMappings(), isSQL);
}

namespace {

/// Puts together the statements of one entity mapping.
class InstanceStatementBuilder {
public:
    InstanceStatementBuilder(const EntityStep& step, const MigrationSource& source,
        const MigrationDestination& destination, EntitySteps& steps, PolicyFunctions& functions)
        : step_(step), source_(source), from_(source.schema().table(*step.from)),
          to_(destination.schema().table(*step.to)), steps_(steps), functions_(functions)
    { }

    std::vector<BulkStatement> statements(bool withReferences)
    {
        std::vector<BulkStatement> all{{rowStatement(withReferences), to_.name}};
        if (!to_.largeColumns.empty())
            all.push_back({largeRowStatement(), to_.largeName});
        for (const auto& signature : to_.signatures)
            if (auto statement = signatureStatement(*signature))
                all.push_back({std::move(*statement), signature->name});
        return all;
    }

private:
    bool isOwn(const StoreColumn& column) const { return step_.to->isKindOfEntity(column.property->declaringEntity()); }

    /// A column of the source: "s" is its table, "l" the one with the large attributes, which is then read too.
    std::string sourceColumn(const NSAttributeDescription& attribute)
    {
        readsLarge_ = readsLarge_ || attribute.isLarge();
        return (attribute.isLarge() ? "l." : "s.") + quotedIdentifier(attribute.name());
    }

    std::string valueOf(const NSAttributeDescription& attribute)
    {
        const MappingExpression& expression = step_.expressionOf(attribute);
        switch (expression.kind()) {
        case MappingExpression::Kind::Default:
            return literal(attribute.defaultValue());
        case MappingExpression::Kind::Constant:
            return literal(convertedValue(expression.constant(), attribute.type()));
        case MappingExpression::Kind::SourceKey: {
            const NSAttributeDescription& from = *step_.from->attributeNamed(expression.name());
            return convertedColumn(sourceColumn(from), from.type(), attribute.type()).value();
        }
        case MappingExpression::Kind::PolicyFunction:
            break;
        }
        std::string call = fmt::format("migration_function({}", functions_.add(step_, expression, attribute));
        for (const MappingExpression& argument : expression.arguments())
            if (argument.kind() == MappingExpression::Kind::SourceKey)
                call += ", " + sourceColumn(*step_.from->attributeNamed(argument.name()));
        return call + ")";
    }

    std::string shadowOf(const NSAttributeDescription& attribute)
    {
        const NSAttributeDescription* from = step_.takenFrom(attribute);
        if (from && source_.hasCurrentShadow(*from))
            // What another program has left stale is NULL.
            return fmt::format(
                "coalesce(s.{}, fold({}))", quotedIdentifier(shadowColumnName(*from)), sourceColumn(*from));
        return "fold(" + valueOf(attribute) + ")";
    }

    std::optional<std::string> referenceOf(const NSRelationshipDescription& relationship)
    {
        const NSRelationshipDescription* from = sourceOfColumn(step_, relationship);
        if (!from)
            return std::nullopt;
        const auto offsets = targetOffsets(*from, relationship, steps_);
        if (offsets.size() != 1)
            return std::nullopt;
        return withOffset("s." + quotedIdentifier(from->name()), *offsets.begin());
    }

    /// "FROM" and what follows, for the columns that were asked for since the last time.
    std::string sourceRows()
    {
        return " FROM " + inMain(from_.name) + " AS s"
            + (std::exchange(readsLarge_, false)
                    ? " LEFT JOIN " + inMain(from_.largeName) + " AS l ON l.\"pk\" = s.\"pk\""
                    : "")
            + " WHERE s.\"pk\" > ?1 AND s.\"pk\" <= ?2" + andEntityIs(*step_.from, false, "s");
    }

    std::string rowStatement(bool withReferences)
    {
        std::string names = "\"pk\", \"rowVersion\"";
        std::string values = withOffset("s.\"pk\"", *step_.keyOffset) + ", s.\"rowVersion\"";
        const auto add = [&](const std::string& name, const std::string& value) {
            names += ", " + quotedIdentifier(name);
            values += ", " + value;
        };
        if (to_.hasDiscriminator)
            add("entity", literal(Value(step_.to->name())));
        for (const StoreColumn& column : to_.columns) {
            if (!isOwn(column))
                continue;
            if (const NSAttributeDescription* attribute = column.attribute()) {
                add(column.name, valueOf(*attribute));
                if (hasShadowColumn(*attribute))
                    add(shadowColumnName(*attribute), shadowOf(*attribute));
            } else if (withReferences) {
                const auto& relationship = static_cast<const NSRelationshipDescription&>(*column.property);
                if (const auto reference = referenceOf(relationship))
                    add(column.name, *reference);
            }
        }
        return "INSERT INTO " + inSide(to_.name) + " (" + names + ") SELECT " + values + sourceRows()
            + " ORDER BY s.\"pk\"";
    }

    /// A record has a row of large attributes when one of them has a value.
    std::string largeRowStatement()
    {
        std::string names = "\"pk\"";
        std::string values = withOffset("s.\"pk\"", *step_.keyOffset);
        std::string isSet;
        for (const StoreColumn& column : to_.largeColumns) {
            if (!isOwn(column))
                continue;
            const std::string value = valueOf(*column.attribute());
            names += ", " + quotedIdentifier(column.name);
            values += ", " + value;
            if (value != "NULL")
                isSet += (isSet.empty() ? "" : " OR ") + value + " IS NOT NULL";
        }
        return "INSERT INTO " + inSide(to_.largeName) + " (" + names + ") SELECT " + values + sourceRows() + " AND ("
            + (isSet.empty() ? "0" : isSet) + ") ORDER BY s.\"pk\"";
    }

    /// Of texts that stay as they are.
    std::optional<std::string> signatureStatement(const SignatureTable& signature)
    {
        const NSAttributeDescription& attribute = *signature.attribute;
        if (!step_.to->isKindOfEntity(attribute.declaringEntity()))
            return std::nullopt;
        const NSAttributeDescription* from = step_.takenFrom(attribute);
        const SignatureTable* old = from ? source_.currentSignatures(*from) : nullptr;
        if (!old || from->isLarge() != attribute.isLarge())
            return std::nullopt;
        const std::string key = withOffset("g.\"pk\"", *step_.keyOffset);
        return "INSERT INTO " + inSide(signature.name) + " (\"pk\", \"signature\") SELECT " + key
            + ", g.\"signature\" FROM " + inMain(from_.name) + " AS s JOIN " + inMain(old->name)
            + " AS g ON g.\"pk\" = s.\"pk\" WHERE s.\"pk\" > ?1 AND s.\"pk\" <= ?2"
            + andEntityIs(*step_.from, false, "s") + " AND g.\"signature\" IS NOT NULL AND EXISTS (SELECT 1 FROM "
            + inSide(signature.columnTable()) + " AS c WHERE c.\"pk\" = " + key + ") ORDER BY s.\"pk\"";
    }

    const EntityStep& step_;
    const MigrationSource& source_;
    const StoreTable& from_;
    const StoreTable& to_;
    EntitySteps& steps_;
    PolicyFunctions& functions_;
    bool readsLarge_ = false;
};

} // namespace

std::vector<BulkStatement> instanceStatements(const EntityStep& step, const MigrationSource& source,
    const MigrationDestination& destination, EntitySteps& steps, PolicyFunctions& functions, bool withReferences)
{
    return InstanceStatementBuilder(step, source, destination, steps, functions).statements(withReferences);
}

// Relationships -------------------------------------------------------------------------------------------------------

namespace {

/// A SELECT of "owner" and "target", both keys of the source.
std::string sourcePairs(const NSRelationshipDescription& relationship, const StoreSchema& schema)
{
    const std::string table = inMain(schema.table(relationship.declaringEntity()).name);
    if (relationship.storage() == RelationshipStorage::Column)
        return "SELECT p.\"pk\" AS \"owner\", p." + quotedIdentifier(relationship.name()) + " AS \"target\" FROM "
            + table + " AS p WHERE p." + quotedIdentifier(relationship.name()) + " IS NOT NULL";
    const NSRelationshipDescription& inverse = relationship.inverseRelationship();
    if (relationship.storage() == RelationshipStorage::InverseColumn)
        return "SELECT p." + quotedIdentifier(inverse.name()) + " AS \"owner\", p.\"pk\" AS \"target\" FROM "
            + inMain(schema.table(inverse.declaringEntity()).name) + " AS p WHERE p." + quotedIdentifier(inverse.name())
            + " IS NOT NULL";
    const JoinDirection direction = joinDirection(schema, relationship);
    return fmt::format("SELECT p.\"{}\" AS \"owner\", p.\"{}\" AS \"target\" FROM {} AS p WHERE 1", direction.from,
        direction.to, inMain(direction.table->name));
}

} // namespace

std::string relationshipSelect(
    const EntityStep& step, const NSPropertyMapping& property, const MigrationSource& source, EntitySteps& steps)
{
    const NSRelationshipDescription& to = *step.to->relationshipNamed(property.name);
    const NSRelationshipDescription& from = *step.from->relationshipNamed(property.valueExpression.name());
    const StoreSchema& schema = source.schema();
    const StoreTable& owners = schema.table(*step.from);
    std::string owned = "SELECT \"owner\", \"target\" FROM (" + sourcePairs(from, schema)
        + ") WHERE \"owner\" > ?1 AND \"owner\" <= ?2";
    if (owners.hasDiscriminator)
        owned += " AND EXISTS (SELECT 1 FROM " + inMain(owners.name) + " AS s WHERE s.\"pk\" = \"owner\""
            + andEntityIs(*step.from, false, "s") + ")";
    std::string select;
    for (const std::int64_t offset : targetOffsets(from, to, steps))
        select += (select.empty() ? "" : " UNION ALL ")
            + ("SELECT \"owner\", " + withOffset("\"target\"", offset) + " AS \"target\" FROM (" + owned + ")");
    return select;
}

namespace {

/// `AND` and that the row of a key is there, and of this entity.
std::string andIsThere(const StoreTable& table, const std::string& key, const std::string& andIsOfEntity)
{
    return " AND EXISTS (SELECT 1 FROM " + inSide(table.name) + " AS t WHERE t.\"pk\" = " + key + andIsOfEntity + ")";
}

/// The same where an entity has a part of a table only: what is in no table at all is found at the end.
std::string andIsOfEntity(
    const NSEntityDescription& entity, const StoreTable& table, const std::string& key, bool includesSubentities)
{
    const std::string condition = andEntityIs(entity, includesSubentities, "t");
    return condition.empty() ? condition : andIsThere(table, key, condition);
}

bool isWrittenAlong(const EntityStep& step, const NSRelationshipDescription& relationship, EntitySteps& steps)
{
    const NSRelationshipDescription* from = sourceOfColumn(step, relationship);
    return from && targetOffsets(*from, relationship, steps).size() == 1 && isMadeBySQL(step)
        && !step.passes.createsInstances;
}

} // namespace

std::optional<BulkStatement> relationshipStatement(const EntityStep& step, const NSPropertyMapping& property,
    const MigrationSource& source, const MigrationDestination& destination, EntitySteps& steps)
{
    const NSRelationshipDescription& to = *step.to->relationshipNamed(property.name);
    const StoreSchema& schema = destination.schema();
    const bool isColumn = to.storage() == RelationshipStorage::Column;
    if (!to.isKept() || !step.madeOf(to) || (isColumn && isWrittenAlong(step, to, steps)))
        return std::nullopt;
    const StoreTable& owners = schema.table(*step.to);
    const NSEntityDescription& target = to.destinationEntity();
    const std::string pairs = "(SELECT " + withOffset("\"owner\"", *step.keyOffset) + " AS \"owner\", \"target\" FROM ("
        + relationshipSelect(step, property, source, steps) + ")) AS p WHERE 1";
    if (isColumn) // the first of several records that name the same
        return BulkStatement{"UPDATE " + inSide(owners.name) + " SET " + quotedIdentifier(to.name())
                + " = q.\"target\" FROM (SELECT p.\"owner\", min(p.\"target\") AS \"target\" FROM " + pairs
                + andIsThere(schema.table(target), "p.\"target\"", andEntityIs(target, true, "t"))
                + " GROUP BY p.\"owner\") AS q WHERE " + quotedIdentifier(owners.name) + ".\"pk\" = q.\"owner\"",
            owners.name};
    const std::string& join = schema.join(to).name;
    return BulkStatement{"INSERT OR IGNORE INTO " + inSide(join)
            + " (\"owner\", \"member\") SELECT p.\"owner\", p.\"target\" FROM " + pairs
            + andIsOfEntity(*step.to, owners, "p.\"owner\"", false)
            + andIsOfEntity(target, schema.table(target), "p.\"target\"", true) + " ORDER BY p.\"owner\", p.\"target\"",
        join};
}

} // namespace tarn
