#include "tarnmodel/encryption/sealing/SealedFile.h"

#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/sealing/FileAccessInternal.h"
#include "tarnmodel/encryption/sealing/FileSealer.h"
#include "tarnmodel/encryption/sealing/FolderArchive.h"
#include "tarnmodel/encryption/sealing/SealedFileFormatInternal.h"
#include "tarnmodel/encryption/sealing/SealedFileReader.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

namespace tarn {
namespace {

namespace fs = std::filesystem;

/// Gives what was made the date of what it was made of; else it goes again.
bool takeDate(const fs::path& from, const fs::path& made, NSError* error)
{
    NSError failure;
    const auto attributes = NSFileManager::attributesOfItemAtURL(from, &failure);
    if (attributes && NSFileManager::setModificationDate(attributes->modificationDate, made, &failure))
        return true;
    NSFileManager::removeItemAtURL(made);
    return failEncryption(error, OVEncryptionErrorFile, failure.localizedDescription());
}

bool isSameMoment(const timespec& one, const timespec& other)
{
    return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

bool sealFile(const fs::path& file, const fs::path& place, const SecretBytes& objectKey, std::string_view identifier,
    NSError* error)
{
    const FileDescriptor source(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat before { };
    if (!source || ::fstat(source.get(), &before) != 0)
        return failFileAccess(error, errno, file, "read");
    if (!S_ISREG(before.st_mode))
        return failFileAccess(error, EINVAL, file, "read");
    FileSealer sealer(place, ContentKind::Bytes, static_cast<std::uint64_t>(before.st_size), identifier);
    if (!sealer.begin(objectKey, error))
        return false;
    std::vector<std::byte> buffer(sealedPieceLength);
    const WipedAtEnd wiped(buffer);
    while (true) {
        const auto length = readFully(source, buffer, file, error);
        if (!length || !sealer.write(std::span(buffer).first(*length), error))
            return false;
        if (*length < buffer.size())
            break;
    }
    // The clear file goes when this is done, so it has to be all of it.
    struct stat after { };
    if (::fstat(source.get(), &after) != 0 || !isSameMoment(before.st_mtim, after.st_mtim))
        return failEncryption(error, OVEncryptionErrorFile, "The file was changed while it was read");
    return sealer.finish(error);
}

bool sealFolder(const fs::path& folder, const fs::path& place, const SecretBytes& objectKey,
    std::string_view identifier, NSError* error)
{
    const auto length = lengthOfFolderArchive(folder, error);
    if (!length)
        return false;
    FileSealer sealer(place, ContentKind::Folder, *length, identifier);
    return sealer.begin(objectKey, error)
        && writeFolderArchive(
            folder, [&](std::span<const std::byte> bytes) { return sealer.write(bytes, error); }, error)
        && sealer.finish(error);
}

bool writeClearFile(SealedFileReader& reader, const fs::path& place, NSError* error)
{
    FileDescriptor file(::open(place.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!file)
        return failFileAccess(error, errno, place, "written");
    while (true) {
        const auto bytes = reader.next(error);
        if (bytes && bytes->empty())
            break;
        if (!bytes || !writeAll(file, *bytes, place, error)) {
            ::unlink(place.c_str());
            return false;
        }
    }
    return closeWritten(file, place, error);
}

bool writeClearFolder(SealedFileReader& reader, const fs::path& place, NSError* error)
{
    if (::mkdir(place.c_str(), 0700) != 0)
        return failFileAccess(error, errno, place, "written");
    if (readFolderArchive([&] { return reader.next(error); }, place, error))
        return true;
    NSFileManager::removeItemAtURL(place);
    return false;
}

} // namespace

bool sealItem(const fs::path& item, const fs::path& place, const SecretBytes& objectKey, std::string_view identifier,
    NSError* error)
{
    std::error_code ignored;
    const bool isFolder = fs::is_directory(item, ignored);
    return (isFolder ? sealFolder : sealFile)(item, place, objectKey, identifier, error)
        && takeDate(item, place, error);
}

bool sealBytes(std::span<const std::byte> bytes, const fs::path& place, const SecretBytes& objectKey,
    std::string_view identifier, NSError* error)
{
    FileSealer sealer(place, ContentKind::Bytes, bytes.size(), identifier);
    return sealer.begin(objectKey, error) && sealer.write(bytes, error) && sealer.finish(error);
}

bool unsealItem(const fs::path& sealed, const fs::path& place, const SecretBytes& objectKey,
    std::string_view identifier, NSError* error)
{
    SealedFileReader reader(sealed, identifier);
    if (!reader.begin(objectKey, error))
        return false;
    if (!(reader.kind() == ContentKind::Folder ? writeClearFolder : writeClearFile)(reader, place, error))
        return false;
    if (!reader.finish(error)) {
        NSFileManager::removeItemAtURL(place);
        return false;
    }
    return takeDate(sealed, place, error);
}

bool resealItem(const fs::path& sealed, const fs::path& place, const SecretBytes& objectKey,
    const SecretBytes& otherObjectKey, std::string_view identifier, NSError* error)
{
    SealedFileReader reader(sealed, identifier);
    if (!reader.begin(objectKey, error))
        return false;
    FileSealer sealer(place, reader.kind(), reader.length(), identifier);
    if (!sealer.begin(otherObjectKey, error))
        return false;
    while (true) {
        const auto bytes = reader.next(error);
        if (!bytes || !sealer.write(*bytes, error))
            return false;
        if (bytes->empty())
            break;
    }
    return reader.finish(error) && sealer.finish(error) && takeDate(sealed, place, error);
}

bool verifySealedItem(const fs::path& sealed, const SecretBytes& objectKey, std::string_view identifier, NSError* error)
{
    SealedFileReader reader(sealed, identifier);
    return reader.begin(objectKey, error) && reader.finish(error);
}

std::optional<std::uint64_t> lengthOfClearItem(const fs::path& sealed, NSError* error)
{
    std::error_code failure;
    const auto length = fs::file_size(sealed, failure);
    if (!failure)
        return length;
    failFileAccess(error, failure.value(), sealed, "read");
    return std::nullopt;
}

} // namespace tarn
