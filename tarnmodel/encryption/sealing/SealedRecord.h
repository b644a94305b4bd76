#pragma once

#include "tarnmodel/encryption/keys/PasswordBlob.h"
#include "tarnmodel/encryption/sealing/ClearFields.h"
#include "tarnmodel/platform/foundation/values/NSData.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The key of one record and what is made of it.
struct RecordKeys {
    SecretBytes objectKey;
    SecretBytes fieldKey;
};

/// The encrypted fields of one record, with the key that opens them: they were found to be as they were written. The
/// format is in docs/encryption.md.
class SealedRecord {
public:
    /// Which master key has to be at hand; none and an error when the data is of no such record.
    static std::optional<MasterKeyIdentifier> masterKeyOf(const NSData& data, RecordKind kind, NSError* error);
    /// None and "damaged" when it was not written so for a record of this kind and identifier.
    static std::optional<SealedRecord> open(
        NSData data, RecordKind kind, std::string_view identifier, const MasterKey& masterKey, NSError* error);
    /// Fields under a new key of their own.
    static std::optional<SealedRecord> seal(const ClearFields& fields, RecordKind kind, std::string_view identifier,
        const MasterKey& masterKey, NSError* error);

    /// Other fields under the same key.
    SealedRecord withFields(const ClearFields& fields) const;
    /// The fields, decrypted; none and "damaged" when they cannot be made out.
    std::optional<ClearFields> fields(NSError* error) const;

    const NSData& data() const noexcept { return data_; }
    RecordKind kind() const noexcept { return kind_; }
    const std::string& identifier() const noexcept { return identifier_; }
    MasterKeyIdentifier masterKey() const noexcept;
    const SecretBytes& objectKey() const noexcept { return keys_->objectKey; }

private:
    SealedRecord(NSData data, RecordKind kind, std::string_view identifier) noexcept
        : data_(std::move(data)), kind_(kind), identifier_(identifier)
    { }
    bool openKeys(const MasterKey& masterKey, NSError* error);
    bool takeKeys(SecretBytes objectKey, NSError* error);
    bool isWhole() const;

    NSData data_;
    RecordKind kind_;
    std::string identifier_;
    std::shared_ptr<const RecordKeys> keys_;
};

} // namespace tarn
