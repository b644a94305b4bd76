#include "tarnmodel/model/OVNoteGenericFile.h"

namespace tarn {

OVNoteGenericFile* OVNoteGenericFile::insertInManagedObjectContext(NSManagedObjectContext& context)
{
    OVNoteGenericFile* file = _OVNoteGenericFile::insertInManagedObjectContext(context);
    file->setInsertionValues();
    return file;
}

} // namespace tarn
