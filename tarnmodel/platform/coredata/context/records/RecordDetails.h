#pragma once

#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tarnmodel/platform/coredata/context/records/ToManySet.h"

#include <memory>
#include <string>
#include <vector>

namespace tarn {

/// One observation of one key of a record.
struct ObserverRegistration {
    std::string key;
    KeyValueObserver observer;
    bool active = true;
};

/// What only few records have: unsaved changes, to-many sets in use, observers.
struct RecordDetails {
    PropertyMask changed = 0;        ///< since the last save
    PropertyMask changedInEvent = 0; ///< since changes were last processed
    PropertyMask rowChanged = 0;     ///< of `changed` what stands in the record's own row
    PropertyValues committed; ///< values of the last save, from the first change on; empty for an inserted record
    std::vector<std::unique_ptr<ToManySet>> toManySets;
    std::shared_ptr<const void> lifeline; ///< made when somebody refers to the record weakly
    std::vector<std::shared_ptr<ObserverRegistration>> observers;

    ToManySet* toManySet(PropertyIndex index) const noexcept
    {
        for (const auto& set : toManySets)
            if (set->relationship().index() == index)
                return set.get();
        return nullptr;
    }
};

} // namespace tarn
