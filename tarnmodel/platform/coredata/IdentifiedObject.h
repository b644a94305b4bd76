#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectID.h"
#include "tarnmodel/platform/foundation/values/Value.h"

namespace tarn {

/// An object that stands for a record of a store: what predicates compare by identifier.
///
/// Managed objects derive from it, and so do the row objects with which a store evaluates predicates by itself; a
/// managed object given as an argument equals the row object of the same record.
class IdentifiedObject : public NSKeyValueCoding {
public:
    /// What `objectID()` answers; apart from it, since record classes redeclare that with a type of their own.
    virtual NSManagedObjectID identifyingObjectID() const = 0;
    /// Which record it stands for.
    NSManagedObjectID objectID() const { return identifyingObjectID(); }

    /// Equal identifiers; another kind of object is equal only at the same address.
    bool isEqualToObject(const NSKeyValueCoding& other) const override
    {
        if (this == &other)
            return true;
        const auto* identified = dynamic_cast<const IdentifiedObject*>(&other);
        return identified != nullptr && objectID() == identified->objectID();
    }
};

} // namespace tarn
