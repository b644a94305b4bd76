#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/files/FileNames.h"
#include "tarnmodel/files/UnsavedFileChanges.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/notes/OwedCompaction.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

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

OVEncryptionCoreManagerProtocol* OVNoteFile::requireOpen() const
{
    auto* const manager = OVEncryptionCoreManager::managerGuarding(*this, encryptedValue());
    if (encryptedValue() && !manager)
        throw NSException(OVInvalidAccessorException, OVInvalidAccessorReason);
    return manager;
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
    storesSearchTextAsIs_ = false;
    deleteFileThumbnails();
    return true;
}

std::optional<std::string> OVNoteFile::searchText() const
{
    if (auto* manager = OVEncryptionCoreManager::managerGuarding(*this, encryptedValue()))
        return manager->searchTextForNoteFile(*this, nullptr);
    return primitiveSearchText();
}

void OVNoteFile::setSearchText(std::optional<std::string_view> text)
{
    if (auto* manager = OVEncryptionCoreManager::managerGuarding(*this, encryptedValue())) {
        manager->setSearchText(text, *this);
        return;
    }
    storesSearchTextAsIs_ = encryptedValue();
    updatePrimitiveSearchText(text);
}

void OVNoteFile::willSave()
{
    leaveNoSearchTextInClear();
}

void OVNoteFile::deriveFromOthers()
{
    leaveNoSearchTextInClear();
}

/// One writer recognised a text, another one protected the attachment: the text is merged by itself. What was stored
/// beside the protection by who knew of it, as a dictionary has it, is not touched.
void OVNoteFile::leaveNoSearchTextInClear()
{
    if (!encryptedValue() || isInserted() || storesSearchTextAsIs_)
        return;
    const auto text = primitiveSearchText();
    if (!text || !encryptedData())
        return;
    const auto changed = changedValues();
    if (!changed.contains("searchText") && !changed.contains("encryptedData"))
        return;
    OVEncryptionCoreManagerProtocol* const manager = encryptionCoreManager();
    if (manager && !manager->isObjectLocked(*this))
        manager->setSearchText(*text, *this);
    else
        logMessage("What was recognised in an attachment was dropped, which is protected and locked: "
            + uniqueIdentifier().value_or(""));
    updatePrimitiveSearchText(std::nullopt);
}

void OVNoteFile::didAddEncryption()
{
    giveStoredFileItsDate();
    OwedCompaction::begin(managedObjectContext());
    // A subtitle may hold what stands in the text beside the attachment.
    if (OVNote* const owner = note())
        owner->setSubtitle(std::nullopt);
}

void OVNoteFile::didRemoveEncryption()
{
    giveStoredFileItsDate();
    if (OVNote* const owner = note())
        owner->deriveSubtitle();
}

/// The date of its bytes, which tells whether they are the saved ones: to exchange a file does not change it.
void OVNoteFile::giveStoredFileItsDate() const
{
    const auto file = primitiveFileURL();
    if (const auto date = modificationDate(); file && date && NSFileManager::fileExistsAtURL(*file))
        NSFileManager::setModificationDate(*date, *file);
}

bool OVNoteFile::exchangeStoredFile(
    std::string_view name, const std::function<bool(const std::filesystem::path&, NSError*)>& write, NSError* error)
{
    if (!uniqueIdentifier()) {
        assignError(error, NSError("Tarn Model", 1, "An attachment without an identifier has no file"));
        return false;
    }
    const std::string taken = fileNameWithinFolder(name);
    if (!UnsavedFileChanges::ofRecord(*this).exchangeFile(
            RecordFolder::ofRecord(*this), storedFilename().value_or(""), taken, write, error))
        return false;
    updatePrimitiveFilename(taken);
    markForUpload();
    return true;
}

} // namespace tarn
