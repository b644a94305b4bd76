#pragma once

#include "tarnmodel/encryption/OVEncryptableObject.h"
#include "tarnmodel/model/_OVNoteFile.h"
#include "tarnmodel/platform/foundation/values/FileURL.h"

#include <nlohmann/json_fwd.hpp>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class NSError;
class NSFileWrapper;
class NSPredicate;
class OVLocalFileManager;

/// One attachment of a note: an image or any other file. Its bytes lie in a folder of its own, named by its identifier.
///
/// Confined to its context's queue.
class OVNoteFile : public _OVNoteFile, public OVEncryptableNoteFile {
public:
    using _OVNoteFile::_OVNoteFile;

    // Kinds (tarnmodel/files/OVNoteFile+Kinds.cpp) -------------------------------------------------------------------
    /// One of the two classes that attachments are made of.
    struct Kind {
        std::string_view entityName;                  ///< of the class
        bool (*canImportFileURL)(const FileURL& url); ///< its operation of that name
        /// Its operation of that name.
        OVNoteFile* (*noteFileForFileURL)(const FileURL& url, NSManagedObjectContext& context, NSError* error);
        /// The same record without the bytes, which come in another way.
        OVNoteFile* (*recordForFileURL)(const FileURL& url, NSManagedObjectContext& context, NSError* error);
    };
    /// `OVNoteImage` and `OVNoteGenericFile`: the first one that can import a file does.
    static std::span<const Kind> concreteSubclasses() noexcept;
    /// Whether one of the kinds imports such a file; the name is looked at, not the file.
    static bool canImportFileURL(const FileURL& url);
    /// Where files of this kind lie, below the persistent data folder.
    virtual std::string localFolderName() const;
    /// What a server keeps of it besides its bytes, by name.
    virtual std::map<std::string, Value> additionalFileData() const;

    // Fetching (tarnmodel/files/OVNoteFile+Fetching.cpp) -------------------------------------------------------------
    // Of all kinds. A failed fetch is logged and gives nothing. On the context's queue.
    /// All that the predicate picks; all there are without one.
    static std::vector<OVNoteFile*> filesInManagedObjectContext(
        NSManagedObjectContext& context, const std::optional<NSPredicate>& withPredicate);
    /// Those that passwords of the store protect: found from these, by an index, and not among all that are clear. One
    /// whose password has not come yet is not among them.
    static std::vector<OVNoteFile*> filesWithPasswordInManagedObjectContext(NSManagedObjectContext& context);
    /// The first one of this identifier; null for none.
    static OVNoteFile* noteFileWithUniqueIdentifier(std::string_view uniqueIdentifier, NSManagedObjectContext& context);
    /// Those of these identifiers.
    static std::vector<OVNoteFile*> noteFilesWithUniqueIdentifiers(
        const std::vector<std::string>& uniqueIdentifiers, NSManagedObjectContext& context);
    /// Those whose bytes are on the server and not here.
    static std::vector<OVNoteFile*> noteFilesToDownloadInManagedObjectContext(NSManagedObjectContext& context);
    /// Those of a note whose bytes are here, on disk, and not on the server.
    static std::vector<OVNoteFile*> noteFilesToUploadInManagedObjectContext(NSManagedObjectContext& context);
    /// Whether it is one of these, and one of those.
    bool isToDownload() const { return !downloadedValue() && uploadedValue(); }
    bool isToUpload() const;
    /// How many `noteFilesToDownloadInManagedObjectContext` gives.
    static std::size_t numberOfFileToDownloadInManagedObjectContext(NSManagedObjectContext& context);
    /// How many are marked as here and not on the server: more than are to be uploaded where one has no note, or no
    /// file on disk.
    static std::size_t numberOfFileToUploadInManagedObjectContext(NSManagedObjectContext& context);
    /// Deletes all that no text names; on the main thread with their bytes.
    static void deleteAllUnusedNoteFilesInManagedObjectContext(NSManagedObjectContext& context);

