#pragma once

#include "tarnmodel/platform/cloudkit/NSKeyedArchiver.h"

#include <string>

namespace tarn {

/// The owner of a zone that belongs to whoever is signed in.
inline constexpr std::string_view CKCurrentUserDefaultName = "__defaultOwner__";

/// Names a zone of the server's database: its name and its owner. A plain value; any thread.
struct CKRecordZoneID {
    std::string zoneName;                            ///< unique for its owner
    std::string ownerName{CKCurrentUserDefaultName}; ///< `CKCurrentUserDefaultName` for the one who is signed in
    friend bool operator==(const CKRecordZoneID&, const CKRecordZoneID&) = default;

    /// None when it is too large to archive.
    std::optional<NSData> archivedData() const;
    /// None for anything but an archive of this class.
    static std::optional<CKRecordZoneID> unarchivedFromData(std::span<const std::byte> bytes);
};

} // namespace tarn
