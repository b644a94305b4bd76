#pragma once

#include "tarnmodel/encryption/keys/KeyArena.h"

#include <array>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <span>

namespace tarn {

inline constexpr std::size_t keyLength = 32;

/// Names a master key; random, and no secret.
using MasterKeyIdentifier = std::array<std::byte, 16>;
/// Used once with its key; random.
using EncryptionNonce = std::array<std::byte, 24>;
/// A key that is encrypted with another one, and its tag.
using WrappedKey = std::array<std::byte, 48>;
/// What tells that a key, or data, is the right one.
using KeyedSum = std::array<std::byte, 32>;

/// Each key is used for nothing but to make others of it, one for each use. The contexts are kept: they are part of
/// every format.
enum class KeyUse {
    PasswordCommitment,  ///< of a password's key: tells that the password is right
    MasterKeyWrapping,   ///< of a password's key: wraps the newest master key
    FormerKeyWrapping,   ///< of a master key: wraps the former ones
    KeyRingSum,          ///< of a master key: vouches for the whole of what is kept of a password
    ObjectKeyWrapping,   ///< of a master key: wraps the keys of records
    ObjectKeyCommitment, ///< of a record's key: tells that it is the right one
    FieldEncryption,     ///< of a record's key
    FileEncryption,      ///< of a record's key
};
inline constexpr std::array keyUseContexts{
    "TarnPwCm", "TarnPwWr", "TarnRing", "TarnRSum", "TarnObjK", "TarnObjC", "TarnFlds", "TarnFile"};

/// Fills an array with bytes fit for keys and nonces.
template <typename Array> Array randomArray();
/// A new key. None and an error when there is no room for it; that holds for all that follows.
std::optional<SecretBytes> newKey(NSError* error);
std::optional<SecretBytes> keyForUse(const SecretBytes& key, KeyUse use, NSError* error);

/// Encrypts a key with one that was made for that; whoever unwraps it has to name the same context.
WrappedKey wrapKey(const SecretBytes& key, const SecretBytes& wrappingKey, const EncryptionNonce& nonce,
    std::span<const std::byte> context);
/// None and "damaged" when anything differs.
std::optional<SecretBytes> unwrapKey(const WrappedKey& wrapped, const SecretBytes& wrappingKey,
    const EncryptionNonce& nonce, std::span<const std::byte> context, NSError* error);

/// The keyed sum of these parts behind each other.
KeyedSum keyedSum(const SecretBytes& key, std::initializer_list<std::span<const std::byte>> parts);
/// Compares in a time that does not depend on where they differ.
bool sumsAreEqual(const KeyedSum& one, const KeyedSum& other);

void fillWithRandom(std::span<std::byte> bytes);

template <typename Array> Array randomArray()
{
    Array bytes;
    fillWithRandom(bytes);
    return bytes;
}

} // namespace tarn
