#pragma once

namespace tarn {

class NSManagedObject;

/// Sets every attribute of `source` that has a value on `copy`, a record of the same entity, through the accessors of
/// both. Relationships stay as they are.
void copyAttributes(const NSManagedObject& source, NSManagedObject& copy);

} // namespace tarn
