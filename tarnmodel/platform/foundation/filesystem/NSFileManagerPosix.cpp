#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include "tarnmodel/platform/foundation/filesystem/FileCopyInternal.h"
#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSData.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <set>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// From so many on one sync of the whole file system is cheaper than one for each.
constexpr std::size_t kMostSingleSyncs = 16;
constexpr std::size_t kPieceSize = std::size_t{1} << 18;
constexpr std::size_t kCompareSize = std::size_t{1} << 16;

NSDate dateOf(std::int64_t seconds, std::int64_t nanoseconds)
{
    return NSDate(seconds * 1'000'000 + nanoseconds / 1'000);
}

/// Renames without covering anything. The number of the error, 0 for none.
int renameToUnusedName(const fs::path& from, const fs::path& to)
{
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // The file system has no such renaming: a second name, for a file, or a look beforehand.
    if (::link(from.c_str(), to.c_str()) == 0)
        return ::unlink(from.c_str()) == 0 ? 0 : errno;
    if (errno == EEXIST || errno == ENOENT)
        return errno;
    if (NSFileManager::fileExistsAtURL(to))
        return EEXIST;
    return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

/// Lets `make` make something under a hidden name, and gives it its own one.
bool makeUnderHiddenName(const fs::path& destination, const std::function<bool(const fs::path&)>& make, NSError* error)
{
    if (NSFileManager::fileExistsAtURL(destination))
        return failWithSystemError(error, EEXIST, destination, "made");
    const fs::path hidden
        = destination.parent_path() / (std::string(NSFileManager::unfinishedPrefix) + newUUIDString());
    if (!make(hidden))
        return false;
    const int failure = renameToUnusedName(hidden, destination);
    if (failure == 0)
        return true;
    NSFileManager::removeItemAtURL(hidden);
    return failWithSystemError(error, failure, destination, "made");
}

/// The number of the error, 0 for none.
int writeAll(int file, std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(file, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR)
            return errno;
        if (count > 0)
            bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return 0;
}

/// Makes a file that `write` writes, who gives the number of an error, 0 for none; it is gone after a failure.
bool writeNewFile(const fs::path& file, const std::function<int(int)>& write, NSError* error)
{
    FileDescriptor descriptor(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!descriptor)
        return failWithSystemError(error, errno, file, "made");
    int failure = write(descriptor.get());
    if (::close(descriptor.release()) != 0 && failure == 0)
        failure = errno;
    if (failure == 0)
        return true;
    ::unlink(file.c_str());
    return failure != ECANCELED && failWithSystemError(error, failure, file, "written");
}

bool writeContents(const fs::path& file, const NSData& contents, NSError* error)
{
    return writeNewFile(
        file,
        [&](int descriptor) {
            return writeAll(descriptor, {contents.bytes(), contents.length()});
        },
        error);
}

bool writePieces(const fs::path& file, const std::function<std::optional<std::size_t>(std::span<std::byte>)>& nextPiece,
    NSError* error)
{
    const auto write = [&](int descriptor) {
        std::vector<std::byte> buffer(kPieceSize);
        while (const auto count = nextPiece(buffer)) {
            if (*count == 0)
                return 0;
            if (const int failure = writeAll(descriptor, std::span(buffer).first(*count)))
                return failure;
        }
        return ECANCELED; // of the caller's own will
    };
    return writeNewFile(file, write, error);
}

std::size_t readPiece(int file, std::array<char, kCompareSize>& piece, bool& hasFailed)
{
    std::size_t filled = 0;
    while (filled < piece.size()) {
        const ssize_t count = ::read(file, piece.data() + filled, piece.size() - filled);
        if (count < 0 && errno == EINTR)
            continue;
        hasFailed = count < 0;
        if (count <= 0)
            break;
        filled += static_cast<std::size_t>(count);
    }
    return filled;
}

FileDescriptor openFile(const fs::path& file, struct stat& state)
{
    FileDescriptor descriptor(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (descriptor && (::fstat(descriptor.get(), &state) != 0 || !S_ISREG(state.st_mode)))
        descriptor.reset();
    return descriptor;
}

bool synchronize(const fs::path& url, NSError* error)
{
    const FileDescriptor file(::open(url.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file)
        return failWithSystemError(error, errno, url, "made durable");
    if (::fsync(file.get()) == 0 || errno == EINVAL || errno == EROFS) // some file systems know no sync of folders
        return true;
    return failWithSystemError(error, errno, url, "made durable");
}

bool synchronizeFileSystems(std::span<const fs::path> urls, NSError* error)
{
    std::set<dev_t> done;
    for (const fs::path& url : urls) {
        struct stat state { };
        const FileDescriptor file(::open(url.c_str(), O_RDONLY | O_CLOEXEC));
        if (!file || ::fstat(file.get(), &state) != 0)
            return failWithSystemError(error, errno, url, "made durable");
        if (done.insert(state.st_dev).second && ::syncfs(file.get()) != 0)
            return failWithSystemError(error, errno, url, "made durable");
    }
    return true;
}

} // namespace

bool NSFileManager::fileExistsAtURL(const fs::path& url)
{
    struct stat state { };
    return ::lstat(url.c_str(), &state) == 0;
}

std::optional<NSFileAttributes> NSFileManager::attributesOfItemAtURL(const fs::path& url, NSError* error)
{
    struct statx state { };
    if (::statx(AT_FDCWD, url.c_str(), 0, STATX_BASIC_STATS | STATX_BTIME, &state) != 0) {
        failWithSystemError(error, errno, url, "read");
        return std::nullopt;
    }
    NSFileAttributes attributes{.size = static_cast<std::int64_t>(state.stx_size),
        .modificationDate = dateOf(state.stx_mtime.tv_sec, state.stx_mtime.tv_nsec),
        .creationDate = std::nullopt,
        .isFolder = S_ISDIR(state.stx_mode)};
    if (state.stx_mask & STATX_BTIME)
        attributes.creationDate = dateOf(state.stx_btime.tv_sec, state.stx_btime.tv_nsec);
    return attributes;
}

bool NSFileManager::setModificationDate(NSDate date, const fs::path& ofItemAtURL, NSError* error)
{
    constexpr std::int64_t perSecond = 1'000'000;
    const std::int64_t microseconds = date.microsecondsSince1970();
    std::int64_t seconds = microseconds / perSecond;
    std::int64_t rest = microseconds % perSecond;
    if (rest < 0) {
        --seconds;
        rest += perSecond;
    }
    std::array<timespec, 2> times{};
    times[0].tv_nsec = UTIME_OMIT;
    times[1].tv_sec = seconds;
    times[1].tv_nsec = rest * 1'000;
    return ::utimensat(AT_FDCWD, ofItemAtURL.c_str(), times.data(), 0) == 0
        || failWithSystemError(error, errno, ofItemAtURL, "dated");
}

bool NSFileManager::setAccess(const fs::path& ofItemAtURL, const fs::path& likeItemAtURL, NSError* error)
{
    constexpr mode_t kPermissions = 07777;
    struct stat wanted { };
    struct stat present { };
    if (::stat(likeItemAtURL.c_str(), &wanted) != 0)
        return failWithSystemError(error, errno, likeItemAtURL, "read");
    if (::stat(ofItemAtURL.c_str(), &present) != 0)
        return failWithSystemError(error, errno, ofItemAtURL, "read");
    // Who may not give files away keeps them: what counts is who can read them.
    if ((present.st_uid != wanted.st_uid || present.st_gid != wanted.st_gid)
        && ::chown(ofItemAtURL.c_str(), wanted.st_uid, wanted.st_gid) != 0 && errno != EPERM)
        return failWithSystemError(error, errno, ofItemAtURL, "given to its owner");
    if ((present.st_mode & kPermissions) == (wanted.st_mode & kPermissions))
        return true;
    return ::chmod(ofItemAtURL.c_str(), wanted.st_mode & kPermissions) == 0
        || failWithSystemError(error, errno, ofItemAtURL, "given its permissions");
}

bool NSFileManager::copyItemAtURL(const fs::path& source, const fs::path& destination, NSError* error)
{
    return makeUnderHiddenName(
        destination, [&](const fs::path& hidden) { return copyItemAtUnusedURL(source, hidden, error); }, error);
}

bool NSFileManager::moveItemAtURL(const fs::path& source, const fs::path& destination, NSError* error)
{
    const int failure = renameToUnusedName(source, destination);
    if (failure == EXDEV)
        return copyItemAtURL(source, destination, error) && removeItemAtURL(source, error);
    return failure == 0 || failWithSystemError(error, failure, failure == EEXIST ? destination : source, "moved");
}

bool NSFileManager::replaceItemAtURL(
    const fs::path& url, const fs::path& withItemAtURL, const fs::path& backupURL, NSError* error)
{
    // A second name keeps what the renaming covers; folders, and some file systems, have none.
    if (::link(url.c_str(), backupURL.c_str()) == 0) {
        if (::rename(withItemAtURL.c_str(), url.c_str()) == 0)
            return true;
        const int failure = errno;
        ::unlink(backupURL.c_str());
        return failWithSystemError(error, failure, url, "replaced");
    }
    if (!moveItemAtURL(url, backupURL, error))
        return false;
    if (moveItemAtURL(withItemAtURL, url, error))
        return true;
    moveItemAtURL(backupURL, url);
    return false;
}

bool NSFileManager::createFileAtURL(const fs::path& url, const NSData& contents, NSError* error)
{
    return makeUnderHiddenName(
        url, [&](const fs::path& hidden) { return writeContents(hidden, contents, error); }, error);
}

bool NSFileManager::createFileAtURL(const fs::path& url,
    const std::function<std::optional<std::size_t>(std::span<std::byte>)>& nextPiece, NSError* error)
{
    return makeUnderHiddenName(
        url, [&](const fs::path& hidden) { return writePieces(hidden, nextPiece, error); }, error);
}

bool NSFileManager::removeItemAtURL(const fs::path& url, NSError* error)
{
    std::error_code failure;
    fs::remove_all(url, failure);
    return !failure || failWithSystemError(error, failure.value(), url, "removed");
}

bool NSFileManager::createDirectoryAtURL(const fs::path& url, NSError* error)
{
    return ::mkdir(url.c_str(), 0700) == 0 || failWithSystemError(error, errno, url, "made");
}

std::optional<fs::path> NSFileManager::createUniqueDirectoryInDirectory(
    const fs::path& directory, std::string_view prefix, NSError* error)
{
    std::string name = (directory / (std::string(prefix) + "XXXXXX")).string();
    if (::mkdtemp(name.data()))
        return name;
    failWithSystemError(error, errno, directory / prefix, "made");
    return std::nullopt;
}

bool NSFileManager::areOnOneFileSystem(const fs::path& one, const fs::path& other)
{
    const auto device = [](const fs::path& place) -> std::optional<dev_t> {
        std::error_code ignored;
        struct stat state { };
        fs::path folder = fs::absolute(place, ignored);
        while (::stat(folder.c_str(), &state) != 0) {
            if (!folder.has_relative_path())
                return std::nullopt;
            folder = folder.parent_path();
        }
        return state.st_dev;
    };
    return device(one) == device(other);
}

bool NSFileManager::contentsEqualAtURLs(const fs::path& one, const fs::path& other)
{
    struct stat stateOfOne { };
    struct stat stateOfOther { };
    const FileDescriptor left = openFile(one, stateOfOne);
    const FileDescriptor right = openFile(other, stateOfOther);
    if (!left || !right || stateOfOne.st_size != stateOfOther.st_size)
        return false;
    std::array<char, kCompareSize> leftPiece;
    std::array<char, kCompareSize> rightPiece;
    bool hasFailed = false;
    while (true) {
        const std::size_t leftCount = readPiece(left.get(), leftPiece, hasFailed);
        if (hasFailed)
            return false;
        const std::size_t rightCount = readPiece(right.get(), rightPiece, hasFailed);
        if (hasFailed || leftCount != rightCount || std::memcmp(leftPiece.data(), rightPiece.data(), leftCount) != 0)
            return false;
        if (leftCount < leftPiece.size())
            return true;
    }
}

bool NSFileManager::synchronizeItemsAtURLs(std::span<const fs::path> urls, NSError* error)
{
    if (urls.size() > kMostSingleSyncs)
        return synchronizeFileSystems(urls, error);
    for (const fs::path& url : urls)
        if (!synchronize(url, error))
            return false;
    return true;
}

} // namespace tarn
