#include "tarnmodel/encryption/sealing/SealedRecord.h"

#include "tarnmodel/encryption/keys/ByteFields.h"
#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/keys/SodiumInternal.h"

namespace tarn {
namespace {

// All of this is on disk: docs/encryption.md has the same table.
constexpr std::string_view kRecordMagic = "TARNSEAL";
constexpr std::byte kRecordVersion{1};
constexpr std::size_t kRecordVersionAt = 8;
constexpr std::size_t kKindAt = 9;
constexpr std::size_t kMasterKeyAt = 10;
constexpr std::size_t kKeyNonceAt = kMasterKeyAt + sizeof(MasterKeyIdentifier);
constexpr std::size_t kKeyAt = kKeyNonceAt + sizeof(EncryptionNonce);
constexpr std::size_t kKeySumAt = kKeyAt + sizeof(WrappedKey);
constexpr std::size_t kNonceAt = kKeySumAt + sizeof(KeyedSum);
constexpr std::size_t kFieldsAt = kNonceAt + sizeof(EncryptionNonce);
constexpr std::size_t kTagLength = crypto_aead_xchacha20poly1305_ietf_ABYTES;
constexpr std::string_view kFieldsWord = "fields";

/// What the fields are bound to: all before them, and the record.
std::vector<std::byte> contextOfFields(std::span<const std::byte> head, std::string_view identifier)
{
    return joined({head.first(kFieldsAt), bytesOfText(kFieldsWord), bytesOfText(identifier)});
}

/// The head of a sealed record up to the nonce, and behind that the fields encrypted.
NSData sealFields(std::span<const std::byte> headToNonce, const ClearFields& fields, RecordKind kind,
    std::string_view identifier, const SecretBytes& fieldKey)
{
    std::vector<std::byte> payload = serializedFields(fields, kind);
    const WipedAtEnd wiped(payload);
    const auto nonce = randomArray<EncryptionNonce>();
    std::vector<std::byte> bytes;
    bytes.reserve(kFieldsAt + payload.size() + kTagLength);
    append(bytes, headToNonce);
    append(bytes, nonce);
    const std::vector<std::byte> context = contextOfFields(bytes, identifier);
    bytes.resize(kFieldsAt + payload.size() + kTagLength);
    crypto_aead_xchacha20poly1305_ietf_encrypt(octets(std::span(bytes).subspan(kFieldsAt)), nullptr,
        octets(std::span(payload)), payload.size(), octets(std::span(context)), context.size(), nullptr,
        octets(std::span(nonce)), octets(fieldKey.span()));
    return NSData(std::move(bytes));
}

} // namespace

std::optional<MasterKeyIdentifier> SealedRecord::masterKeyOf(const NSData& data, RecordKind kind, NSError* error)
{
    const std::span<const std::byte> bytes = data.span();
    if (bytes.size() <= kRecordVersionAt || !data.text().starts_with(kRecordMagic)
        || bytes[kRecordVersionAt] != kRecordVersion) {
        failEncryption(error, OVEncryptionErrorUnknownVersion);
        return std::nullopt;
    }
    if (bytes.size() < kFieldsAt + kTagLength || bytes[kKindAt] != static_cast<std::byte>(kind)) {
        failEncryption(error, OVEncryptionErrorDamaged);
        return std::nullopt;
    }
    return arrayOf<sizeof(MasterKeyIdentifier)>(bytes.subspan(kMasterKeyAt));
}

std::optional<SealedRecord> SealedRecord::open(
    NSData data, RecordKind kind, std::string_view identifier, const MasterKey& masterKey, NSError* error)
{
    const auto wanted = masterKeyOf(data, kind, error);
    if (!wanted)
        return std::nullopt;
    SealedRecord record(std::move(data), kind, identifier);
    if (!record.openKeys(masterKey, error))
        return std::nullopt;
    if (!record.isWhole()) {
        failEncryption(error, OVEncryptionErrorDamaged);
        return std::nullopt;
    }
    return record;
}

bool SealedRecord::openKeys(const MasterKey& masterKey, NSError* error)
{
    const std::span<const std::byte> bytes = data_.span();
    const auto wrapping = keyForUse(*masterKey.key, KeyUse::ObjectKeyWrapping, error);
    if (!wrapping)
        return false;
    auto objectKey = unwrapKey(arrayOf<sizeof(WrappedKey)>(bytes.subspan(kKeyAt)), *wrapping,
        arrayOf<sizeof(EncryptionNonce)>(bytes.subspan(kKeyNonceAt)),
        joined({bytes.first(kKeyAt), bytesOfText(identifier_)}), error);
    if (!objectKey)
        return false;
    const auto commitment = keyForUse(*objectKey, KeyUse::ObjectKeyCommitment, error);
    if (!commitment)
        return false;
    if (!sumsAreEqual(keyedSum(*commitment, {bytes.first(kKeySumAt), bytesOfText(identifier_)}),
            arrayOf<sizeof(KeyedSum)>(bytes.subspan(kKeySumAt))))
        return failEncryption(error, OVEncryptionErrorDamaged);
    return takeKeys(std::move(*objectKey), error);
}

bool SealedRecord::takeKeys(SecretBytes objectKey, NSError* error)
{
    auto fieldKey = keyForUse(objectKey, KeyUse::FieldEncryption, error);
    if (!fieldKey)
        return false;
    keys_ = std::make_shared<const RecordKeys>(RecordKeys{std::move(objectKey), std::move(*fieldKey)});
    return true;
}

bool SealedRecord::isWhole() const
{
    const std::span<const std::byte> bytes = data_.span();
    const std::vector<std::byte> context = contextOfFields(bytes, identifier_);
    const auto fields = bytes.subspan(kFieldsAt);
    return crypto_aead_xchacha20poly1305_ietf_decrypt_detached(nullptr, nullptr, octets(fields),
               fields.size() - kTagLength, octets(fields.last(kTagLength)), octets(std::span(context)), context.size(),
               octets(bytes.subspan(kNonceAt)), octets(keys_->fieldKey.span()))
        == 0;
}

std::optional<SealedRecord> SealedRecord::seal(
    const ClearFields& fields, RecordKind kind, std::string_view identifier, const MasterKey& masterKey, NSError* error)
{
    auto objectKey = newKey(error);
    const auto wrapping = keyForUse(*masterKey.key, KeyUse::ObjectKeyWrapping, error);
    if (!objectKey || !wrapping)
        return std::nullopt;
    const auto commitment = keyForUse(*objectKey, KeyUse::ObjectKeyCommitment, error);
    if (!commitment)
        return std::nullopt;
    const auto nonce = randomArray<EncryptionNonce>();
    std::vector<std::byte> head;
    append(head, bytesOfText(kRecordMagic));
    head.push_back(kRecordVersion);
    head.push_back(static_cast<std::byte>(kind));
    append(head, masterKey.identifier);
    append(head, nonce);
    append(head, wrapKey(*objectKey, *wrapping, nonce, joined({head, bytesOfText(identifier)})));
    append(head, keyedSum(*commitment, {head, bytesOfText(identifier)}));
    SealedRecord record({}, kind, identifier);
    if (!record.takeKeys(std::move(*objectKey), error))
        return std::nullopt;
    record.data_ = sealFields(head, fields, kind, identifier, record.keys_->fieldKey);
    return record;
}

SealedRecord SealedRecord::withFields(const ClearFields& fields) const
{
    SealedRecord record({}, kind_, identifier_);
    record.keys_ = keys_;
    record.data_ = sealFields(data_.span().first(kNonceAt), fields, kind_, identifier_, keys_->fieldKey);
    return record;
}

std::optional<ClearFields> SealedRecord::fields(NSError* error) const
{
    const std::span<const std::byte> bytes = data_.span();
    const auto encrypted = bytes.subspan(kFieldsAt);
    std::vector<std::byte> payload(encrypted.size() - kTagLength);
    const WipedAtEnd wiped(payload);
    const std::vector<std::byte> context = contextOfFields(bytes, identifier_);
    const bool isSound = crypto_aead_xchacha20poly1305_ietf_decrypt(octets(std::span(payload)), nullptr, nullptr,
                             octets(encrypted), encrypted.size(), octets(std::span(context)), context.size(),
                             octets(bytes.subspan(kNonceAt)), octets(keys_->fieldKey.span()))
        == 0;
    auto fields = isSound ? fieldsFromBytes(payload, kind_) : std::nullopt;
    if (!fields)
        failEncryption(error, OVEncryptionErrorDamaged);
    return fields;
}

MasterKeyIdentifier SealedRecord::masterKey() const noexcept
{
    return arrayOf<sizeof(MasterKeyIdentifier)>(data_.span().subspan(kMasterKeyAt));
}

} // namespace tarn
