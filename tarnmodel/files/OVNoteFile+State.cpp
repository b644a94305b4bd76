#include "tarnmodel/model/OVNoteFile.h"

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/text/Normalization.h"
#include "tarnmodel/platform/foundation/text/PercentEncoding.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

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
