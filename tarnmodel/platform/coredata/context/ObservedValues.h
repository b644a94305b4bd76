#pragma once

#include "tarnmodel/platform/coredata/NSManagedObject.h"

#include <unordered_set>
#include <vector>

namespace tarn {

class Faulting;
class HeldRecords;

/// What observed records held before a merge, a refresh or a rollback gave them other values: setters tell observers
/// of single keys, but these values come whole. On the context's queue.
class ObservedValues {
public:
    ObservedValues(HeldRecords& records, Faulting& faulting) : records_(records), faulting_(faulting) { }

    /// Before the values of an observed record are replaced; the first ones count.
    void keep(const NSManagedObject& record);
    /// Tells observers whose keys have other values now.
    void tell();
    /// The context forgets its records.
    void reset()
    {
        former_.clear();
        kept_.clear();
    }

private:
    struct Former {
        NSManagedObject* record;
        PropertyValues values;
    };

    bool isOther(NSManagedObject& record, const PropertyValues& former, const NSPropertyDescription& property) const;
    void tellOf(const Former& former) const;

    HeldRecords& records_;
    Faulting& faulting_;
    std::vector<Former> former_;
    std::unordered_set<const NSManagedObject*> kept_; ///< the records of `former_`
};

} // namespace tarn
