#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectID.h"
#include "tarnmodel/platform/foundation/values/NSData.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class NSManagedObject;
class OVEncryptionCoreManagerProtocol;
class OVEncryptingPassword;

/// What a protected record stores in place of its clear fields.
struct OVEncryptionState {
    bool encrypted = false;                                ///< whether the record is protected
    std::optional<NSData> encryptedData;                   ///< the clear fields, encrypted; the manager alone reads it
    std::optional<NSDate> encryptionDate;                  ///< when it was encrypted
    std::optional<std::string> encryptionUniqueIdentifier; ///< names the encryption that was applied
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
};

/// A note, as an encryption manager sees it: one field to protect, and attachments to take along.
class OVEncryptableNote : public OVEncryptableObject {
public:
    /// The stored text, never guarded; none while it is held encrypted.
    virtual std::optional<std::string> storedText() const = 0;
    /// Stores the text as it is, unguarded, and tells observers.
    virtual void updatePrimitiveText(std::optional<std::string_view> text) = 0;
};

/// An attachment, as an encryption manager sees it: three fields and a file to protect.
class OVEncryptableNoteFile : public OVEncryptableObject {
public:
    /// The stored fields, never guarded.
    virtual std::optional<std::string> storedFilename() const = 0;
    virtual std::optional<std::string> storedNormalizedFileExtension() const = 0;
    virtual std::optional<std::int64_t> storedFileSize() const = 0; ///< bytes
    /// Stores the field as it is, unguarded, and tells observers.
    virtual void updatePrimitiveFilename(std::optional<std::string_view> filename) = 0;
    virtual void updatePrimitiveNormalizedFileExtension(std::optional<std::string_view> extension) = 0;
    virtual void updatePrimitiveFileSize(std::optional<std::int64_t> bytes) = 0;
};

/// A password record, as an encryption manager sees it. It never holds the clear password.
class OVEncryptingPassword {
public:
    virtual ~OVEncryptingPassword() = default;

    /// The record behind this view of it.
    virtual NSManagedObject& passwordRecord() noexcept = 0;
    virtual const NSManagedObject& passwordRecord() const noexcept = 0;

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
