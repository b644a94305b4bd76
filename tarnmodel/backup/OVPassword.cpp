#include "tarnmodel/model/OVPassword.h"

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"
#include "tarnmodel/sync/OVDeviceUUID.h"

namespace tarn {

OVPassword* OVPassword::insertInManagedObjectContext(NSManagedObjectContext& context)
{
    OVPassword* password = _OVPassword::insertInManagedObjectContext(context);
    password->setUniqueIdentifier(newUUIDString());
    password->setCreationDate(now());
    password->setCreationDevice(OVDeviceUUID::deviceName());
    return password;
}

OVPassword* OVPassword::passwordWithUniqueIdentifier(std::string_view uniqueIdentifier, NSManagedObjectContext& context)
{
    auto passwords = passwordsInManagedObjectContext(
        context, NSPredicate::predicateWithFormat("uniqueIdentifier == %@", uniqueIdentifier));
    return passwords.empty() ? nullptr : passwords.front();
}

std::vector<OVPassword*> OVPassword::passwordsInManagedObjectContext(
    NSManagedObjectContext& context, const std::optional<NSPredicate>& predicate)
{
    NSFetchRequest request(entityInManagedObjectContext(context));
    request.predicate = predicate;
    return fetchRecords<OVPassword>(request, context).value_or(std::vector<OVPassword*>());
}

std::vector<OVEncryptableObject*> OVPassword::encryptableObjects() const
{
    std::vector<OVEncryptableObject*> objects;
    for (OVNote* note : notesSet().allObjects())
        objects.push_back(note);
    for (OVNoteFile* file : filesSet().allObjects())
        objects.push_back(file);
    return objects;
}

} // namespace tarn
