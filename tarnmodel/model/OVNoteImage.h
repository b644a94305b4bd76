#pragma once

#include "tarnmodel/model/_OVNoteImage.h"

namespace tarn {

/// An attached image.
///
/// Confined to its context's queue.
class OVNoteImage : public _OVNoteImage {
public:
    using _OVNoteImage::_OVNoteImage;

    /// A new attachment with its identifier, version 3 and the date of now.
    static OVNoteImage* insertInManagedObjectContext(NSManagedObjectContext& context);
};

} // namespace tarn
