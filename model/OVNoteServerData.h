#pragma once

#include "model/_OVNoteServerData.h"

namespace tarn {

/// The server's bookkeeping of one note.
///
/// Confined to its context's queue.
class OVNoteServerData : public _OVNoteServerData {
public:
    using _OVNoteServerData::_OVNoteServerData;
};

} // namespace tarn
