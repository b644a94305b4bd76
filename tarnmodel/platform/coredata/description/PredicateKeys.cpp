#include "tarnmodel/platform/coredata/description/PredicateKeys.h"

#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <algorithm>

namespace tarn {

namespace {

void checkKeyPath(const std::vector<std::string>& keys, const NSEntityDescription& start)
{
    const NSEntityDescription* entity = &start;
    for (const std::string& key : keys) {
        const NSPropertyDescription* property = entity ? entity->propertyNamed(key) : nullptr;
        if (!property)
            throw NSException(
                NSUndefinedKeyException, "\"" + (entity ? *entity : start).name() + "\" has no key \"" + key + "\"");
        const auto* relationship
            = property->isRelationship() ? static_cast<const NSRelationshipDescription*>(property) : nullptr;
        entity = relationship ? &relationship->destinationEntity() : nullptr;
    }
}

} // namespace

void checkKeysOfPredicate(const NSPredicate& predicate, const NSEntityDescription& entity)
{
    for (const auto& keys : keyPathsReadByPredicate(predicate))
        checkKeyPath(keys, entity);
}

bool readsLargeAttribute(const NSPredicate& predicate, const NSEntityDescription& entity)
{
    const auto paths = keyPathsReadByPredicate(predicate);
    return std::any_of(paths.begin(), paths.end(), [&](const std::vector<std::string>& keys) {
        const auto* attribute = keys.size() == 1 ? entity.attributeNamed(keys.front()) : nullptr;
        return attribute && attribute->isLarge();
    });
}

const std::vector<std::string>* keysFrom(const Expression& expression, const std::string& variable)
{
    const auto* path = std::get_if<KeyPathExpression>(&expression.form);
    if (!path)
        return nullptr;
    const auto* base = std::get_if<VariableExpression>(&path->base->form);
    const bool startsHere
        = base ? base->name == variable : variable.empty() && std::holds_alternative<SelfExpression>(path->base->form);
    return startsHere ? &path->keys : nullptr;
}

const NSRelationshipDescription* toManyNamed(const NSEntityDescription& entity, const std::string& key)
{
    const NSPropertyDescription* property = entity.propertyNamed(key);
    if (!property || !property->isRelationship())
        return nullptr;
    const auto* relationship = static_cast<const NSRelationshipDescription*>(property);
    return relationship->isToMany() ? relationship : nullptr;
}

} // namespace tarn
