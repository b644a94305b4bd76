#pragma once

#include <tarnmodel/TarnModel.h>

#include <optional>
#include <variant>
#include <vector>

// What a device and the server say to each other. A message may get lost, come twice or come late: whatever arrives,
// whenever it does, both sides end with the same notes.

namespace tarn::syncfolder {

/// "Keep this record": made against the version that its change tag names, or new without one.
struct Upload {
    CKRecord record;
};

/// "What has changed since?" Without a token: everything.
struct Fetch {
    std::optional<CKServerChangeToken> since;
};

using Request = std::variant<Upload, Fetch>;

/// The record as the server has it now. That is what was sent, unless the server had another version by then.
struct UploadReply {
    bool accepted = false;
    CKRecord current;
};

/// The records that have changed since, each in its present version.
struct FetchReply {
    std::optional<CKServerChangeToken> since; ///< as asked
    std::vector<CKRecord> changed;
    CKServerChangeToken token; ///< where to go on from
    bool moreComing = false;
};

using Reply = std::variant<UploadReply, FetchReply>;

} // namespace tarn::syncfolder