    // Use and upload (tarnmodel/files/OVNoteFile+State.cpp) ----------------------------------------------------------
    using _OVNoteFile::setUnused;
    /// Marks it as named by no text, with the date of now; nothing when it is so already.
    void setUnused();
    /// Marks it as named by a text, with the date of now; nothing when it is so already.
    void setInUse();
    /// Whether no text names it.
    bool isUnused() const { return unusedValue(); }
    /// Marks its bytes as not on the server yet, with the date of now.
    void markForUpload();
    /// After its bytes have changed: drops its thumbnails, reads its metadata anew and marks it for upload.
    void updateAttachmentAndMarkForUpload();
    /// Writes other bytes over its file, and does what follows from that; of a protected one the manager does. Until
    /// the context is saved a rollback brings the former bytes back. False and an error when they cannot be written:
    /// then all is as it was. Raises "Invalid accessor" while it is locked, or protected without a manager.
    bool updateAttachmentWithFileWrapper(const NSFileWrapper& fileWrapper, NSError* error = nullptr);
    /// Deletes the record from its context.
    void permanentlyDelete();
    /// Before the record goes, and on the main thread only: moves its folder aside, which is removed once the deletion
    /// is saved and comes back when that is dropped; thumbnails go with it. Elsewhere the bytes stay on disk.
    void prepareForDeletion() override;

    // Names and metadata (tarnmodel/files/OVNoteFile+Metadata.cpp) ---------------------------------------------------
    /// Whether the name is this, both percent-decoded and in canonical composition. A name with a malformed escape is
    /// equal to none.
    bool filenameIsEqualTo(std::string_view filename) const;
    /// Renames the record, and its file where that is here; what a name may not hold becomes "_". An error, and the
    /// name as it was, when the file cannot be renamed. A protected one keeps its file's name, which says nothing.
    /// Raises "Invalid accessor" while it is locked, or protected without a manager.
    void renameWithFilename(std::string_view filename, NSError* error = nullptr);
    /// Reads size and dates of its file; 0 and none when there is none. Nothing while it is locked. Of a protected one
    /// the size is that of the decrypted bytes; nothing when they cannot be read.
    virtual void updateFileMetadata();
    /// The extension that the type of its name's extension prefers; empty without a type.
    void updateNormalizedExtension();

    // Import (tarnmodel/files/OVNoteFile+Import.cpp) -----------------------------------------------------------------
    // Bytes are on disk when the record is made, durable before it is saved, and gone when its insertion is dropped.
    // What is attached to a protected note is protected, or not attached: null and an error when that fails, and
    // "Invalid accessor" while the note is locked, or protected without a manager.
    /// A new attachment of no note yet, of the first kind that can import the file. Null and an error when none can.
    static OVNoteFile* factoryNoteFileForFileURL(
        const FileURL& url, NSManagedObjectContext& context, NSError* error = nullptr);
    /// The attachment of `note` made from a file, or the unused one that holds the same. A name that an attachment in
    /// use has gets a counter. Null and an error when it cannot be attached; then nothing has changed.
    static OVNoteFile* getOrCreateFileFromURL(const FileURL& url, OVNote& note, NSError* error = nullptr);
    /// The same of what an application hands over. Null and an error also when it has no name.
    static OVNoteFile* getOrCreateFileFromFileWrapper(
        const NSFileWrapper& fileWrapper, OVNote& note, NSError* error = nullptr);
    /// The name that a new attachment of `note` gets: with a counter where one in use has it, without white space
    /// around it where none has it. `matchedNoteFile` becomes the unused attachment of that name and the same bytes,
    /// if there is one; `fileData` gives the bytes, and is asked once for each unused one that is looked at.
    static std::string safeFilenameForFilename(std::string_view filename, const OVNote& note,
        OVNoteFile*& matchedNoteFile, const std::function<NSFileWrapper()>& fileData);
    /// Takes an attachment that was just made, and never saved, out of its context again, and from the disk at once.
    void takeBack();
    /// Protects a new attachment of an encrypted, unlocked note as the note is; nothing otherwise. False and an error
    /// when it could not be protected, or there is no password to protect it with.
    static bool encryptFileIfNeeded(OVNoteFile& file, NSError* error = nullptr);

