#include "tarnmodel/encryption/sealing/ArchiveLibraryInternal.h"
#include "tarnmodel/encryption/sealing/FileAccessInternal.h"
#include "tarnmodel/encryption/sealing/FolderArchive.h"
#include "tarnmodel/encryption/sealing/SafeNames.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <utility>
#include <vector>

namespace tarn {
namespace {

namespace fs = std::filesystem;

/// Makes what an archive holds. Links are made last, so that nothing is written through one.
class FolderExtractor {
public:
    FolderExtractor(const ArchiveSource& source, const fs::path& folder, NSError* error)
        : source_(source), folder_(folder), error_(error)
    { }

    bool extract()
    {
        archive* const reader = reader_.get();
        archive_read_support_format_tar(reader);
        archive_read_set_options(reader, "hdrcharset=BINARY");
        if (archive_read_open(reader, this, nullptr, fill, nullptr) != ARCHIVE_OK)
            return failUnlessRefused();
        archive_entry* entry = nullptr;
        while (true) {
            const int result = archive_read_next_header(reader, &entry);
            if (result == ARCHIVE_EOF)
                return makeLinks() && setDatesOfFolders();
            if (result != ARCHIVE_OK)
                return failUnlessRefused();
            if (!extractEntry(entry))
                return false;
        }
    }

private:
    static la_ssize_t fill(archive* reader, void* self, const void** bytes)
    {
        auto* const extractor = static_cast<FolderExtractor*>(self);
        const auto next = extractor->source_();
        if (!next) {
            extractor->isRefused_ = true;
            archive_set_error(reader, ECANCELED, "refused");
            return -1;
        }
        *bytes = next->data();
        return static_cast<la_ssize_t>(next->size());
    }

    bool failUnlessRefused() { return isRefused_ ? false : failArchive(error_, reader_.get()); }
    bool failDamaged() { return failEncryption(error_, OVEncryptionErrorDamaged); }

    bool extractEntry(archive_entry* entry)
    {
        const char* const text = archive_entry_pathname(entry);
        const fs::path name(text ? text : "");
        if (!staysInFolder(name) || archive_entry_hardlink(entry))
            return failDamaged();
        switch (archive_entry_filetype(entry)) {
        case AE_IFDIR:
            return makeFolder(entry, folder_ / name);
        case AE_IFREG:
            return makeFile(entry, folder_ / name);
        case AE_IFLNK:
            return noteLink(entry, name);
        default:
            return failDamaged();
        }
    }

    bool makeFolder(archive_entry* entry, const fs::path& place)
    {
        if (::mkdir(place.c_str(), 0700) != 0)
            return failFileAccess(error_, errno, place, "written");
        folders_.emplace_back(place, dateOf(entry));
        return true;
    }

    bool makeFile(archive_entry* entry, const fs::path& place)
    {
        const mode_t mode = (archive_entry_perm(entry) & 0700) | 0600; // what could be run still can
        FileDescriptor file(::open(place.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
        if (!file)
            return failFileAccess(error_, errno, place, "written");
        const void* bytes = nullptr;
        std::size_t length = 0;
        la_int64_t offset = 0;
        la_int64_t expected = 0;
        while (true) {
            const int result = archive_read_data_block(reader_.get(), &bytes, &length, &offset);
            if (result == ARCHIVE_EOF)
                break;
            if (result != ARCHIVE_OK)
                return failUnlessRefused();
            if (offset != expected) // an archive of this kit has no holes
                return failDamaged();
            expected += static_cast<la_int64_t>(length);
            if (!writeAll(file, {static_cast<const std::byte*>(bytes), length}, place, error_))
                return false;
        }
        setDate(place, dateOf(entry));
        return closeWritten(file, place, error_);
    }

    bool noteLink(archive_entry* entry, const fs::path& name)
    {
        const char* const text = archive_entry_symlink(entry);
        if (!text || !leadsNowhereElse(text, name))
            return failDamaged();
        links_.emplace_back(folder_ / name, text);
        return true;
    }

    bool makeLinks()
    {
        for (const auto& [place, target] : links_)
            if (::symlink(target.c_str(), place.c_str()) != 0)
                return failFileAccess(error_, errno, place, "written");
        return true;
    }

    /// Last of all, since whatever is made in a folder changes its date; inner ones before outer ones.
    bool setDatesOfFolders()
    {
        for (auto folder = folders_.rbegin(); folder != folders_.rend(); ++folder)
            setDate(folder->first, folder->second);
        return true;
    }

    static timespec dateOf(archive_entry* entry)
    {
        return {archive_entry_mtime(entry), archive_entry_mtime_nsec(entry)};
    }

    /// A date that the file system does not keep is no loss.
    static void setDate(const fs::path& place, const timespec& date)
    {
        const timespec dates[] = {date, date};
        ::utimensat(AT_FDCWD, place.c_str(), dates, AT_SYMLINK_NOFOLLOW);
    }

    const ArchiveSource& source_;
    const fs::path& folder_;
    NSError* const error_;
    std::vector<std::pair<fs::path, timespec>> folders_;
    std::vector<std::pair<fs::path, fs::path>> links_; ///< place and target
    bool isRefused_ = false;                           ///< by the source, which has said why
    ArchiveReader reader_;
};

} // namespace

bool readFolderArchive(const ArchiveSource& source, const fs::path& folder, NSError* error)
{
    return FolderExtractor(source, folder, error).extract();
}

} // namespace tarn
