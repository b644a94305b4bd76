#include "tarnmodel/platform/coredata/query/SQLScope.h"

#include "tarnmodel/platform/foundation/values/NSException.h"

namespace tarn {

std::string SQLScope::joinSQL() const
{
    std::string sql;
    for (const Join& join : joins)
        sql += join.sql;
    return sql;
}

SQLPlace SQLPaths::placeOf(SQLScope& scope) const
{
    return {&scope, {}, scope.entity, scope.alias + ".\"pk\"", scope.alias};
}

SQLPathEnd SQLPaths::follow(SQLPlace place, std::span<const std::string> keys)
{
    SQLPathEnd end;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const NSPropertyDescription* property = place.entity->propertyNamed(keys[i]);
        if (!property || (!property->isRelationship() && i + 1 < keys.size())) {
            const std::string& unknown = property ? keys[i + 1] : keys[i];
            throw NSException(
                NSUndefinedKeyException, "\"" + place.entity->name() + "\" has no key \"" + unknown + "\"");
        }
        if (!property->isRelationship()) {
            end.attribute = static_cast<const NSAttributeDescription*>(property);
            break;
        }
        const auto& relationship = static_cast<const NSRelationshipDescription&>(*property);
        if (relationship.isToMany()) {
            end.toMany = &relationship;
            end.rest = keys.subspan(i + 1);
            break;
        }
        place = toOne(place, relationship);
        end.passedToOne = true;
    }
    end.place = std::move(place);
    return end;
}

SQLPlace SQLPaths::toOne(SQLPlace& place, const NSRelationshipDescription& relationship)
{
    SQLPlace next{place.scope, place.path.empty() ? relationship.name() : place.path + "." + relationship.name(),
        &relationship.destinationEntity(), {}, {}};
    if (relationship.storage() == RelationshipStorage::Column) {
        next.key = rowAlias(place) + "." + quotedIdentifier(relationship.name());
        return next;
    }
    const auto& inverse = relationship.inverseRelationship();
    next.key = "(SELECT min(\"pk\") FROM " + quotedIdentifier(schema_.table(*next.entity).name) + " WHERE "
        + quotedIdentifier(inverse.name()) + " = " + place.key + ")";
    return next;
}

const std::string& SQLPaths::rowAlias(SQLPlace& place)
{
    if (place.alias.empty())
        place.alias = joinedAlias(*place.scope, place.path, schema_.table(*place.entity).name, place.key);
    return place.alias;
}

std::string SQLPaths::joinedAlias(
    SQLScope& scope, const std::string& path, const std::string& table, const std::string& key)
{
    for (const SQLScope::Join& join : scope.joins)
        if (join.path == path)
            return join.alias;
    std::string alias = newAlias();
    scope.joins.push_back(
        {path, alias, " LEFT JOIN " + quotedIdentifier(table) + " AS " + alias + " ON " + alias + ".\"pk\" = " + key});
    return alias;
}

std::string SQLPaths::column(SQLPlace& place, const NSAttributeDescription& attribute)
{
    if (!attribute.isLarge())
        return rowAlias(place) + "." + quotedIdentifier(attribute.name());
    const std::string& table = schema_.table(*place.entity).largeName;
    return joinedAlias(*place.scope, place.path + "#large", table, place.key) + "."
        + quotedIdentifier(attribute.name());
}

std::string SQLPaths::shadowColumn(SQLPlace& place, const NSAttributeDescription& attribute)
{
    return rowAlias(place) + "." + quotedIdentifier(shadowColumnName(attribute));
}

} // namespace tarn
