#include "model/OVNoteFile.h"

#include "platform/coredata/NSManagedObjectContext.h"
#include "platform/foundation/NSDate.h"

namespace tarn {

void OVNoteFile::setUnused()
{
    if (isUnused())
        return;
    setUnusedValue(true);
    setUnusedDate(now());
}

void OVNoteFile::setInUse()
{
    if (!isUnused())
        return;
    setUnusedValue(false);
    setUnusedDate(now());
}

void OVNoteFile::permanentlyDelete()
{
    managedObjectContext().deleteObject(*this);
}

} // namespace tarn
