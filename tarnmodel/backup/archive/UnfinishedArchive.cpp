#include "tarnmodel/backup/archive/UnfinishedArchive.h"

#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include <array>
#include <cerrno>
#include <string>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarn {

namespace {

constexpr int kOwnerOnly = 0600;

bool isStillThere(int descriptor, const std::filesystem::path& url)
{
    struct stat own { };
    struct stat named { };
    return ::fstat(descriptor, &own) == 0 && ::stat(url.c_str(), &named) == 0 && own.st_ino == named.st_ino
        && own.st_dev == named.st_dev;
}

} // namespace

UnfinishedArchive::UnfinishedArchive(std::filesystem::path file)
    : file_(std::move(file)),
      url_(file_.parent_path() / (std::string(NSFileManager::unfinishedPrefix) + file_.filename().string()))
{
    open();
}

void UnfinishedArchive::open()
{
    // The lock tells one that is being written from one that a dead process left.
    while (!descriptor_) {
        FileDescriptor descriptor(::open(url_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, kOwnerOnly));
        if (!descriptor)
            failWithSystem(file_, "written");
        if (::flock(descriptor.get(), LOCK_EX | LOCK_NB) != 0)
            throw BackupFailure(BackupErrorExists, "another program is writing " + file_.string());
        if (isStillThere(descriptor.get(), url_))
            descriptor_ = std::move(descriptor);
    }
    if (::ftruncate(descriptor_.get(), 0) != 0)
        failWithSystem(file_, "written");
}

UnfinishedArchive::~UnfinishedArchive()
{
    if (!isFinished_ && descriptor_)
        ::unlink(url_.c_str());
}

void UnfinishedArchive::synchronize()
{
    if (::fsync(descriptor_.get()) != 0)
        failWithSystem(file_, "written");
}

void UnfinishedArchive::finish(bool replacesFile)
{
    const int renamed = replacesFile ? ::rename(url_.c_str(), file_.c_str())
                                     : ::renameat2(AT_FDCWD, url_.c_str(), AT_FDCWD, file_.c_str(), RENAME_NOREPLACE);
    if (renamed != 0 && errno == EEXIST)
        throw BackupFailure(BackupErrorExists, file_.string() + " is there already");
    // Not every file system can refuse by itself.
    if (renamed != 0 && (replacesFile || errno != EINVAL || ::link(url_.c_str(), file_.c_str()) != 0))
        failWithSystem(file_, "written");
    isFinished_ = renamed == 0;
    const std::array<std::filesystem::path, 1> folder{
        file_.has_parent_path() ? file_.parent_path() : std::filesystem::path(".")};
    orThrow([&](NSError* error) { return NSFileManager::synchronizeItemsAtURLs(folder, error); });
}

} // namespace tarn
