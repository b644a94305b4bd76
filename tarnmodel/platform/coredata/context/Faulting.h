#pragma once

#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <unordered_map>
#include <vector>

namespace tarn {

class ContextCore;

/// Fills records from their store: whole rows for faults (neighbours of one fetch together), large attributes when
/// asked for.
///
/// A row that cannot be read raises `NSInternalInconsistencyException`, since nil would read as "empty"; a row that is
/// not there any more makes its record gone.
class Faulting {
public:
    explicit Faulting(ContextCore& core) : core_(core) { }

    /// Remembers a new fault beside the one made before it.
    void noteFault(NSManagedObject& object);
    /// Reads the record's row, and those of faults near it.
    void fire(const NSManagedObject& object);
    /// The same for a caller who has an answer to what cannot be read: false and an error.
    bool fill(const NSManagedObject& object, NSError* error);
    /// Reads the large attributes of a record.
    void loadLarge(const NSManagedObject& object);
    /// Reads a to-one whose column is the inverse's.
    void loadInverseToOne(const NSManagedObject& object, const NSRelationshipDescription& relationship);
    /// The record for a row of the store: a new one, a fault filled, a clean one brought up to date; an edited one
    /// stays.
    NSManagedObject& adopt(StoreRow row);
    void clear() { faults_.clear(); }

private:
    void takeRow(NSManagedObject& object, StoreRow row);

    ContextCore& core_;
    std::unordered_map<const NSEntityDescription*, std::vector<NSManagedObject*>> faults_; ///< by root entity, as made
};

} // namespace tarn
