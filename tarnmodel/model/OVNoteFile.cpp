#include "model/OVNoteFile.h"

#include "model/InsertionValues.h"

namespace tarn {

void OVNoteFile::setInsertionValues()
{
    setUniqueIdentifier(newUUIDString());
    setInsertionDate(now());
    setVersionValue(currentRecordVersion);
}

} // namespace tarn
