#pragma once

#include "model/_OVNoteFileServerData.h"

namespace tarn {

/// The server's bookkeeping of one attachment.
///
/// Confined to its context's queue.
class OVNoteFileServerData : public _OVNoteFileServerData {
public:
    using _OVNoteFileServerData::_OVNoteFileServerData;
};

} // namespace tarn
