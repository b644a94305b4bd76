#pragma once

#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace tarn {

/// What a backup says of itself. A plain value type.
struct BackupManifest {
    /// One file in the archive.
    struct Member {
        std::string name;       ///< its path in the archive
        std::uint64_t size = 0; ///< bytes
        std::string hash;       ///< BLAKE2b of 32 bytes, in hexadecimal
    };
    /// An attachment whose bytes were not on the device.
    struct MissingFile {
        std::string uniqueIdentifier; ///< of the attachment
        std::string name;             ///< as it is stored
    };

    int format = 1;                                    ///< of the archive
    std::string modelVersion;                          ///< "Model 3": what the records are of
    std::string storeUUID;                             ///< of the store that was backed up
    NSDate creationDate;                               ///< when it was begun
    std::map<std::string, std::uint64_t> recordCounts; ///< by entity
    std::uint64_t fileCount = 0;                       ///< attachments with their bytes
    std::uint64_t fileBytes = 0;                       ///< of those
    std::vector<Member> members;                       ///< all but the manifest itself, in order
    std::vector<MissingFile> missingFiles;             ///< attachments without their bytes

    /// How many notes.
    std::uint64_t noteCount() const;
};

} // namespace tarn
