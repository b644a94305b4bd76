#pragma once

#include "tarnmodel/encryption/OVEncryptableObject.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <filesystem>
#include <memory>

namespace tarn {

class NSFileWrapper;

/// What records ask of an encryption manager. A host implements it, or takes the one of the encryption kit, and
/// registers it for a context with `OVEncryptionCoreManager`.
///
/// Called on the queue of the record's context. Readers give the clear value, or none and an error; writers store the
/// value encrypted in the record. A record whose encrypted data cannot be made out counts as locked, so that nothing
/// writes over it.
class OVEncryptionCoreManagerProtocol {
public:
    virtual ~OVEncryptionCoreManagerProtocol();

    /// Whether the protected fields of the record cannot be read now.
    virtual bool isObjectLocked(const OVEncryptableObject& object) const = 0;
    /// Protects a record with a password. False and an error when it stays as it was.
    virtual bool addEncryptionToObject(OVEncryptableObject& object, OVEncryptingPassword& password, NSError* error) = 0;
    /// Protects a new attachment whose bytes lie elsewhere, in a file that stays: only encrypted ones come into its
    /// folder. False and an error when it stays as it was. What a manager of one's own does not override copies the
    /// file first, and protects it then.
    virtual bool addEncryptionToNewFile(OVEncryptableNoteFile& file, const std::filesystem::path& contents,
        OVEncryptingPassword& password, NSError* error);
    /// Whether the clear password is at hand without asking anybody.
    virtual bool hasCachedPassword(const OVEncryptingPassword& password) const = 0;
    /// Keeps what is unlocked readable for the calling thread until the token goes, whatever is locked meanwhile: for
    /// operations over several records, which must not end half-way. Null where nothing is ever locked by itself.
    virtual std::shared_ptr<void> holdUnlocked() { return nullptr; }

    // Notes -----------------------------------------------------------------------------------------------------------
    /// The clear field of a protected record. None when there is none, and with an error when it cannot be read.
    virtual std::optional<std::string> textForNote(const OVEncryptableNote& note, NSError* error) = 0;
    /// Stores the clear field, encrypted. None clears it.
    virtual void setText(std::optional<std::string_view> text, OVEncryptableNote& note) = 0;

    // Attachments -----------------------------------------------------------------------------------------------------
    /// The clear field of a protected attachment. None when there is none, and with an error when it cannot be read.
    virtual std::optional<std::string> filenameForNoteFile(const OVEncryptableNoteFile& file, NSError* error) = 0;
    /// Stores the clear field, encrypted. None clears it.
    virtual void setFilename(std::optional<std::string_view> filename, OVEncryptableNoteFile& file) = 0;
    /// The extension in lower case, without a dot; none as for the name.
    virtual std::optional<std::string> normalizedFileExtensionForNoteFile(
        const OVEncryptableNoteFile& file, NSError* error)
        = 0;
    /// Stores the clear field, encrypted. None clears it.
    virtual void setNormalizedFileExtension(std::optional<std::string_view> extension, OVEncryptableNoteFile& file) = 0;
    /// Bytes; none as for the name.
    virtual std::optional<std::int64_t> fileSizeForNoteFile(const OVEncryptableNoteFile& file, NSError* error) = 0;
    /// Stores the clear field, encrypted. None clears it.
    virtual void setFileSize(std::optional<std::int64_t> bytes, OVEncryptableNoteFile& file) = 0;
    /// The text that was recognised in it; none as for the name. A manager that does not protect it leaves it stored.
    virtual std::optional<std::string> searchTextForNoteFile(const OVEncryptableNoteFile& file, NSError* error);
    /// Stores the clear field, encrypted. None clears it.
    virtual void setSearchText(std::optional<std::string_view> text, OVEncryptableNoteFile& file);
    /// Where the decrypted bytes lie: a copy, which goes when the password is locked. What is written there is lost.
    virtual std::optional<std::filesystem::path> fileURLForNoteFile(const OVEncryptableNoteFile& file, NSError* error)
        = 0;
    /// Stores other bytes, encrypted. False and an error when they cannot be written, or by a manager that protects no
    /// bytes; the former ones are then the file's.
    virtual bool setContents(const NSFileWrapper& contents, OVEncryptableNoteFile& file, NSError* error);
};

} // namespace tarn
