#include "tarnmodel/model/OVNoteServerData.h"

#include "tarnmodel/sync/RecordDeletionInternal.h"

namespace tarn {

void OVNoteServerData::deleteAllObjectsInManagedObjectContext(NSManagedObjectContext& context)
{
    deleteAllRecordsOfEntity(entityInManagedObjectContext(context), context);
}

std::optional<CKRecord> OVNoteServerData::ckRecord() const
{
    const auto archive = systemFields();
    return archive ? CKRecord::recordWithArchivedSystemFields(archive->span()) : std::nullopt;
}

void OVNoteServerData::setCkRecord(const std::optional<CKRecord>& record)
{
    setSystemFields(record ? record->archivedSystemFields() : std::nullopt);
}

} // namespace tarn
