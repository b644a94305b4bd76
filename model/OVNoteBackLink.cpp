#include "model/OVNoteBackLink.h"

#include "model/InsertionValues.h"

namespace tarn {

OVNoteBackLink* OVNoteBackLink::insertInManagedObjectContext(NSManagedObjectContext& context)
{
    OVNoteBackLink* link = _OVNoteBackLink::insertInManagedObjectContext(context);
    link->setUniqueIdentifier(newUUIDString());
    link->setModificationDate(now());
    link->setVersionValue(currentRecordVersion);
    return link;
}

} // namespace tarn
