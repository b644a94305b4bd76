#pragma once

#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <optional>
#include <utility>
#include <vector>

namespace tarn {

/// The store refused to read or write: ends what a doctor is at, which then gives the error to its caller.
struct DiagnosisFailure {
    NSError error;
};

/// All records that the predicate finds, or all without one, in no particular order. Raises `DiagnosisFailure`, since
/// nothing read must not look like nothing there.
template <typename Record>
std::vector<Record*> readRecords(NSManagedObjectContext& context, const NSFetchRequest& request)
{
    NSError error;
    const auto fetched = context.fetch(request, &error);
    if (!fetched)
        throw DiagnosisFailure{std::move(error)};
    std::vector<Record*> records;
    records.reserve(fetched->size());
    for (NSManagedObject* record : *fetched)
        records.push_back(static_cast<Record*>(record));
    return records;
}

template <typename Record>
std::vector<Record*> readRecords(NSManagedObjectContext& context, std::optional<NSPredicate> predicate = std::nullopt)
{
    NSFetchRequest request(Record::entityInManagedObjectContext(context));
    request.predicate = std::move(predicate);
    return readRecords<Record>(context, request);
}

} // namespace tarn
