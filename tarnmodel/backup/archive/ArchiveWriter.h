#pragma once

#include "tarnmodel/backup/archive/BackupHash.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>

struct archive;

namespace tarn {

/// Writes an archive: a tar file of members, compressed, and behind it the hash of all. What fails throws a
/// `BackupFailure`.
class ArchiveWriter {
public:
    /// How the names of members are to be read.
    enum class Names : std::uint8_t {
        Ascii, ///< all of them
        Bytes, ///< as they are on disk, whatever that is; some programs warn of the note that says so
    };
    /// Members get this date.
    ArchiveWriter(int descriptor, std::filesystem::path file, NSDate date, Names names);
    ~ArchiveWriter();
    ArchiveWriter(const ArchiveWriter&) = delete;
    ArchiveWriter& operator=(const ArchiveWriter&) = delete;

    /// Adds a member of that many bytes, which `write` gives to what it is handed, piece by piece. A name that ends in
    /// "/" is a folder.
    using Sink = std::function<void(std::span<const std::byte>)>;
    void addMember(const std::string& name, std::uint64_t size, const std::function<void(const Sink&)>& write);
    /// Ends the archive. Not durable yet.
    void finish(std::uint64_t manifestSize, const BackupHash::Digest& manifestHash);

private:
    static std::ptrdiff_t takeBytes(archive* tar, void* writer, const void* bytes, std::size_t length);
    bool writeAll(std::span<const std::byte> bytes);
    void check(int result);

    int descriptor_;
    std::filesystem::path file_;
    NSDate date_;
    archive* tar_;
    int failure_ = 0;             ///< the system's number for what could not be written; nothing more is written then
    bool isGivenUp_ = false;      ///< nothing more is written
    std::uint64_t bytesLeft_ = 0; ///< of the member that is being added
    BackupHash hash_;
};

} // namespace tarn