    // Its folder (tarnmodel/files/OVNoteFile+Folder.cpp) -------------------------------------------------------------
    /// Copies a file into its folder, under its own name, or under the stored one where there is one. Where the copy
    /// lies; none and an error ("Tarn Model" 1 without an identifier).
    std::optional<std::filesystem::path> copyFileToLocalFolder(const FileURL& url, NSError* error = nullptr);
    /// The same, but the source is gone afterwards.
    std::optional<std::filesystem::path> moveFileToLocalFolder(const FileURL& url, NSError* error = nullptr);
    /// Where its bytes lie, or are to lie; none without a name. Guarded like the name.
    std::optional<std::filesystem::path> fileURL() const;
    /// The same by the stored name, unguarded.
    std::optional<std::filesystem::path> primitiveFileURL() const;
    /// The manager of the folder of its kind.
    std::shared_ptr<OVLocalFileManager> localFileManager() const;
    /// Moves its folder out of sight; it is removed once the context is saved, and comes back on a rollback.
    void deleteFileLocalFolder();
    /// Deletes all thumbnails of a picture; nothing for other files, and for protected ones.
    virtual void deleteFileThumbnails() { }
    /// After the store was opened: brings files and records in step where a process died over unsaved changes. Folders
    /// that were moved aside for deletions that never were saved come back, what was imported for records that never
    /// were saved goes. What living processes have under way stays alone. A failure is logged, and all left for the
    /// next time. On the context's queue.
    static void recoverFilesInManagedObjectContext(NSManagedObjectContext& context);
    /// After that: removes what lies in the folders of protected attachments beside their files, such as clear copies
    /// that a loss of power brought back. What living processes have under way stays, and what lies beside a file that
    /// is missing, which is logged. How many went. Costs nothing without protected attachments, and
    /// nothing for clear ones. On the context's queue.
    static std::size_t removeClearLeftoversInManagedObjectContext(NSManagedObjectContext& context);

    // Copies (tarnmodel/files/OVNoteFile+Copying.cpp) ----------------------------------------------------------------
    /// A new random identifier.
    void updateUniqueIdentifier();
    /// A new record like this one, with an identifier and a copy of the file of its own, not uploaded yet, and of no
    /// note. A file that cannot be copied is logged.
    OVNoteFile* duplicate() const;

    // Protection (tarnmodel/files/OVNoteFile+Encryption.cpp) ---------------------------------------------------------
    // Of an encrypted attachment these read and write through the encryption manager, and raise "Invalid accessor" when
    // it says that the attachment is locked. Without a manager, or without encryption, they read and write what is
    // stored.
    std::optional<std::string> filename() const override;
    void setFilename(std::optional<std::string_view> filename) override;
    std::optional<std::string> normalizedFileExtension() const override;
    void setNormalizedFileExtension(std::optional<std::string_view> extension) override;
    std::optional<std::int64_t> fileSize() const override;
    void setFileSize(std::optional<std::int64_t> bytes) override;
    std::optional<std::string> searchText() const override;
    void setSearchText(std::optional<std::string_view> text) override;
    /// What is stored: unguarded, and announced when written.
    std::optional<std::string> storedFilename() const override { return primitiveFilename(); }
    std::optional<std::string> storedNormalizedFileExtension() const override
    {
        return primitiveNormalizedFileExtension();
    }
    std::optional<std::int64_t> storedFileSize() const override { return primitiveFileSize(); }
    void updatePrimitiveFilename(std::optional<std::string_view> filename) override;
    void updatePrimitiveNormalizedFileExtension(std::optional<std::string_view> extension) override;
    void updatePrimitiveFileSize(std::optional<std::int64_t> bytes) override;

