#include "tarnmodel/model/OVNoteFile.h"

#include "tarnmodel/model/InsertionValues.h"

namespace tarn {

void OVNoteFile::setInsertionValues()
{
    setUniqueIdentifier(newUUIDString());
    setInsertionDate(now());
    setVersionValue(currentRecordVersion);
}

} // namespace tarn
