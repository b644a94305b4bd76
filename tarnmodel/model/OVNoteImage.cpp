#include "tarnmodel/model/OVNoteImage.h"

namespace tarn {

OVNoteImage* OVNoteImage::insertInManagedObjectContext(NSManagedObjectContext& context)
{
    OVNoteImage* image = _OVNoteImage::insertInManagedObjectContext(context);
    image->setInsertionValues();
    return image;
}

} // namespace tarn
