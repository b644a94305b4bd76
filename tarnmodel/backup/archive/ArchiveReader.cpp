#include "tarnmodel/backup/archive/ArchiveReader.h"

#include "tarnmodel/backup/BackupFailureInternal.h"

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <new>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarn {

namespace {

constexpr std::size_t kPiece = std::size_t(256) << 10;
constexpr std::array<unsigned char, 4> kZstandardFrame{0x28, 0xB5, 0x2F, 0xFD};

} // namespace

ArchiveReader::ArchiveReader(std::filesystem::path file)
    : file_(std::move(file)), descriptor_(::open(file_.c_str(), O_RDONLY | O_CLOEXEC)), buffer_(kPiece),
      decoded_(kPiece)
{
    struct stat status { };
    if (!descriptor_ || ::fstat(descriptor_.get(), &status) != 0)
        failWithSystem(file_, "read");
    if (!S_ISREG(status.st_mode))
        throw BackupFailure(BackupErrorNotABackup, file_.string() + " is no backup");
    size_ = static_cast<std::uint64_t>(status.st_size);
    std::array<std::byte, kZstandardFrame.size()> beginning{};
    const std::size_t length = readAt(0, beginning);
    if (std::memcmp(beginning.data(), kZstandardFrame.data(), length) != 0 || length == 0)
        throw BackupFailure(BackupErrorNotABackup, file_.string() + " is no backup");
    contentsSize_ = size_;
    std::array<std::byte, ArchiveEnd::length> last{};
    if (size_ >= last.size() && readAt(size_ - last.size(), last) == last.size())
        end_ = ArchiveEnd::fromBytes(last);
    if (end_)
        contentsSize_ -= last.size();
}

ArchiveReader::~ArchiveReader()
{
    archive_read_free(tar_);
}

std::size_t ArchiveReader::readAt(std::uint64_t offset, std::span<std::byte> bytes) const
{
    std::size_t total = 0;
    while (total < bytes.size()) {
        const ssize_t count = ::pread(
            descriptor_.get(), bytes.data() + total, bytes.size() - total, static_cast<off_t>(offset + total));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            failWithSystem(file_, "read");
        if (count == 0)
            break;
        total += static_cast<std::size_t>(count);
    }
    return total;
}

BackupHash::Digest ArchiveReader::hashOfContents(const std::function<void(std::size_t)>& read)
{
    BackupHash hash;
    for (std::uint64_t offset = 0; offset < contentsSize_;) {
        const std::size_t wanted = std::min<std::uint64_t>(buffer_.size(), contentsSize_ - offset);
        const std::span piece = std::span(buffer_).first(readAt(offset, std::span(buffer_).first(wanted)));
        if (piece.empty())
            break;
        hash.add(piece);
        read(piece.size());
        offset += piece.size();
    }
    return hash.digest();
}

std::ptrdiff_t ArchiveReader::giveBytes(archive* tar, void* reader, const void** bytes)
{
    auto& self = *static_cast<ArchiveReader*>(reader);
    const std::size_t wanted = std::min<std::uint64_t>(self.buffer_.size(), self.contentsSize_ - self.offset_);
    try {
        const std::size_t count = self.readAt(self.offset_, std::span(self.buffer_).first(wanted));
        self.offset_ += count;
        *bytes = self.buffer_.data();
        return static_cast<std::ptrdiff_t>(count);
    } catch (const BackupFailure& failure) {
        archive_set_error(tar, static_cast<int>(failure.error().code()), "read");
        return -1;
    }
}

void ArchiveReader::open()
{
    tar_ = archive_read_new();
    if (!tar_)
        throw std::bad_alloc();
    if (archive_read_support_filter_zstd(tar_) < ARCHIVE_WARN || archive_read_support_format_tar(tar_) < ARCHIVE_WARN
        || archive_read_open(tar_, this, nullptr, giveBytes, nullptr) < ARCHIVE_WARN)
        failDamaged();
}

void ArchiveReader::failDamaged() const
{
    const char* reason = tar_ ? archive_error_string(tar_) : nullptr;
    throw BackupFailure(
        BackupErrorDamaged, file_.string() + " is damaged" + (reason ? ": " + std::string(reason) : std::string()));
}

std::optional<ArchiveReader::Member> ArchiveReader::next()
{
    if (!tar_)
        open();
    archive_entry* entry = nullptr;
    const int result = archive_read_next_header(tar_, &entry);
    if (result == ARCHIVE_EOF)
        return std::nullopt;
    const char* name = result >= ARCHIVE_WARN ? archive_entry_pathname(entry) : nullptr;
    if (!name)
        failDamaged();
    const bool isLink = archive_entry_hardlink(entry) || archive_entry_symlink(entry);
    return Member{name, archive_entry_filetype(entry) == AE_IFREG && !isLink,
        archive_entry_filetype(entry) == AE_IFDIR && !isLink};
}

std::span<const std::byte> ArchiveReader::read()
{
    const auto count = archive_read_data(tar_, decoded_.data(), decoded_.size());
    if (count < 0)
        failDamaged();
    return std::span(decoded_).first(static_cast<std::size_t>(count));
}

} // namespace tarn
