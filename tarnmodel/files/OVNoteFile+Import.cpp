#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/files/FileNames.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/UnsavedFileChanges.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/notes/EditGuard.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <cerrno>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// Spaces and tabs; line breaks stay.
std::string_view trimmed(std::string_view name)
{
    const std::size_t begin = name.find_first_not_of(" \t");
    return begin == std::string_view::npos ? std::string_view()
                                           : name.substr(begin, name.find_last_not_of(" \t") + 1 - begin);
}

bool hasName(std::string_view name, NSError* error)
{
    if (!name.empty())
        return true;
    assignError(error, NSError("Tarn Model", EINVAL, "A file without a name cannot be attached"));
    return false;
}

} // namespace

// Records ------------------------------------------------------------------------------------------------------------

OVNoteFile* OVNoteFile::factoryNoteFileForFileURL(const FileURL& url, NSManagedObjectContext& context, NSError* error)
{
    for (const Kind& kind : concreteSubclasses())
        if (kind.canImportFileURL(url))
            if (OVNoteFile* file = kind.noteFileForFileURL(url, context, error))
                return file;
    return nullptr;
}

OVNoteFile* OVNoteFile::takeFile(const FileURL& url, NSError* error)
{
    const auto copy = copyFileToLocalFolder(url, error);
    if (!copy) {
        managedObjectContext().deleteObject(*this);
        return nullptr;
    }
    setFilename(copy->filename().string());
    updateNormalizedExtension();
    setDownloadedValue(true);
    setInUse();
    updateFileMetadata();
    return this;
}

// Attachments of a note ----------------------------------------------------------------------------------------------

std::string OVNoteFile::safeFilenameForFilename(std::string_view filename, const OVNote& note,
    OVNoteFile*& matchedNoteFile, const std::function<NSFileWrapper()>& fileData)
{
    matchedNoteFile = nullptr;
    std::vector<OVNoteFile*> candidates = note.filesSet().allObjects();
    std::string name(filename);
    while (true) {
        const auto candidate = std::find_if(candidates.begin(), candidates.end(),
            [&](const OVNoteFile* file) { return file->filenameIsEqualTo(name); });
        if (candidate == candidates.end())
            return std::string(trimmed(name));
        OVNoteFile& file = **candidate;
        candidates.erase(candidate);
        if (!file.isUnused()) {
            name = filepathWithIncreasedNumberCount(name);
            continue;
        }
        const auto own = file.fileURL();
        if (own && fileData().hasContentsOfFileAtURL(*own)) {
            matchedNoteFile = &file;
            return name;
        }
    }
}

OVNoteFile* OVNoteFile::getOrCreateFileFromURL(const FileURL& url, OVNote& note, NSError* error)
{
    const std::string name = url.path.filename().string();
    if (!hasName(name, error))
        return nullptr;
    const auto held = EditGuard::holdUnlocked(note.managedObjectContext());
    EditGuard::requireAttachable(note);
    OVNoteFile* match = nullptr;
    const std::string safeName = fileNameWithinFolder(
        safeFilenameForFilename(name, note, match, [&] { return NSFileWrapper::withURL(url.path); }));
    if (match)
        return match->revived(error);
    if (note.encryptedValue())
        return sealedFromURL(url, safeName, note, error);
    OVNoteFile* const file = factoryNoteFileForFileURL(url, note.managedObjectContext(), error);
    if (!file)
        return nullptr;
    if (safeName != file->filename())
        file->renameTaken(safeName);
    file->setNote(&note);
    return file;
}

OVNoteFile* OVNoteFile::getOrCreateFileFromFileWrapper(const NSFileWrapper& fileWrapper, OVNote& note, NSError* error)
{
    const fs::path given = fileWrapper.filename().value_or(fileWrapper.preferredFilename().value_or(""));
    if (!hasName(given.filename().string(), error))
        return nullptr;
    const auto held = EditGuard::holdUnlocked(note.managedObjectContext());
    EditGuard::requireAttachable(note);
    OVNoteFile* match = nullptr;
    const std::string name = fileNameWithinFolder(
        safeFilenameForFilename(given.filename().string(), note, match, [&] { return fileWrapper; }));
    if (match)
        return match->revived(error);
    if (note.encryptedValue())
        return sealedFromFileWrapper(fileWrapper, name, note, error);
    OVNoteFile* file = nullptr;
    const fs::path scratch = OVLocalFileManager::temporaryUniqueDirectoryURL() / name;
    if (fileWrapper.writeToURL(scratch, error))
        file = factoryNoteFileForFileURL(scratch, note.managedObjectContext(), error);
    // Nobody else knows of it.
    NSFileManager::removeItemAtURL(scratch.parent_path());
    if (file)
        file->setNote(&note);
    return file;
}

