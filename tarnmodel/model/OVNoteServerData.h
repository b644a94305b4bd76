#pragma once

#include "tarnmodel/model/_OVNoteServerData.h"
#include "tarnmodel/platform/cloudkit/CKRecord.h"

#include <optional>

namespace tarn {

/// The server's bookkeeping of one note: the system fields of its last known record there.
///
/// Confined to its context's queue.
class OVNoteServerData : public _OVNoteServerData {
public:
    using _OVNoteServerData::_OVNoteServerData;

    // All in tarnmodel/sync/OVNoteServerData.cpp
    /// Deletes the bookkeeping of every note; they stay, and look as if they had never been uploaded. The caller saves.
    /// A failed fetch is logged and deletes nothing.
    static void deleteAllObjectsInManagedObjectContext(NSManagedObjectContext& context);

    /// A new record each time, with system fields alone; none when there are none or they cannot be decoded.
    std::optional<CKRecord> ckRecord() const;
    /// Keeps the system fields and no values.
    void setCkRecord(const std::optional<CKRecord>& record);
};

} // namespace tarn
