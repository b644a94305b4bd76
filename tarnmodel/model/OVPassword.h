#pragma once

#include "tarnmodel/encryption/OVEncryptableObject.h"
#include "tarnmodel/model/_OVPassword.h"

namespace tarn {

class NSPredicate;

/// What is known about a password: enough for the encryption manager to recognise it, never the password itself.
///
/// Refuses to be deleted while notes or attachments need it. Confined to its context's queue.
class OVPassword : public _OVPassword, public OVEncryptingPassword {
public:
    using _OVPassword::_OVPassword;

    // All in tarnmodel/backup/OVPassword.cpp -------------------------------------------------------------------------
    /// A new record with its identifier, the date of now and the name of this device. Nothing else is set: the
    /// encryption manager fills it.
    static OVPassword* insertInManagedObjectContext(NSManagedObjectContext& context);
    /// The first with this identifier; null when there is none, or when the fetch fails, which is logged.
    static OVPassword* passwordWithUniqueIdentifier(std::string_view uniqueIdentifier, NSManagedObjectContext& context);
    /// All that match; every one without a predicate. Empty when the fetch fails, which is logged.
    static std::vector<OVPassword*> passwordsInManagedObjectContext(
        NSManagedObjectContext& context, const std::optional<NSPredicate>& predicate);

    /// Every note and every attachment that it protects; new on every call.
    std::vector<OVEncryptableObject*> encryptableObjects() const override;

    NSManagedObject& passwordRecord() noexcept override { return *this; }
    const NSManagedObject& passwordRecord() const noexcept override { return *this; }
    std::string passwordIdentifier() const override { return uniqueIdentifier().value_or(""); }
    std::optional<NSData> verifier() const override { return encryptedData(); }
    void setVerifier(const std::optional<NSData>& verifier) override { setEncryptedData(verifier); }
    std::int16_t verifierVersion() const override { return encryptionVersionValue(); }
    void setVerifierVersion(std::int16_t version) override { setEncryptionVersionValue(version); }
    std::optional<NSData> passwordHint() const override { return hint(); }
    void setPasswordHint(const std::optional<NSData>& hint) override { setHint(hint); }
    bool allowsBiometry() const override { return biometryValue(); }
    void setAllowsBiometry(bool allows) override { setBiometryValue(allows); }
};

} // namespace tarn
