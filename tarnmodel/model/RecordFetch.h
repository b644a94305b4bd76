#pragma once

#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <optional>
#include <vector>

namespace tarn {

/// Logs "Error while fetching", a line break and the error's description ("Unknown Error" when it has none).
void logFetchFailure(const NSError& error);

/// The records that the request finds, as their class. A failed fetch is logged and gives none, which is not the same
/// as no records: whoever would change data because nothing was found must not do so then.
template <typename Record>
std::optional<std::vector<Record*>> fetchRecords(const NSFetchRequest& request, NSManagedObjectContext& context)
{
    NSError error;
    const auto fetched = context.fetch(request, &error);
    if (!fetched) {
        logFetchFailure(error);
        return std::nullopt;
    }
    std::vector<Record*> records;
    records.reserve(fetched->size());
    for (NSManagedObject* record : *fetched)
        records.push_back(static_cast<Record*>(record));
    return records;
}

} // namespace tarn
