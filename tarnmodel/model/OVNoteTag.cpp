#include "tarnmodel/model/OVNoteTag.h"

#include "tarnmodel/model/InsertionValues.h"

namespace tarn {

OVNoteTag* OVNoteTag::insertInManagedObjectContext(NSManagedObjectContext& context)
{
    OVNoteTag* tag = _OVNoteTag::insertInManagedObjectContext(context);
    tag->setUniqueIdentifier(newUUIDString());
    tag->setModificationDate(now());
    tag->setVersionValue(currentRecordVersion);
    return tag;
}

} // namespace tarn
