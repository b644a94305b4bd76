#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"

namespace tarn {

std::optional<std::string> OVNoteFile::filename() const
{
    if (auto* manager = OVEncryptionCoreManager::managerGuarding(*this, encryptedValue()))
        return manager->filenameForNoteFile(*this, nullptr);
    return primitiveFilename();
}

void OVNoteFile::setFilename(std::optional<std::string_view> filename)
{
    if (auto* manager = OVEncryptionCoreManager::managerGuarding(*this, encryptedValue()))
        manager->setFilename(filename, *this);
    else
        updatePrimitiveFilename(filename);
}

std::optional<std::string> OVNoteFile::normalizedFileExtension() const
{
    if (auto* manager = OVEncryptionCoreManager::managerGuarding(*this, encryptedValue()))
        return manager->normalizedFileExtensionForNoteFile(*this, nullptr);
    return primitiveNormalizedFileExtension();
}

void OVNoteFile::setNormalizedFileExtension(std::optional<std::string_view> extension)
{
    if (auto* manager = OVEncryptionCoreManager::managerGuarding(*this, encryptedValue()))
        manager->setNormalizedFileExtension(extension, *this);
    else
        updatePrimitiveNormalizedFileExtension(extension);
}

std::optional<std::int64_t> OVNoteFile::fileSize() const
{
    if (auto* manager = OVEncryptionCoreManager::managerGuarding(*this, encryptedValue()))
        return manager->fileSizeForNoteFile(*this, nullptr);
    return primitiveFileSize();
}

void OVNoteFile::setFileSize(std::optional<std::int64_t> bytes)
{
    if (auto* manager = OVEncryptionCoreManager::managerGuarding(*this, encryptedValue()))
        manager->setFileSize(bytes, *this);
    else
        updatePrimitiveFileSize(bytes);
}

std::optional<std::filesystem::path> OVNoteFile::fileURL() const
{
    if (auto* manager = OVEncryptionCoreManager::managerGuarding(*this, encryptedValue()))
        return manager->fileURLForNoteFile(*this, nullptr);
    return primitiveFileURL();
}

void OVNoteFile::updatePrimitiveFilename(std::optional<std::string_view> filename)
{
    _OVNoteFile::setFilename(filename);
}

void OVNoteFile::updatePrimitiveNormalizedFileExtension(std::optional<std::string_view> extension)
{
    _OVNoteFile::setNormalizedFileExtension(extension);
}

void OVNoteFile::updatePrimitiveFileSize(std::optional<std::int64_t> bytes)
{
    _OVNoteFile::setFileSize(bytes);
}

bool OVNoteFile::hasEncryptionAndIsLocked() const
{
    if (OVEncryptionCoreManagerProtocol* manager = encryptionCoreManager())
        return manager->isObjectLocked(*this);
    return hasEncryption();
}

OVEncryptionCoreManagerProtocol* OVNoteFile::encryptionCoreManager() const
{
    return OVEncryptionCoreManager::encryptionCoreManagerForManagedObjectContext(managedObjectContext());
}

OVEncryptionState OVNoteFile::encryptionState() const
{
    return {encryptedValue(), encryptedData(), encryptionDate(), encryptionUniqueIdentifier(), password()};
}

void OVNoteFile::setEncryptionState(const OVEncryptionState& state)
{
    setEncryptedValue(state.encrypted);
    setEncryptedData(state.encryptedData);
    setEncryptionDate(state.encryptionDate);
    setEncryptionUniqueIdentifier(state.encryptionUniqueIdentifier);
    setPassword(static_cast<OVPassword*>(state.password));
}

void OVNoteFile::updatePrimitiveSearchText(std::optional<std::string_view> text)
{
    _OVNoteFile::setSearchText(text);
}

bool OVNoteFile::prepareToAddEncryption(NSError* /*error*/)
{
    deleteFileThumbnails();
    return true;
}

void OVNoteFile::didAddEncryption() { }

void OVNoteFile::didRemoveEncryption() { }

bool OVNoteFile::exchangeStoredFile(std::string_view /*name*/,
    const std::function<bool(const std::filesystem::path&, NSError*)>& /*write*/, NSError* /*error*/)
{
    return false;
}

} // namespace tarn
