#include "tarnmodel/model/RecordCopying.h"

#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

namespace tarn {

void copyAttributes(const NSManagedObject& source, NSManagedObject& copy)
{
    for (const NSAttributeDescription* attribute : source.entity().attributes()) {
        const Value value = source.valueForKey(attribute->name());
        if (!value.isNil())
            copy.setValueForKey(attribute->name(), value);
    }
}

} // namespace tarn
