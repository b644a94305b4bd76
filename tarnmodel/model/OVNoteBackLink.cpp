#include "tarnmodel/model/OVNoteBackLink.h"

#include "tarnmodel/model/InsertionValues.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"

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
