#pragma once

#include "tarnmodel/model/_OVNoteGenericFile.h"

namespace tarn {

/// An attached file that is no image.
///
/// Confined to its context's queue.
class OVNoteGenericFile : public _OVNoteGenericFile {
public:
    using _OVNoteGenericFile::_OVNoteGenericFile;

    /// A new attachment with its identifier, version 3 and the date of now.
    static OVNoteGenericFile* insertInManagedObjectContext(NSManagedObjectContext& context);
};

} // namespace tarn
