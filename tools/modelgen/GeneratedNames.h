#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn::modelgen {

/// How an attribute type appears in accessors.
struct AccessorType {
    std::string_view boxed;      ///< what `x()` returns
    std::string_view parameter;  ///< what `setX()` takes
    std::string_view scalar;     ///< what `xValue()` returns; empty for none
    std::string_view scalarZero; ///< what `xValue()` returns for nil
    std::string_view storedName; ///< the middle of `booleanAt`, `setBooleanAt`, `setPrimitiveBooleanAt`
    std::string_view unboxing;   ///< the expression that takes a boxed `value` apart for `setX()`
};

const AccessorType& accessorType(NSAttributeType type);

/// "modificationDate" -> "ModificationDate".
std::string capitalized(std::string_view name);

/// The properties that an entity declares itself, attributes and relationships.
std::vector<const NSAttributeDescription*> ownAttributes(const NSEntityDescription& entity);
std::vector<const NSRelationshipDescription*> ownRelationships(const NSEntityDescription& entity);

/// The class from which the generated base of an entity derives.
std::string baseClassName(const NSEntityDescription& entity);

} // namespace tarn::modelgen
