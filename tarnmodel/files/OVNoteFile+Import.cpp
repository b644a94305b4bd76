#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

namespace tarn {

OVNoteFile* OVNoteFile::getOrCreateFileFromURL(const FileURL& url, OVNote&, NSError* error)
{
    assignError(error,
        NSError("Tarn Model", 0, "\"" + url.path.string() + "\" cannot be attached: this version keeps no files."));
    return nullptr;
}

} // namespace tarn
