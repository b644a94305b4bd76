#pragma once

#include "tarnmodel/encryption/keys/KeyArena.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

namespace tarn {

class NSError;

// Whole files and folders, sealed for a record: `identifier` is that of its encryption. What is made has a name that
// nothing had, is for its owner alone, and is gone after a failure; false and an error then. The date of modification
// goes along. Nothing is brought to the disk for good; no file is held in memory.

/// Seals a file, or a folder with all that is in it.
bool sealItem(const std::filesystem::path& item, const std::filesystem::path& place, const SecretBytes& objectKey,
    std::string_view identifier, NSError* error);
bool sealBytes(std::span<const std::byte> bytes, const std::filesystem::path& place, const SecretBytes& objectKey,
    std::string_view identifier, NSError* error);
/// Writes the file, or the folder, that was sealed.
bool unsealItem(const std::filesystem::path& sealed, const std::filesystem::path& place, const SecretBytes& objectKey,
    std::string_view identifier, NSError* error);
/// Seals it with another key. Nothing clear touches a disk.
bool resealItem(const std::filesystem::path& sealed, const std::filesystem::path& place, const SecretBytes& objectKey,
    const SecretBytes& otherObjectKey, std::string_view identifier, NSError* error);
/// Whether all of it can be read.
bool verifySealedItem(
    const std::filesystem::path& sealed, const SecretBytes& objectKey, std::string_view identifier, NSError* error);
/// How many bytes it takes at most once it is clear: no more than it has.
std::optional<std::uint64_t> lengthOfClearItem(const std::filesystem::path& sealed, NSError* error);

} // namespace tarn
