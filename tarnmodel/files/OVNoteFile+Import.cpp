#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

namespace tarn {

OVNoteFile* OVNoteFile::getOrCreateFileFromURL(const std::filesystem::path& url, OVNote&, NSError* error)
{
    assignError(
        error, NSError("Tarn Model", 0, "\"" + url.string() + "\" cannot be attached: this version keeps no files."));
    return nullptr;
}

} // namespace tarn
