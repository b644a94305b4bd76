#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectID.h"
#include "tarnmodel/platform/foundation/values/NSData.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class NSError;
class NSManagedObject;
class OVEncryptionCoreManagerProtocol;
class OVEncryptingPassword;

/// What a protected record stores in place of its clear fields.
struct OVEncryptionState {
    bool encrypted = false;                                ///< whether the record is protected
    std::optional<NSData> encryptedData;                   ///< the clear fields, encrypted; the manager alone reads it
    std::optional<NSDate> encryptionDate;                  ///< when it was encrypted
    std::optional<std::string> encryptionUniqueIdentifier; ///< names the encryption: new at protecting, kept by copies
    OVEncryptingPassword* password = nullptr;              ///< borrowed from the same context
};

/// A record that can be protected by a password: a note or an attachment.
///
/// Confined to its context's queue, like the record itself.
class OVEncryptableObject {
public:
    virtual ~OVEncryptableObject() = default;

    /// The record behind this view of it.
    virtual NSManagedObject& encryptableRecord() noexcept = 0;
    virtual const NSManagedObject& encryptableRecord() const noexcept = 0;

    /// Whether the record, or something that belongs to it, is protected.
    virtual bool hasEncryption() const = 0;
    /// What the manager says; without one, a protected record counts as locked.
    virtual bool hasEncryptionAndIsLocked() const = 0;
    /// The manager of the record's context; null when protection is not active there.
    virtual OVEncryptionCoreManagerProtocol* encryptionCoreManager() const = 0;

    /// What is stored, never guarded.
    virtual OVEncryptionState encryptionState() const = 0;
    virtual void setEncryptionState(const OVEncryptionState& state) = 0;

    // Members of the state alone, which every access to a protected field needs.
    /// Whether the record's own fields are held encrypted.
    virtual bool isEncrypted() const = 0;
    /// Its `encryptedData`.
    virtual std::optional<NSData> sealedFields() const = 0;
    virtual void setSealedFields(const NSData& sealed) = 0;
    /// Its `encryptionUniqueIdentifier`.
    virtual std::optional<std::string> encryptionIdentifier() const = 0;

    // What the record does about its protection, besides the manager.
    /// Before it is protected: takes away what was made of its clear fields and can be made again, such as thumbnails.
    /// False and an error when that fails; the record is then not protected.
    virtual bool prepareToAddEncryption(NSError* error) = 0;
    /// The state says that it is protected, and the clear fields are gone: what was derived from them goes, too.
    virtual void didAddEncryption() = 0;
    /// The clear fields are stored again, and the state says that it is not protected: derives from them.
    virtual void didRemoveEncryption() = 0;
};

class OVEncryptableNoteFile;

/// A note, as an encryption manager sees it: one field to protect, and attachments to take along.
class OVEncryptableNote : public OVEncryptableObject {
public:
    /// The stored text, never guarded; none while it is held encrypted.
    virtual std::optional<std::string> storedText() const = 0;
    /// Stores the text as it is, unguarded, and tells observers.
    virtual void updatePrimitiveText(std::optional<std::string_view> text) = 0;
    /// Its attachments, whether the text uses them or not; borrowed from the note's context.
    virtual std::vector<OVEncryptableNoteFile*> encryptableFiles() const = 0;
};

/// An attachment, as an encryption manager sees it: four fields and a file to protect.
class OVEncryptableNoteFile : public OVEncryptableObject {
public:
    /// The stored fields, never guarded.
    virtual std::optional<std::string> storedFilename() const = 0;
    virtual std::optional<std::string> storedNormalizedFileExtension() const = 0;
    virtual std::optional<std::int64_t> storedFileSize() const = 0;  ///< bytes
    virtual std::optional<std::string> storedSearchText() const = 0; ///< text that was recognised in it
    /// Stores the field as it is, unguarded, and tells observers.
    virtual void updatePrimitiveFilename(std::optional<std::string_view> filename) = 0;
    virtual void updatePrimitiveNormalizedFileExtension(std::optional<std::string_view> extension) = 0;
    virtual void updatePrimitiveFileSize(std::optional<std::int64_t> bytes) = 0;
    virtual void updatePrimitiveSearchText(std::optional<std::string_view> text) = 0;

    // The file: what lies on disk under the stored name, never guarded.
    /// Whether its bytes are on this device, as the record says.
    virtual bool hasFileHere() const = 0;
    /// Where they lie, or are to lie; none without a name.
    virtual std::optional<std::filesystem::path> storedFileURL() const = 0;
    /// Puts another file in the place of its file, under a name that nothing in its folder has, and stores that name.
    /// `write` makes the file where it is told. The new file is on disk for good before the context is saved, and goes
    /// when the changes are dropped; the former file goes once they are saved, and is the record's again when they are
    /// dropped. False and an error, and all as it was, when `write` or the folder fails.
    virtual bool exchangeStoredFile(std::string_view name,
        const std::function<bool(const std::filesystem::path& place, NSError* error)>& write, NSError* error)
        = 0;
};

/// A password record, as an encryption manager sees it. It never holds the clear password.
class OVEncryptingPassword {
public:
    virtual ~OVEncryptingPassword() = default;

    /// The record behind this view of it.
    virtual NSManagedObject& passwordRecord() noexcept = 0;
    virtual const NSManagedObject& passwordRecord() const noexcept = 0;

    /// Names the record for good: what is kept of the password is bound to it.
    virtual std::string passwordIdentifier() const = 0;
    /// By which the manager recognises the password; none until it was set.
    virtual std::optional<NSData> verifier() const = 0;
    virtual void setVerifier(const std::optional<NSData>& verifier) = 0;
    /// Which scheme the encryption uses, as the manager numbers them.
    virtual std::int16_t verifierVersion() const = 0;
    virtual void setVerifierVersion(std::int16_t version) = 0;
    /// What reminds the user of the password; the manager alone reads it. None without a hint.
    virtual std::optional<NSData> passwordHint() const = 0;
    virtual void setPasswordHint(const std::optional<NSData>& hint) = 0;
    /// Whether it may be unlocked without typing.
    virtual bool allowsBiometry() const = 0;
    virtual void setAllowsBiometry(bool allows) = 0;

    /// Every note and every attachment that it protects; new on every call.
    virtual std::vector<OVEncryptableObject*> encryptableObjects() const = 0;
};

} // namespace tarn
