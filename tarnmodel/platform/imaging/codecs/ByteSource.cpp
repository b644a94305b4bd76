// All that images ask of the operating system.

#include "tarnmodel/platform/imaging/codecs/ByteSource.h"

#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/imaging/ImageFile.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace tarn {

namespace {

class FileBytes : public ByteSource {
public:
    // Without O_NONBLOCK a named pipe would wait for somebody to write.
    explicit FileBytes(const std::filesystem::path& path)
        : descriptor_(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {
        struct stat status = {};
        failure_ = descriptor_.get() < 0 || ::fstat(descriptor_.get(), &status) != 0 ? errno : 0;
        if (failure_ == 0 && !S_ISREG(status.st_mode))
            failure_ = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
        size_ = failure_ == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
    }

    /// Why it cannot be read, a number of the system; 0 when it can.
    int failure() const { return failure_; }
    std::uint64_t size() const override { return size_; }

    std::size_t readAt(std::uint64_t offset, std::span<std::uint8_t> target) const override
    {
        std::size_t count = 0;
        while (count < target.size() && offset + count < size_) {
            const ssize_t got = ::pread(
                descriptor_.get(), target.data() + count, target.size() - count, static_cast<off_t>(offset + count));
            if (got < 0 && errno == EINTR)
                continue;
            if (got <= 0)
                break;
            count += static_cast<std::size_t>(got);
        }
        return count;
    }

private:
    FileDescriptor descriptor_;
    int failure_ = 0;
    std::uint64_t size_ = 0;
};

class HeldBytes : public ByteSource {
public:
    explicit HeldBytes(std::span<const std::uint8_t> bytes) : bytes_(bytes) { }

    std::uint64_t size() const override { return bytes_.size(); }

    std::size_t readAt(std::uint64_t offset, std::span<std::uint8_t> target) const override
    {
        const auto rest = bytes_.subspan(static_cast<std::size_t>(std::min<std::uint64_t>(offset, bytes_.size())));
        const std::size_t count = std::min(rest.size(), target.size());
        std::copy_n(rest.begin(), count, target.begin());
        return count;
    }

private:
    std::span<const std::uint8_t> bytes_;
};

NSError fileError(ImagingErrorCode code, const char* action, const std::filesystem::path& path, int number)
{
    return NSError(TarnImagingErrorDomain, code,
        fmt::format("Cannot {} {}: {}.", action, path.string(), std::generic_category().message(number)));
}

} // namespace

std::unique_ptr<ByteSource> openFile(const std::filesystem::path& path, NSError* error)
{
    auto file = std::make_unique<FileBytes>(path);
    if (file->failure() == 0)
        return file;
    assignError(error, fileError(ImagingErrorCannotRead, "read", path, file->failure()));
    return nullptr;
}

std::unique_ptr<ByteSource> sourceOfBytes(std::span<const std::uint8_t> bytes)
{
    return std::make_unique<HeldBytes>(bytes);
}

bool writeFile(const std::filesystem::path& path, std::span<const std::uint8_t> bytes, NSError* error)
{
    const FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    bool isWritten = file.get() >= 0;
    while (isWritten && !bytes.empty()) {
        const ssize_t count = ::write(file.get(), bytes.data(), bytes.size());
        if (count > 0)
            bytes = bytes.subspan(static_cast<std::size_t>(count));
        else
            isWritten = count < 0 && errno == EINTR;
    }
    if (!isWritten)
        assignError(error, fileError(ImagingErrorCannotWrite, "write", path, errno));
    return isWritten;
}

} // namespace tarn
