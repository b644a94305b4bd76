#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <optional>
#include <string>
#include <vector>

namespace tarn {

class Faulting;
class HeldRecords;
class RelationshipMaintenance;

/// One fetch of a context: the store's answer, corrected by what is unsaved here.
class PendingFetch {
public:
    PendingFetch(HeldRecords& records, Faulting& faulting, RelationshipMaintenance& relationships,
        const NSFetchRequest& request);

    std::optional<std::vector<NSManagedObject*>> objects(NSError* error);
    std::optional<std::size_t> count(NSError* error);
    std::optional<std::vector<DictionaryResult>> dictionaries(NSError* error);
    /// How the store answers its part.
    std::string explain();

private:
    bool hasPending() const;
    StoreFetch storeFetch(RowContents contents) const;

    HeldRecords& records_;
    Faulting& faulting_;
    RelationshipMaintenance& relationships_;
    const NSFetchRequest& request_;
};

} // namespace tarn
