#include "model/OVNoteBackLink.h"

#include "model/InsertionValues.h"
#include "model/OVNote.h"
#include "platform/coredata/NSManagedObjectContext.h"

namespace tarn {

OVNoteBackLink* OVNoteBackLink::insertInManagedObjectContext(NSManagedObjectContext& context)
{
    OVNoteBackLink* link = _OVNoteBackLink::insertInManagedObjectContext(context);
    link->setUniqueIdentifier(newUUIDString());
    link->setModificationDate(now());
    link->setVersionValue(currentRecordVersion);
    return link;
}

void OVNoteBackLink::deriveFromOthers()
{
    if (!isInserted() && changedKeys().contains("linkedBy") && !linkedBy())
        managedObjectContext().deleteObject(*this);
}

} // namespace tarn
