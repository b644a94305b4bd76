#pragma once

#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

namespace tarn {

// Errors are of this kit: "file".

/// "“name” cannot be read: No such file or directory"; `action` is "read". False.
bool failFileAccess(NSError* error, int number, const std::filesystem::path& file, std::string_view action);
/// Writes all of it.
bool writeAll(
    const FileDescriptor& file, std::span<const std::byte> bytes, const std::filesystem::path& name, NSError* error);
/// Fills as much of the buffer as there is; less only at the end of the file.
std::optional<std::size_t> readFully(
    const FileDescriptor& file, std::span<std::byte> buffer, const std::filesystem::path& name, NSError* error);
/// Closes a file that was written, which may fail like a write.
bool closeWritten(FileDescriptor& file, const std::filesystem::path& name, NSError* error);

} // namespace tarn
