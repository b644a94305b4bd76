#pragma once

#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace tarn {

/// A new temporary file, written piece by piece. What fails throws a `BackupFailure`.
class StagedWriter {
public:
    explicit StagedWriter(std::filesystem::path file);

    const std::filesystem::path& url() const noexcept { return file_; }
    /// Bytes given so far.
    std::uint64_t size() const noexcept { return size_; }
    void write(std::string_view bytes);
    void write(std::span<const std::byte> bytes);
    /// Writes what is held back; nothing is to be given after it.
    void finish();

private:
    void flush(std::string_view bytes);

    std::filesystem::path file_;
    FileDescriptor descriptor_;
    std::string buffer_;
    std::uint64_t size_ = 0;
};

/// Gives the bytes of a file, piece by piece; none for an empty path. Throws a `BackupFailure`.
void readStagedFile(const std::filesystem::path& file, const std::function<void(std::span<const std::byte>)>& take);
/// Gives the lines of a file without their line feeds. Throws a `BackupFailure` for one that is longer than that.
void readLinesOfStagedFile(
    const std::filesystem::path& file, std::uint64_t maximumLength, const std::function<void(std::string_view)>& take);

} // namespace tarn
