#include "tarnmodel/model/OVNoteFileServerData.h"

#include "tarnmodel/sync/RecordDeletionInternal.h"

namespace tarn {

void OVNoteFileServerData::deleteAllObjectsInManagedObjectContext(NSManagedObjectContext& context)
{
    deleteAllRecordsOfEntity(entityInManagedObjectContext(context), context);
}

std::optional<CKRecord> OVNoteFileServerData::ckRecord() const
{
    const auto archive = systemFields();
    return archive ? CKRecord::recordWithArchivedSystemFields(archive->span()) : std::nullopt;
}

void OVNoteFileServerData::setCkRecord(const std::optional<CKRecord>& record)
{
    setSystemFields(record ? record->archivedSystemFields() : std::nullopt);
}

} // namespace tarn
