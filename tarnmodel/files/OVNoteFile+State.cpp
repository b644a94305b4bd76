#include "model/OVNoteFile.h"

#include "platform/coredata/NSManagedObjectContext.h"
#include "platform/foundation/NSDate.h"
#include "platform/foundation/Normalization.h"
#include "platform/foundation/PercentEncoding.h"

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

bool OVNoteFile::filenameIsEqualTo(std::string_view filename) const
{
    const auto own = stringByRemovingPercentEncoding(this->filename().value_or("%"));
    const auto other = stringByRemovingPercentEncoding(filename);
    return own && other && canonicallyComposed(*own) == canonicallyComposed(*other);
}

void OVNoteFile::permanentlyDelete()
{
    managedObjectContext().deleteObject(*this);
}

} // namespace tarn
