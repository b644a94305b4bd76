#include "tarnmodel/platform/foundation/filesystem/HeldFolder.h"

#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr int kMostTries = 100;

/// The open folder with its lock; empty when somebody else has that, or when the folder went meanwhile.
FileDescriptor lockFolder(const fs::path& folder)
{
    FileDescriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!descriptor || ::flock(descriptor.get(), LOCK_EX | LOCK_NB) != 0)
        return FileDescriptor();
    struct stat locked { };
    struct stat named { };
    // Between the opening and the lock another process may have cleared it away.
    if (::fstat(descriptor.get(), &locked) != 0 || ::lstat(folder.c_str(), &named) != 0 || locked.st_ino != named.st_ino
        || locked.st_dev != named.st_dev)
        return FileDescriptor();
    return descriptor;
}

} // namespace

HeldFolder::HeldFolder(fs::path path, int descriptor) : path_(std::move(path)), descriptor_(descriptor) { }

HeldFolder::HeldFolder(HeldFolder&& other) noexcept
    : path_(std::move(other.path_)), descriptor_(std::exchange(other.descriptor_, -1))
{ }

HeldFolder& HeldFolder::operator=(HeldFolder&& other) noexcept
{
    std::swap(path_, other.path_);
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

HeldFolder::~HeldFolder()
{
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

std::optional<HeldFolder> HeldFolder::makeIn(const fs::path& parent, std::string_view prefix, NSError* error)
{
    for (int tries = 0; tries < kMostTries; ++tries) {
        const auto folder = NSFileManager::createUniqueDirectoryInDirectory(parent, prefix, error);
        if (!folder)
            return std::nullopt;
        if (FileDescriptor descriptor = lockFolder(*folder))
            return HeldFolder(*folder, descriptor.release());
    }
    failWithSystemError(error, EAGAIN, parent / prefix, "held");
    return std::nullopt;
}

std::vector<HeldFolder> HeldFolder::abandonedIn(const fs::path& parent, std::string_view prefix)
{
    std::vector<HeldFolder> folders;
    std::error_code failure;
    for (fs::directory_iterator entry(parent, failure), end; !failure && entry != end; entry.increment(failure)) {
        if (!entry->path().filename().string().starts_with(prefix))
            continue;
        if (FileDescriptor descriptor = lockFolder(entry->path()))
            folders.push_back(HeldFolder(entry->path(), descriptor.release()));
    }
    return folders;
}

bool HeldFolder::isHeld(const fs::path& folder)
{
    const FileDescriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    return descriptor && ::flock(descriptor.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

void HeldFolder::remove()
{
    NSFileManager::removeItemAtURL(path_);
}

} // namespace tarn
