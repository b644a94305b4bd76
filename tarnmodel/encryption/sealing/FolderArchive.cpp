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

enum class ArchivedBytes : std::uint8_t { OfFiles, Zeros };

/// Writes one folder; its names are sorted, so that one folder always becomes the same archive.
class FolderArchiver {
public:
    FolderArchiver(const fs::path& folder, const ArchiveSink& sink, ArchivedBytes bytes, NSError* error)
        : folder_(folder), sink_(sink), bytes_(bytes), error_(error), buffer_(kBufferLength)
    { }
    ~FolderArchiver() { std::ranges::fill(buffer_, std::byte{0}); }
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
        return writeContentsOf(folder_, {}) && (archive_write_close(writer) == ARCHIVE_OK || failUnlessRefused());
    }

private:
    static la_ssize_t pass(archive* writer, void* self, const void* bytes, std::size_t length)
    {
        auto* const archiver = static_cast<FolderArchiver*>(self);
        if (archiver->sink_({static_cast<const std::byte*>(bytes), length}))
            return static_cast<la_ssize_t>(length);
        archiver->isRefused_ = true;
        archive_set_error(writer, ECANCELED, "refused");
        return -1;
    }

    bool failUnlessRefused() { return isRefused_ ? false : failArchive(error_, writer_.get()); }

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
        return archive_write_header(writer_.get(), entry.get()) == ARCHIVE_OK || failUnlessRefused();
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
        auto rest = static_cast<std::uint64_t>(status.st_size);
        FileDescriptor file;
        if (bytes_ == ArchivedBytes::OfFiles) {
            file.reset(::open(item.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
            if (!file)
                return failFileAccess(error_, errno, item, "read");
        }
        while (rest > 0) {
            const auto some = std::span(buffer_).first(std::min<std::uint64_t>(rest, buffer_.size()));
            if (file) {
                const auto length = readFully(file, some, item, error_);
                if (!length)
                    return false;
                if (*length < some.size()) // it became shorter
                    return failFileAccess(error_, ESTALE, item, "read");
            }
            if (archive_write_data(writer_.get(), some.data(), some.size()) != static_cast<la_ssize_t>(some.size()))
                return failUnlessRefused();
            rest -= some.size();
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
    bool isRefused_ = false; ///< by the sink, which has said why
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
