#pragma once

#include "model/_OVNoteBackLink.h"

namespace tarn {

/// One wiki link: stands in the text of `linkedBy` and leads to `linkingTo`, or to nothing while there is no such note.
///
/// Confined to its context's queue.
class OVNoteBackLink : public _OVNoteBackLink {
public:
    using _OVNoteBackLink::_OVNoteBackLink;

    /// A new link with its identifier, version 3 and the date of now.
    static OVNoteBackLink* insertInManagedObjectContext(NSManagedObjectContext& context);
};

} // namespace tarn
