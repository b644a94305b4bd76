#include "tarnmodel/platform/foundation/filesystem/FileCopyInternal.h"

#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <string>
#include <system_error>
#include <vector>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLargestStep = std::size_t{256} << 20;
constexpr std::size_t kBufferSize = std::size_t{1} << 18;
constexpr int kDeepestFolder = 200;

bool writeAll(int file, const char* bytes, std::size_t count, off_t offset)
{
    while (count > 0) {
        const ssize_t written = ::pwrite(file, bytes, count, offset);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes += written;
        offset += written;
        count -= static_cast<std::size_t>(written);
    }
    return true;
}

/// Through memory, for file systems between which the system does not copy by itself.
bool copyRangeByHand(int from, int to, off_t offset, off_t end)
{
    std::vector<char> buffer(kBufferSize);
    while (offset < end) {
        const auto wanted = std::min(buffer.size(), static_cast<std::size_t>(end - offset));
        const ssize_t count = ::pread(from, buffer.data(), wanted, offset);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return false;
        if (count == 0) // it was cut while it was read; who compares the sizes sees it
            return true;
        if (!writeAll(to, buffer.data(), static_cast<std::size_t>(count), offset))
            return false;
        offset += count;
    }
    return true;
}

bool copyRange(int from, int to, off_t offset, off_t end)
{
    while (offset < end) {
        off_t source = offset;
        off_t destination = offset;
        const auto wanted = std::min(kLargestStep, static_cast<std::size_t>(end - offset));
        const ssize_t count = ::copy_file_range(from, &source, to, &destination, wanted, 0);
        if (count > 0) {
            offset += count;
            continue;
        }
        if (count < 0 && errno == EINTR)
            continue;
        if (count == 0 || errno == EXDEV || errno == ENOSYS || errno == EINVAL || errno == EOPNOTSUPP)
            return copyRangeByHand(from, to, offset, end);
        return false;
    }
    return true;
}

/// What lies between holes, so that these take no space in the copy either.
bool copyData(int from, int to, off_t size)
{
    off_t offset = 0;
    while (offset < size) {
        const off_t data = ::lseek(from, offset, SEEK_DATA);
        if (data < 0 && errno == ENXIO)
            break;
        if (data < 0 && errno == EINVAL) // the file system does not tell of holes
            return copyRange(from, to, offset, size);
        const off_t hole = data < 0 ? -1 : ::lseek(from, data, SEEK_HOLE);
        if (hole < 0 || !copyRange(from, to, data, std::min(hole, size)))
            return false;
        offset = hole;
    }
    return true;
}

bool isUnchanged(const struct stat& before, int file)
{
    struct stat after { };
    return ::fstat(file, &after) == 0 && after.st_size == before.st_size
        && after.st_mtim.tv_sec == before.st_mtim.tv_sec && after.st_mtim.tv_nsec == before.st_mtim.tv_nsec;
}

bool fillCopy(int from, int to, const struct stat& state, const fs::path& source, NSError* error)
{
    const bool isShared = ::ioctl(to, FICLONE, from) == 0;
    if (!isShared && (!copyData(from, to, state.st_size) || ::ftruncate(to, state.st_size) != 0))
        return failWithSystemError(error, errno, source, "copied");
    if (!isUnchanged(state, from)) {
        assignError(error,
            NSError(NSPOSIXErrorDomain, EAGAIN,
                "\"" + source.string() + "\" cannot be copied: it was changed while it was read"));
        return false;
    }
    const std::array times{state.st_atim, state.st_mtim};
    return ::futimens(to, times.data()) == 0 || failWithSystemError(error, errno, source, "copied");
}

bool copyFile(int from, const struct stat& state, const fs::path& source, const fs::path& destination, NSError* error)
{
    FileDescriptor to(::open(destination.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!to)
        return failWithSystemError(error, errno, destination, "made");
    bool isWhole = fillCopy(from, to.get(), state, source, error);
    // What a network or a quota refuses may show here first.
    if (::close(to.release()) != 0 && isWhole)
        isWhole = failWithSystemError(error, errno, destination, "written");
    if (!isWhole)
        ::unlink(destination.c_str());
    return isWhole;
}

bool copyLink(const fs::path& source, const fs::path& destination, NSError* error)
{
    std::error_code failure;
    fs::copy_symlink(source, destination, failure);
    return !failure || failWithSystemError(error, failure.value(), source, "copied");
}

bool copyAny(const fs::path& source, const fs::path& destination, int depth, NSError* error);

bool copyEntries(const fs::path& source, const fs::path& destination, int depth, NSError* error)
{
    std::error_code failure;
    for (fs::directory_iterator entry(source, failure), end; !failure && entry != end; entry.increment(failure)) {
        const fs::path copy = destination / entry->path().filename();
        const bool isCopied = entry->is_symlink() ? copyLink(entry->path(), copy, error)
                                                  : copyAny(entry->path(), copy, depth + 1, error);
        if (!isCopied)
            return false;
    }
    return !failure || failWithSystemError(error, failure.value(), source, "read");
}

bool copyFolder(
    const struct stat& state, const fs::path& source, const fs::path& destination, int depth, NSError* error)
{
    if (depth > kDeepestFolder)
        return failWithSystemError(error, ELOOP, source, "copied");
    if (::mkdir(destination.c_str(), 0700) != 0)
        return failWithSystemError(error, errno, destination, "made");
    if (copyEntries(source, destination, depth, error)) {
        const std::array times{state.st_atim, state.st_mtim};
        ::utimensat(AT_FDCWD, destination.c_str(), times.data(), 0);
        return true;
    }
    std::error_code ignored;
    fs::remove_all(destination, ignored);
    return false;
}

bool copyAny(const fs::path& source, const fs::path& destination, int depth, NSError* error)
{
    // A pipe that nobody writes to must not hold us up.
    const FileDescriptor from(::open(source.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat state { };
    if (!from || ::fstat(from.get(), &state) != 0)
        return failWithSystemError(error, errno, source, "read");
    if (S_ISREG(state.st_mode))
        return copyFile(from.get(), state, source, destination, error);
    if (S_ISDIR(state.st_mode))
        return copyFolder(state, source, destination, depth, error);
    assignError(error,
        NSError(NSPOSIXErrorDomain, EINVAL,
            "\"" + source.string() + "\" cannot be copied: it is neither a file nor a folder"));
    return false;
}

} // namespace

bool copyItemAtUnusedURL(const fs::path& source, const fs::path& destination, NSError* error)
{
    return copyAny(source, destination, 0, error);
}

} // namespace tarn
