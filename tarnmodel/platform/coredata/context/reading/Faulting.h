#pragma once

#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

namespace tarn {

class HeldRecords;
class RelationshipMaintenance;

/// Fills records from their store: whole rows for faults (neighbours of one fetch together), large attributes when
/// asked for.
///
/// A row that cannot be read raises `NSInternalInconsistencyException`, since nil would read as "empty"; a row that is
/// not there any more makes its record gone.
class Faulting {
public:
    Faulting(HeldRecords& records, RelationshipMaintenance& relationships)
        : records_(records), relationships_(relationships)
    { }

    /// Reads the record's row, and those of faults near it.
    void fire(const NSManagedObject& object);
    /// The same for a caller who has an answer to what cannot be read: false and an error.
    bool fill(const NSManagedObject& object, NSError* error);
    /// Reads the large attributes of a record.
    void loadLarge(const NSManagedObject& object);
    /// The record for a row of the store: a new one, a fault filled, a clean one brought up to date; an edited one
    /// stays.
    NSManagedObject& adopt(StoreRow row);

private:
    void takeRow(NSManagedObject& object, StoreRow row);

    HeldRecords& records_;
    RelationshipMaintenance& relationships_;
};

} // namespace tarn
