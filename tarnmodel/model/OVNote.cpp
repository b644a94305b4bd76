#include "tarnmodel/model/OVNote.h"

#include "tarnmodel/model/InsertionValues.h"

namespace tarn {

OVNote* OVNote::insertInManagedObjectContext(NSManagedObjectContext& context)
{
    OVNote* note = _OVNote::insertInManagedObjectContext(context);
    note->setUniqueIdentifier(newUUIDString());
    const NSDate date = now();
    note->setCreationDate(date);
    note->setModificationDate(date);
    note->setVersionValue(currentRecordVersion);
    return note;
}

} // namespace tarn
