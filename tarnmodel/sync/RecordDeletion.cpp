#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/sync/RecordDeletionInternal.h"

namespace tarn {

void deleteAllRecordsOfEntity(const NSEntityDescription& entity, NSManagedObjectContext& context)
{
    NSFetchRequest request(entity);
    request.includesPropertyValues = false;
    const auto records = fetchRecords<NSManagedObject>(request, context);
    if (!records)
        return;
    for (NSManagedObject* record : *records)
        context.deleteObject(*record);
}

} // namespace tarn
