#pragma once

#include "tarnmodel/encryption/OVEncryptableObject.h"
#include "tarnmodel/model/_OVPassword.h"

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <span>
#include <string_view>
#include <vector>

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

    // As a dictionary (tarnmodel/backup/OVPassword+Backup.cpp) -------------------------------------------------------
    /// The attributes that the dictionary holds, in order: dates as ISO 8601 texts of whole seconds in UTC, data in
    /// base64, all others as they are, flags as 0 and 1.
    static std::span<const std::string_view> dictionaryRepresentationDateKeys() noexcept;
    static std::span<const std::string_view> dictionaryRepresentationDataKeys() noexcept;
    static std::span<const std::string_view> dictionaryRepresentationValueKeys() noexcept;
    /// All of these that are not nil.
    nlohmann::ordered_json dictionaryRepresentation() const;
    /// The password of the dictionary's "uniqueIdentifier", untouched; otherwise a new one with what the dictionary
    /// holds. Null when the store cannot be read, which is logged. Raises `NSInvalidArgumentException` for what is no
    /// dictionary.
    static OVPassword* passwordFromDictionaryRepresentation(
        const nlohmann::ordered_json& dictionary, NSManagedObjectContext& context);
    /// The dictionary as JSON, UTF-8, a key a line; none when a text of it is no UTF-8.
    std::optional<NSData> jsonRepresentation() const;
    /// The same from JSON; null also without data, and when it is no JSON object.
    static OVPassword* passwordFromJsonRepresentation(
        const std::optional<NSData>& json, NSManagedObjectContext& context);
};

} // namespace tarn
