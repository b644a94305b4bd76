#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/sealing/FileAccessInternal.h"

#include <cerrno>

namespace tarn {

bool failFileAccess(NSError* error, int number, const std::filesystem::path& file, std::string_view action)
{
    return failEncryption(
        error, OVEncryptionErrorFile, errorOfSystem(number, file.filename(), action).localizedDescription());
}

bool writeAll(
    const FileDescriptor& file, std::span<const std::byte> bytes, const std::filesystem::path& name, NSError* error)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(file.get(), bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return failFileAccess(error, errno, name, "written");
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

std::optional<std::size_t> readFully(
    const FileDescriptor& file, std::span<std::byte> buffer, const std::filesystem::path& name, NSError* error)
{
    std::size_t length = 0;
    while (length < buffer.size()) {
        const ssize_t count = ::read(file.get(), buffer.data() + length, buffer.size() - length);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0) {
            failFileAccess(error, errno, name, "read");
            return std::nullopt;
        }
        if (count == 0)
            break;
        length += static_cast<std::size_t>(count);
    }
    return length;
}

bool closeWritten(FileDescriptor& file, const std::filesystem::path& name, NSError* error)
{
    const int descriptor = file.release();
    if (::close(descriptor) == 0 || errno == EINTR)
        return true;
    const int number = errno;
    ::unlink(name.c_str());
    return failFileAccess(error, number, name, "written");
}

} // namespace tarn