    bool hasEncryption() const override { return encryptedValue(); }
    bool hasEncryptionAndIsLocked() const override;
    OVEncryptionCoreManagerProtocol* encryptionCoreManager() const override;
    NSManagedObject& encryptableRecord() noexcept override { return *this; }
    const NSManagedObject& encryptableRecord() const noexcept override { return *this; }
    OVEncryptionState encryptionState() const override;
    void setEncryptionState(const OVEncryptionState& state) override;
    bool isEncrypted() const override { return encryptedValue(); }
    std::optional<NSData> sealedFields() const override { return encryptedData(); }
    void setSealedFields(const NSData& sealed) override { setEncryptedData(sealed); }
    std::optional<std::string> encryptionIdentifier() const override { return encryptionUniqueIdentifier(); }
    /// What was recognised in an attachment that another writer has protected meanwhile goes to what is encrypted,
    /// where it is unlocked; else it is dropped, which is logged. So no save leaves it in clear.
    void willSave() override;
    void deriveFromOthers() override;
    bool prepareToAddEncryption(NSError* error) override;
    void didAddEncryption() override;
    void didRemoveEncryption() override;
    std::optional<std::string> storedSearchText() const override { return primitiveSearchText(); }
    void updatePrimitiveSearchText(std::optional<std::string_view> text) override;
    bool hasFileHere() const override { return downloadedValue(); }
    std::optional<std::filesystem::path> storedFileURL() const override { return primitiveFileURL(); }
    bool exchangeStoredFile(std::string_view name,
        const std::function<bool(const std::filesystem::path& place, NSError* error)>& write, NSError* error) override;

    // As a dictionary (tarnmodel/backup/OVNoteFile+Backup.cpp) -------------------------------------------------------
    // The stored fields of the record and its password; not its identifier, its bytes and its note.
    /// The attributes that the dictionary holds, in order: dates as ISO 8601 texts of whole seconds in UTC, data in
    /// base64, all others as they are, flags as 0 and 1.
    static std::span<const std::string_view> dictionaryRepresentationDateKeys() noexcept;
    static std::span<const std::string_view> dictionaryRepresentationDataKeys() noexcept;
    static std::span<const std::string_view> dictionaryRepresentationValueKeys() noexcept;
    /// What is not nil, and the dictionary of its password as "password". Raises "Invalid accessor" when it is locked.
    nlohmann::ordered_json dictionaryRepresentation() const;
    /// Sets what the dictionary has an entry for, through the accessors above: of a protected attachment without a
    /// manager, or unlocked. Dates that cannot be read leave the field as it was, data that cannot be decoded clears
    /// it. The password is the one of that identifier, or a new one. Raises `NSInvalidArgumentException` for what is
    /// no dictionary.
    void loadDictionaryRepresentation(const nlohmann::ordered_json& dictionary);
    /// The attachment of the dictionary's "uniqueIdentifier" (one without an identifier where there is no such entry),
    /// untouched; otherwise a new one of no kind, without an identifier, loaded from it. Null when the store cannot be
    /// read, which is logged; raises like the two above, and then nothing is inserted.
    static OVNoteFile* noteFileFromDictionaryRepresentation(
        const nlohmann::ordered_json& dictionary, NSManagedObjectContext& context);
    /// The dictionary as JSON, UTF-8, a key a line; none when a text of it is no UTF-8.
    std::optional<NSData> jsonRepresentation() const;
    /// The same from JSON; null also without data, and when it is no JSON object.
    static OVNoteFile* noteFileFromJsonRepresentation(
        const std::optional<NSData>& json, NSManagedObjectContext& context);

protected:
    /// What every new attachment gets: its identifier, the date of now and version 3.
    void setInsertionValues();
    /// Takes in a file whose record was just inserted; without it, the record goes again.
    OVNoteFile* takeFile(const FileURL& url, NSError* error);

private:
    void renameTaken(const std::string& name);
    static OVNoteFile* sealedFromURL(const FileURL& url, const std::string& name, OVNote& note, NSError* error);
    static OVNoteFile* sealedFromFileWrapper(
        const NSFileWrapper& fileWrapper, const std::string& name, OVNote& note, NSError* error);
    void describeFile(const FileURL& url, const std::string& name);
    OVNoteFile* revived(NSError* error);
    void giveStoredFileItsDate() const;
    void leaveNoSearchTextInClear();
    /// The manager to ask; null where it is not protected. Raises where the protected fields cannot be read.
    OVEncryptionCoreManagerProtocol* requireOpen() const;
    void takeCopyOfFile(const OVNoteFile& source);

    bool storesSearchTextAsIs_ = false; ///< it was set without a manager, of a record that was known to be protected
};

} // namespace tarn
