#include "tarnmodel/encryption/keys/PasswordBlob.h"

#include "tarnmodel/encryption/keys/ByteFields.h"
#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/keys/SodiumInternal.h"

namespace tarn {
namespace {

// All of this is on disk: docs/encryption.md has the same table.
constexpr std::string_view kPasswordMagic = "TARNKEYS";
constexpr std::byte kArgon2id{1};
constexpr std::size_t kVersionAt = 8;
constexpr std::size_t kDerivationAt = 9;
constexpr std::size_t kPassesAt = 10;
constexpr std::size_t kMemoryAt = 14;
constexpr std::size_t kSaltAt = 18;
constexpr std::size_t kCommitmentAt = 34;
constexpr std::size_t kNewestAt = 66;
constexpr std::size_t kNewestNonceAt = kNewestAt + sizeof(MasterKeyIdentifier);
constexpr std::size_t kNewestKeyAt = kNewestNonceAt + sizeof(EncryptionNonce);
constexpr std::size_t kCountAt = kNewestKeyAt + sizeof(WrappedKey);
constexpr std::size_t kFormerAt = kCountAt + sizeof(std::uint16_t);
constexpr std::size_t kFormerLength = sizeof(MasterKeyIdentifier) + sizeof(EncryptionNonce) + sizeof(WrappedKey);
constexpr std::size_t kPlainSumLength = 16;
constexpr std::size_t kEndLength = sizeof(KeyedSum) + kPlainSumLength;

using PlainSum = std::array<std::byte, kPlainSumLength>;

/// Tells damage from a wrong password; anybody can make it.
PlainSum plainSum(std::span<const std::byte> bytes)
{
    PlainSum sum;
    crypto_generichash(octets(std::span(sum)), sum.size(), octets(bytes), bytes.size(), nullptr, 0);
    return sum;
}

/// What a former key is bound to.
std::vector<std::byte> contextOfFormerKey(
    const MasterKeyIdentifier& newest, const MasterKeyIdentifier& former, std::string_view recordIdentifier)
{
    const auto version = littleEndian(static_cast<std::uint8_t>(passwordBlobVersion));
    return joined({version, newest, former, bytesOfText(recordIdentifier)});
}

void appendHead(std::vector<std::byte>& bytes, const KeyDerivation& derivation)
{
    append(bytes, bytesOfText(kPasswordMagic));
    bytes.push_back(static_cast<std::byte>(passwordBlobVersion));
    bytes.push_back(kArgon2id);
    append(bytes, littleEndian(derivation.passes));
    append(bytes, littleEndian(derivation.memoryInKibibytes));
    append(bytes, derivation.salt);
}

void appendWrapped(std::vector<std::byte>& bytes, const MasterKey& former, const MasterKeyIdentifier& newest,
    const SecretBytes& wrapping, std::string_view recordIdentifier)
{
    const auto nonce = randomArray<EncryptionNonce>();
    append(bytes, former.identifier);
    append(bytes, nonce);
    append(
        bytes, wrapKey(*former.key, wrapping, nonce, contextOfFormerKey(newest, former.identifier, recordIdentifier)));
}

} // namespace

std::optional<NSData> PasswordBlob::write(
    const KeyRing& ring, const DerivedKey& derived, std::string_view recordIdentifier, NSError* error)
{
    const MasterKey& newest = ring.front();
    const auto commitment = keyForUse(derived.key, KeyUse::PasswordCommitment, error);
    const auto wrapping = keyForUse(derived.key, KeyUse::MasterKeyWrapping, error);
    const auto formerWrapping = keyForUse(*newest.key, KeyUse::FormerKeyWrapping, error);
    const auto summing = keyForUse(*newest.key, KeyUse::KeyRingSum, error);
    if (!commitment || !wrapping || !formerWrapping || !summing)
        return std::nullopt;

    std::vector<std::byte> bytes;
    appendHead(bytes, derived.derivation);
    append(bytes, keyedSum(*commitment, {bytes, bytesOfText(recordIdentifier)}));
    const auto nonce = randomArray<EncryptionNonce>();
    append(bytes, newest.identifier);
    append(bytes, nonce);
    append(bytes, wrapKey(*newest.key, *wrapping, nonce, joined({bytes, bytesOfText(recordIdentifier)})));
    append(bytes, littleEndian(static_cast<std::uint16_t>(ring.size() - 1)));
    for (std::size_t index = 1; index < ring.size(); ++index)
        appendWrapped(bytes, ring[index], newest.identifier, *formerWrapping, recordIdentifier);
    append(bytes, keyedSum(*summing, {bytes}));
    append(bytes, plainSum(bytes));
    return NSData(std::move(bytes));
}

std::optional<PasswordBlob> PasswordBlob::read(const NSData& data, NSError* error)
{
    PasswordBlob blob;
    blob.data_ = data;
    const std::span<const std::byte> bytes = data.span();
    if (bytes.size() <= kVersionAt || !data.text().starts_with(kPasswordMagic)
        || bytes[kVersionAt] != static_cast<std::byte>(passwordBlobVersion)) {
        failEncryption(error, OVEncryptionErrorUnknownVersion);
        return std::nullopt;
    }
    if (bytes.size() < kFormerAt + kEndLength
        || plainSum(bytes.first(bytes.size() - kPlainSumLength))
            != arrayOf<kPlainSumLength>(bytes.last(kPlainSumLength))) {
        failEncryption(error, OVEncryptionErrorDamaged);
        return std::nullopt;
    }
    if (!blob.readDerivation(error))
        return std::nullopt;
    blob.newestKey_ = arrayOf<sizeof(MasterKeyIdentifier)>(bytes.subspan(kNewestAt));
    blob.formerKeys_ = numberFromLittleEndian<std::uint16_t>(bytes.subspan(kCountAt));
    if (blob.formerKeys_ > mostFormerKeys
        || bytes.size() != kFormerAt + blob.formerKeys_ * kFormerLength + kEndLength) {
        failEncryption(error, OVEncryptionErrorDamaged);
        return std::nullopt;
    }
    return blob;
}

std::vector<MasterKeyIdentifier> PasswordBlob::keys() const
{
    std::vector<MasterKeyIdentifier> names{newestKey_};
    for (std::size_t index = 0; index < formerKeys_; ++index)
        names.push_back(arrayOf<sizeof(MasterKeyIdentifier)>(data_.span().subspan(kFormerAt + index * kFormerLength)));
    return names;
}

bool PasswordBlob::readDerivation(NSError* error)
{
    const std::span<const std::byte> bytes = data_.span();
    if (bytes[kDerivationAt] != kArgon2id)
        return failEncryption(error, OVEncryptionErrorUnknownVersion);
    derivation_.passes = numberFromLittleEndian<std::uint32_t>(bytes.subspan(kPassesAt));
    derivation_.memoryInKibibytes = numberFromLittleEndian<std::uint32_t>(bytes.subspan(kMemoryAt));
    derivation_.salt = arrayOf<sizeof(KeyDerivation::salt)>(bytes.subspan(kSaltAt));
    if (derivation_.passes > mostPasses || derivation_.memoryInKibibytes > mostMemoryInKibibytes)
        return failEncryption(error, OVEncryptionErrorTooMuchWork);
    if (derivation_.passes == 0 || derivation_.memoryInKibibytes < leastMemoryInKibibytes)
        return failEncryption(error, OVEncryptionErrorDamaged);
    return true;
}

bool PasswordBlob::isVouchedForBy(const MasterKey& key) const
{
    const auto summing = keyForUse(*key.key, KeyUse::KeyRingSum, nullptr);
    const std::span<const std::byte> bytes = data_.span();
    const std::size_t length = bytes.size() - kEndLength;
    return summing && key.identifier == newestKey_
        && sumsAreEqual(keyedSum(*summing, {bytes.first(length)}), arrayOf<sizeof(KeyedSum)>(bytes.subspan(length)));
}

std::optional<KeyRing> PasswordBlob::open(
    const SecretBytes& derivedKey, std::string_view recordIdentifier, NSError* error) const
{
    auto newest = openNewest(derivedKey, recordIdentifier, error);
    if (!newest)
        return std::nullopt;
    if (!keyForUse(*newest->key, KeyUse::KeyRingSum, error)) // that there is no room is no damage
        return std::nullopt;
    if (!isVouchedForBy(*newest)) {
        failEncryption(error, OVEncryptionErrorDamaged);
        return std::nullopt;
    }
    KeyRing ring{std::move(*newest)};
    return openFormer(ring, recordIdentifier, error) ? std::optional(std::move(ring)) : std::nullopt;
}

std::optional<MasterKey> PasswordBlob::openNewest(
    const SecretBytes& derivedKey, std::string_view recordIdentifier, NSError* error) const
{
    const std::span<const std::byte> bytes = data_.span();
    const auto commitment = keyForUse(derivedKey, KeyUse::PasswordCommitment, error);
    const auto wrapping = keyForUse(derivedKey, KeyUse::MasterKeyWrapping, error);
    if (!commitment || !wrapping)
        return std::nullopt;
    // First of all, so that no key opens what another one was meant to.
    if (!sumsAreEqual(keyedSum(*commitment, {bytes.first(kCommitmentAt), bytesOfText(recordIdentifier)}),
            arrayOf<sizeof(KeyedSum)>(bytes.subspan(kCommitmentAt)))) {
        failEncryption(error, OVEncryptionErrorWrongPassword);
        return std::nullopt;
    }
    auto key = unwrapKey(arrayOf<sizeof(WrappedKey)>(bytes.subspan(kNewestKeyAt)), *wrapping,
        arrayOf<sizeof(EncryptionNonce)>(bytes.subspan(kNewestNonceAt)),
        joined({bytes.first(kNewestKeyAt), bytesOfText(recordIdentifier)}), error);
    if (!key)
        return std::nullopt;
    return MasterKey{newestKey_, std::make_shared<const SecretBytes>(std::move(*key))};
}

bool PasswordBlob::openFormer(KeyRing& ring, std::string_view recordIdentifier, NSError* error) const
{
    const auto wrapping = keyForUse(*ring.front().key, KeyUse::FormerKeyWrapping, error);
    if (!wrapping)
        return false;
    for (std::size_t index = 0; index < formerKeys_; ++index) {
        const auto entry = data_.span().subspan(kFormerAt + index * kFormerLength, kFormerLength);
        const auto identifier = arrayOf<sizeof(MasterKeyIdentifier)>(entry);
        auto key = unwrapKey(arrayOf<sizeof(WrappedKey)>(entry.last(sizeof(WrappedKey))), *wrapping,
            arrayOf<sizeof(EncryptionNonce)>(entry.subspan(sizeof(MasterKeyIdentifier))),
            contextOfFormerKey(newestKey_, identifier, recordIdentifier), error);
        if (!key)
            return false;
        ring.push_back({identifier, std::make_shared<const SecretBytes>(std::move(*key))});
    }
    return true;
}

} // namespace tarn
