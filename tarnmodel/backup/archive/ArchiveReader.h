#pragma once

#include "tarnmodel/backup/archive/ArchiveFormat.h"
#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

struct archive;
struct archive_entry;

namespace tarn {

/// Reads an archive from its beginning, member by member. What fails throws a `BackupFailure`: `BackupErrorDamaged`
/// for all that the decoder refuses.
class ArchiveReader {
public:
    /// Refuses what does not begin as an archive does.
    explicit ArchiveReader(std::filesystem::path file);
    ~ArchiveReader();
    ArchiveReader(const ArchiveReader&) = delete;
    ArchiveReader& operator=(const ArchiveReader&) = delete;

    /// The file, in bytes.
    std::uint64_t size() const noexcept { return size_; }
    /// None when the file does not end as an archive does.
    const std::optional<ArchiveEnd>& end() const noexcept { return end_; }
    /// The hash of all before the end. `read` hears of the bytes.
    BackupHash::Digest hashOfContents(const std::function<void(std::size_t)>& read);

    struct Member {
        std::string name;
        bool isFile = false;   ///< a regular one, of its own
        bool isFolder = false; ///< neither: a link, a device
    };
    /// Goes to the next member; none behind the last.
    std::optional<Member> next();
    /// The next bytes of that member; empty at its end. Valid until the next call.
    std::span<const std::byte> read();

private:
    static std::ptrdiff_t giveBytes(archive* tar, void* reader, const void** bytes);
    std::size_t readAt(std::uint64_t offset, std::span<std::byte> bytes) const;
    void open();
    [[noreturn]] void failDamaged() const;

    std::filesystem::path file_;
    FileDescriptor descriptor_;
    std::uint64_t size_ = 0;
    std::uint64_t contentsSize_ = 0; ///< without the end
    std::uint64_t offset_ = 0;       ///< how far the decoder has come
    std::optional<ArchiveEnd> end_;
    std::vector<std::byte> buffer_;
    std::vector<std::byte> decoded_;
    archive* tar_ = nullptr;
};

} // namespace tarn
