#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace tarn {

/// Told of one property on a key path: the relationships that lead to it, the entity that stands there, the property.
using KeyPathVisitor = std::function<void(std::span<const NSRelationshipDescription* const> way,
    const NSEntityDescription& entity, const NSPropertyDescription& property)>;

/// Visits the properties of a key path from its first one on, and ends at an attribute or at a key that nothing has.
void walkKeyPath(const NSEntityDescription& entity, const std::vector<std::string>& keys, const KeyPathVisitor& visit);

} // namespace tarn
