#include "tarnmodel/encryption/sealing/FolderArchive.h"

#include "tarnmodel/encryption/sealing/ArchiveLibraryInternal.h"
#include "tarnmodel/encryption/sealing/FileAccessInternal.h"
#include "tarnmodel/encryption/sealing/SafeNames.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <vector>

namespace tarn {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kBufferLength = std::size_t{64} << 10;
constexpr std::uint64_t kMostToFillUp = std::uint64_t{1} << 30;

enum class ArchivedBytes : std::uint8_t { OfFiles, Zeros };

/// Writes one folder; its names are sorted, so that one folder always becomes the same archive.
class FolderArchiver {
public:
    FolderArchiver(const fs::path& folder, const ArchiveSink& sink, ArchivedBytes bytes, NSError* error)
        : folder_(folder), sink_(sink), bytes_(bytes), error_(error), buffer_(kBufferLength)
    { }
    ~FolderArchiver()
    {
        std::ranges::fill(buffer_, std::byte{0});
        // Freeing ends an archive that is not ended yet, and nobody is to hear of it. The library lets go of all it has
        // only where it may end the archive, which means to fill up the file that is begun: not for seconds.
        isGivenUp_ = true;
        if (bytesLeft_ > kMostToFillUp)
            archive_write_fail(writer_.get());
    }
    FolderArchiver(const FolderArchiver&) = delete;
    FolderArchiver& operator=(const FolderArchiver&) = delete;

    bool write()
    {
        archive* const writer = writer_.get();
        archive_write_set_format_pax(writer);
        archive_write_set_options(writer, "hdrcharset=BINARY"); // names are bytes, in whatever locale
        archive_write_set_bytes_per_block(writer, 0);
        if (archive_write_open2(writer, this, nullptr, pass, nullptr, nullptr) != ARCHIVE_OK)
            return failArchive(error_, writer);
        return writeContentsOf(folder_, {}) && succeed(archive_write_close(writer) == ARCHIVE_OK);
    }

private:
    /// Never fails: the library would not let go of all it has after that. `succeed` tells of a refusal.
    static la_ssize_t pass(archive* /*writer*/, void* self, const void* bytes, std::size_t length)
    {
        auto& archiver = *static_cast<FolderArchiver*>(self);
        if (!archiver.isRefused_ && !archiver.isGivenUp_)
            archiver.isRefused_ = !archiver.sink_({static_cast<const std::byte*>(bytes), length});
        return static_cast<la_ssize_t>(length);
    }

    bool succeed(bool isWritten) { return !isRefused_ && (isWritten || failArchive(error_, writer_.get())); }

    bool writeContentsOf(const fs::path& folder, const fs::path& name)
    {
        std::vector<fs::path> names;
        std::error_code failure;
        for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure))
            names.push_back(entry->path().filename());
        if (failure)
            return failFileAccess(error_, failure.value(), folder, "read");
        std::ranges::sort(names);
        return std::ranges::all_of(names, [&](const fs::path& own) { return writeItem(folder / own, name / own); });
    }

    bool writeItem(const fs::path& item, const fs::path& name)
    {
        struct stat status { };
        if (::lstat(item.c_str(), &status) != 0)
            return failFileAccess(error_, errno, item, "read");
        ArchiveEntry entry;
        archive_entry_copy_pathname(entry.get(), name.c_str());
        archive_entry_set_perm(entry.get(), status.st_mode & 0777);
        archive_entry_set_filetype(entry.get(), status.st_mode & S_IFMT);
        archive_entry_set_mtime(entry.get(), status.st_mtim.tv_sec, status.st_mtim.tv_nsec);
        if (S_ISDIR(status.st_mode))
            return writeHeader(entry) && writeContentsOf(item, name);
        if (S_ISLNK(status.st_mode))
            return writeLink(entry, item, name);
        if (!S_ISREG(status.st_mode))
            return failFileAccess(error_, EINVAL, item, "read");
        archive_entry_set_size(entry.get(), status.st_size);
        return writeHeader(entry) && writeBytes(item, status);
    }

    bool writeHeader(ArchiveEntry& entry)
    {
        return succeed(archive_write_header(writer_.get(), entry.get()) == ARCHIVE_OK);
    }

    bool writeLink(ArchiveEntry& entry, const fs::path& item, const fs::path& name)
    {
        std::error_code failure;
        const fs::path target = fs::read_symlink(item, failure);
        if (failure)
            return failFileAccess(error_, failure.value(), item, "read");
        if (!leadsNowhereElse(target, name))
            return failFileAccess(error_, EXDEV, item, "read");
        archive_entry_copy_symlink(entry.get(), target.c_str());
        archive_entry_set_size(entry.get(), 0);
        return writeHeader(entry);
    }

    bool writeBytes(const fs::path& item, const struct stat& status)
    {
        bytesLeft_ = static_cast<std::uint64_t>(status.st_size);
        FileDescriptor file;
        if (bytes_ == ArchivedBytes::OfFiles) {
            file.reset(::open(item.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
            if (!file)
                return failFileAccess(error_, errno, item, "read");
        }
        while (bytesLeft_ > 0) {
            const auto some = std::span(buffer_).first(std::min<std::uint64_t>(bytesLeft_, buffer_.size()));
            if (file) {
                const auto length = readFully(file, some, item, error_);
                if (!length)
                    return false;
                if (*length < some.size()) // it became shorter
                    return failFileAccess(error_, ESTALE, item, "read");
            }
            const auto written = archive_write_data(writer_.get(), some.data(), some.size());
            if (!succeed(written == static_cast<la_ssize_t>(some.size())))
                return false;
            bytesLeft_ -= some.size();
        }
        struct stat after = status;
        if (file && ::fstat(file.get(), &after) != 0)
            return failFileAccess(error_, errno, item, "read");
        // The clear folder goes when this is done, so it has to be all of it.
        const bool isSame = after.st_size == status.st_size && after.st_mtim.tv_sec == status.st_mtim.tv_sec
            && after.st_mtim.tv_nsec == status.st_mtim.tv_nsec;
        return isSame || failFileAccess(error_, ESTALE, item, "read");
    }

    const fs::path& folder_;
    const ArchiveSink& sink_;
    const ArchivedBytes bytes_;
    NSError* const error_;
    std::vector<std::byte> buffer_;
    std::uint64_t bytesLeft_ = 0; ///< of the file that is being written
    bool isRefused_ = false;      ///< by the sink, which has said why
    bool isGivenUp_ = false;      ///< the sink may be gone
    ArchiveWriter writer_;
};

} // namespace

std::optional<std::uint64_t> lengthOfFolderArchive(const fs::path& folder, NSError* error)
{
    std::uint64_t length = 0;
    const ArchiveSink count = [&](std::span<const std::byte> bytes) {
        length += bytes.size();
        return true;
    };
    return FolderArchiver(folder, count, ArchivedBytes::Zeros, error).write() ? std::optional(length) : std::nullopt;
}

bool writeFolderArchive(const fs::path& folder, const ArchiveSink& sink, NSError* error)
{
    return FolderArchiver(folder, sink, ArchivedBytes::OfFiles, error).write();
}

} // namespace tarn
