#pragma once

#include "tarnmodel/encryption/OVEncryptableObject.h"
#include "tarnmodel/model/_OVNoteFile.h"
#include "tarnmodel/platform/foundation/values/FileURL.h"

#include <filesystem>

namespace tarn {

class NSError;

/// One attachment of a note: an image or any other file. Its bytes lie in a folder of its own, named by its identifier.
///
/// Confined to its context's queue.
class OVNoteFile : public _OVNoteFile, public OVEncryptableNoteFile {
public:
    using _OVNoteFile::_OVNoteFile;

    // Use (tarnmodel/files/OVNoteFile+State.cpp) ---------------------------------------------------------------------
    using _OVNoteFile::setUnused;
    /// Marks it as named by no text, with the date of now; nothing when it is so already.
    void setUnused();
    /// Marks it as named by a text, with the date of now; nothing when it is so already.
    void setInUse();
    /// Whether no text names it.
    bool isUnused() const { return unusedValue(); }
    /// Deletes the record from its context.
    void permanentlyDelete();
    /// Whether the name is this, both percent-decoded and in canonical composition. A name with a malformed escape is
    /// equal to none.
    bool filenameIsEqualTo(std::string_view filename) const;

    // Import (tarnmodel/files/OVNoteFile+Import.cpp) -----------------------------------------------------------------
    /// The attachment of `note` made from a file, or the unused one that holds the same. Null and an error when it
    /// cannot be attached; this version cannot attach files yet.
    static OVNoteFile* getOrCreateFileFromURL(const FileURL& url, OVNote& note, NSError* error);

    // Copies (tarnmodel/files/OVNoteFile+Copying.cpp) ----------------------------------------------------------------
    /// A new random identifier.
    void updateUniqueIdentifier();
    /// A new record like this one, with an identifier of its own, not uploaded yet, and of no note.
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
    /// Where its bytes lie; none while they lie nowhere.
    std::optional<std::filesystem::path> fileURL() const;

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

protected:
    /// What every new attachment gets: its identifier, the date of now and version 3.
    void setInsertionValues();
};

} // namespace tarn