/// An unused attachment is one that is in use again.
OVNoteFile* OVNoteFile::revived(NSError* error)
{
    if (!encryptFileIfNeeded(*this, error))
        return nullptr;
    setInUse();
    return this;
}

/// With what lies on disk for it.
void OVNoteFile::takeBack()
{
    UnsavedFileChanges::ofRecord(*this).takeBack(RecordFolder::ofRecord(*this));
    managedObjectContext().deleteObject(*this);
}

// Attachments of a protected note: of these, clear bytes never come into the store's folders
// ----------------------------

/// What is known of a file that stays where it is.
void OVNoteFile::describeFile(const FileURL& url, const std::string& name)
{
    setFilename(name);
    updateNormalizedExtension();
    setDownloadedValue(true);
    setInUse();
    const auto attributes = NSFileManager::attributesOfItemAtURL(url.path);
    setFileSize(attributes ? sizeOfItem(url.path).value_or(attributes->size) : 0);
    setModificationDate(attributes ? std::optional(attributes->modificationDate) : std::nullopt);
    setCreationDate(attributes ? attributes->creationDate : std::nullopt);
}

OVNoteFile* OVNoteFile::sealedFromURL(const FileURL& url, const std::string& name, OVNote& note, NSError* error)
{
    OVEncryptionCoreManagerProtocol* const manager = note.encryptionCoreManager();
    OVPassword* const password = note.password();
    if (!manager || !password) {
        assignError(
            error, NSError(TarnEncryptionErrorDomain, OVEncryptionErrorLocked, "The note's password is not here"));
        return nullptr;
    }
    OVNoteFile* file = nullptr;
    for (const Kind& kind : concreteSubclasses())
        if (!file && kind.canImportFileURL(url))
            file = kind.recordForFileURL(url, note.managedObjectContext(), error);
    if (!file)
        return nullptr;
    file->describeFile(url, name);
    file->setNote(&note);
    if (manager->addEncryptionToNewFile(*file, url.path, *password, error))
        return file;
    file->takeBack();
    return nullptr;
}

OVNoteFile* OVNoteFile::sealedFromFileWrapper(
    const NSFileWrapper& fileWrapper, const std::string& name, OVNote& note, NSError* error)
{
    OVNoteFile* file = nullptr;
    const NSData* const bytes = fileWrapper.regularFileContents();
    OVEncryptionCoreManager::performWithScratchFolder(
        bytes ? bytes->length() : 0,
        [&](const fs::path& folder, NSError* failure) {
            if (fileWrapper.writeToURL(folder / name, failure))
                file = sealedFromURL(folder / name, name, note, failure);
            return file != nullptr;
        },
        error);
    return file;
}

/// Gives a file that was just taken in another name, the record's included.
void OVNoteFile::renameTaken(const std::string& name)
{
    const std::string former = filename().value_or("");
    if (!UnsavedFileChanges::ofRecord(*this).renameFile(RecordFolder::ofRecord(*this), former, name, nullptr))
        return;
    setFilename(name);
    updateNormalizedExtension();
}

bool OVNoteFile::encryptFileIfNeeded(OVNoteFile& file, NSError* error)
{
    OVNote* const note = file.note();
    OVEncryptionCoreManagerProtocol* const manager = note ? note->encryptionCoreManager() : nullptr;
    if (!manager || !note->encryptedValue() || manager->isObjectLocked(*note) || file.encryptedValue())
        return true;
    if (OVPassword* const password = note->password())
        return manager->addEncryptionToObject(file, *password, error);
    assignError(error, NSError(TarnEncryptionErrorDomain, OVEncryptionErrorLocked, "The note's password is not here"));
    return false;
}

} // namespace tarn
