#include "model/OVNoteFile.h"

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

} // namespace tarn
