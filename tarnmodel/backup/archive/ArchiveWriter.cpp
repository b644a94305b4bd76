#include "tarnmodel/backup/archive/ArchiveWriter.h"

#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/backup/archive/ArchiveFormat.h"

#include <archive.h>
#include <archive_entry.h>

#include <cerrno>
#include <new>

#include <unistd.h>

namespace tarn {

namespace {

struct FreeEntry {
    void operator()(archive_entry* entry) const { archive_entry_free(entry); }
};

constexpr int kOwnerOnly = 0600;
constexpr int kOwnersFolder = 0700;
constexpr std::uint64_t kMostToFillUp = std::uint64_t{64} << 20;

} // namespace

ArchiveWriter::ArchiveWriter(int descriptor, std::filesystem::path file, NSDate date, Names names)
    : descriptor_(descriptor), file_(std::move(file)), date_(date), tar_(archive_write_new())
{
    if (!tar_)
        throw std::bad_alloc();
    check(archive_write_set_format_pax_restricted(tar_));
    check(archive_write_add_filter_zstd(tar_));
    check(archive_write_set_filter_option(tar_, nullptr, "compression-level", "3"));
    if (names == Names::Bytes)
        check(archive_write_set_format_option(tar_, nullptr, "hdrcharset", "BINARY"));
    check(archive_write_set_bytes_in_last_block(tar_, 1));
    check(archive_write_open(tar_, this, nullptr, takeBytes, nullptr));
}

ArchiveWriter::~ArchiveWriter()
{
    // Freeing ends an archive that is not ended yet, and nobody is to write then. The library lets go of all it has
    // only where it may end the archive, which means to fill up the member that is begun: not with gigabytes.
    isGivenUp_ = true;
    if (tar_ && bytesLeft_ > kMostToFillUp)
        archive_write_fail(tar_);
    archive_write_free(tar_);
}

/// Failures are told by `check`: the library would not let go of all it has after one.
std::ptrdiff_t ArchiveWriter::takeBytes(archive*, void* writer, const void* bytes, std::size_t length)
{
    auto& self = *static_cast<ArchiveWriter*>(writer);
    const std::span piece(static_cast<const std::byte*>(bytes), length);
    if (self.failure_ == 0 && !self.isGivenUp_) {
        if (self.writeAll(piece))
            self.hash_.add(piece);
        else
            self.failure_ = errno > 0 ? errno : EIO;
    }
    return static_cast<std::ptrdiff_t>(length);
}

bool ArchiveWriter::writeAll(std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

void ArchiveWriter::check(int result)
{
    if (result >= ARCHIVE_WARN && failure_ == 0)
        return;
    errno = failure_ != 0 ? failure_ : archive_errno(tar_);
    if (errno <= 0)
        errno = EIO;
    failWithSystem(file_, "written");
}

void ArchiveWriter::addMember(
    const std::string& name, std::uint64_t size, const std::function<void(const Sink&)>& write)
{
    const bool isFolder = name.ends_with('/');
    const std::unique_ptr<archive_entry, FreeEntry> entry(archive_entry_new());
    archive_entry_set_pathname(entry.get(), name.c_str());
    archive_entry_set_filetype(entry.get(), isFolder ? AE_IFDIR : AE_IFREG);
    archive_entry_set_perm(entry.get(), isFolder ? kOwnersFolder : kOwnerOnly);
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(size));
    archive_entry_set_mtime(entry.get(), static_cast<time_t>(date_.microsecondsSince1970() / 1'000'000), 0);
    check(archive_write_header(tar_, entry.get()));
    bytesLeft_ = size;
    std::uint64_t total = 0;
    write([&](std::span<const std::byte> bytes) {
        total += bytes.size();
        if (total > size)
            return;
        bytesLeft_ -= bytes.size();
        const auto taken = archive_write_data(tar_, bytes.data(), bytes.size());
        check(taken < 0 ? ARCHIVE_FATAL : ARCHIVE_OK);
    });
    if (total != size)
        throw BackupFailure(BackupErrorDamaged, name + " has changed while it was read");
}

void ArchiveWriter::finish(std::uint64_t manifestSize, const BackupHash::Digest& manifestHash)
{
    check(archive_write_close(tar_));
    archive_write_free(tar_);
    tar_ = nullptr;
    const ArchiveEnd end{manifestSize, manifestHash, hash_.digest()};
    if (!writeAll(end.bytes()))
        failWithSystem(file_, "written");
}

} // namespace tarn
