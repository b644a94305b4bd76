#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"

namespace tarn {

/// Raises `NSUndefinedKeyException` with the name of a key that the predicate reads and its entity does not have.
void checkKeysOfPredicate(const NSPredicate& predicate, const NSEntityDescription& entity);
/// Whether the predicate reads a large attribute of the entity itself.
bool readsLargeAttribute(const NSPredicate& predicate, const NSEntityDescription& entity);

} // namespace tarn
