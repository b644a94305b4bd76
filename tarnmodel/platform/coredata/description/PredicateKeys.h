#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <string>
#include <vector>

namespace tarn {

/// Raises `NSUndefinedKeyException` with the name of a key that the predicate reads and its entity does not have.
void checkKeysOfPredicate(const NSPredicate& predicate, const NSEntityDescription& entity);
/// Whether the predicate reads a large attribute of the entity itself.
bool readsLargeAttribute(const NSPredicate& predicate, const NSEntityDescription& entity);

/// The keys of a path from the member that the variable names, or without a name from the fetched row; null for what
/// starts elsewhere.
const std::vector<std::string>* keysFrom(const Expression& expression, const std::string& variable);
/// The to-many relationship of this name; null when the entity has none.
const NSRelationshipDescription* toManyNamed(const NSEntityDescription& entity, const std::string& key);

} // namespace tarn
