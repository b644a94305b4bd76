#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/platform/foundation/values/Value.h"

namespace tarn {

bool OVNoteGenericFile::canImportFileURL(const FileURL&)
{
    return true;
}

OVNoteFile* OVNoteGenericFile::noteFileForFileURL(const FileURL& url, NSManagedObjectContext& context, NSError* error)
{
    return insertInManagedObjectContext(context)->takeFile(url, error);
}

OVNoteFile* OVNoteGenericFile::recordForFileURL(const FileURL&, NSManagedObjectContext& context, NSError*)
{
    return insertInManagedObjectContext(context);
}

std::string OVNoteGenericFile::localFolderName() const
{
    return OVNoteFile::localFolderName() + "/" + std::string(OVNoteGenericFileDirectoryName);
}

std::map<std::string, Value> OVNoteGenericFile::additionalFileData() const
{
    // The name through its guard, as everybody reads it.
    return {{"filename", valueForKey("filename")}, {"modificationDate", valueForKey("modificationDate")}};
}

} // namespace tarn
