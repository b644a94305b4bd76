#include "encryption/OVEncryptionCoreManager.h"
#include "model/OVNote.h"
#include "model/OVNoteFile.h"
#include "model/OVPassword.h"
#include "model/RecordCopying.h"
#include "platform/coredata/NSManagedObjectContext.h"
#include "platform/foundation/NSUUID.h"

namespace tarn {

void OVNoteFile::updateUniqueIdentifier()
{
    setUniqueIdentifier(newUUIDString());
}

OVNoteFile* OVNoteFile::duplicate() const
{
    NSManagedObjectContext& context = managedObjectContext();
    auto& copy = static_cast<OVNoteFile&>(context.insertObject(entity()));
    OVEncryptionCoreManager::performInManagedObjectContext(context, [&] {
        copyAttributes(*this, copy);
        copy.updateUniqueIdentifier();
        copy.setPassword(password());
        copy.setUploadedValue(false);
    });
    return &copy;
}

} // namespace tarn
