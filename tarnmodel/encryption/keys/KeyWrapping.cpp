#include "tarnmodel/encryption/keys/KeyWrapping.h"

#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/keys/SodiumInternal.h"
#include "tarnmodel/platform/foundation/system/Environment.h"

namespace tarn {

static_assert(keyLength == crypto_kdf_KEYBYTES && keyLength == crypto_aead_xchacha20poly1305_ietf_KEYBYTES);
static_assert(std::tuple_size_v<EncryptionNonce> == crypto_aead_xchacha20poly1305_ietf_NPUBBYTES);
static_assert(std::tuple_size_v<WrappedKey> == keyLength + crypto_aead_xchacha20poly1305_ietf_ABYTES);

void fillWithRandom(std::span<std::byte> bytes)
{
    Environment::current().fillWithRandomBytes(bytes);
}

std::optional<SecretBytes> newKey(NSError* error)
{
    auto key = KeyArena::shared()->take(keyLength, error);
    if (key)
        fillWithRandom(key->span());
    return key;
}

std::optional<SecretBytes> keyForUse(const SecretBytes& key, KeyUse use, NSError* error)
{
    auto derived = KeyArena::shared()->take(keyLength, error);
    if (derived)
        crypto_kdf_derive_from_key(octets(derived->span()), keyLength, 1,
            keyUseContexts.at(static_cast<std::size_t>(use)), octets(key.span()));
    return derived;
}

WrappedKey wrapKey(const SecretBytes& key, const SecretBytes& wrappingKey, const EncryptionNonce& nonce,
    std::span<const std::byte> context)
{
    WrappedKey wrapped;
    crypto_aead_xchacha20poly1305_ietf_encrypt(octets(std::span(wrapped)), nullptr, octets(key.span()), keyLength,
        octets(context), context.size(), nullptr, octets(std::span(nonce)), octets(wrappingKey.span()));
    return wrapped;
}

std::optional<SecretBytes> unwrapKey(const WrappedKey& wrapped, const SecretBytes& wrappingKey,
    const EncryptionNonce& nonce, std::span<const std::byte> context, NSError* error)
{
    auto key = KeyArena::shared()->take(keyLength, error);
    if (!key)
        return std::nullopt;
    if (crypto_aead_xchacha20poly1305_ietf_decrypt(octets(key->span()), nullptr, nullptr, octets(std::span(wrapped)),
            wrapped.size(), octets(context), context.size(), octets(std::span(nonce)), octets(wrappingKey.span()))
        == 0)
        return key;
    failEncryption(error, OVEncryptionErrorDamaged);
    return std::nullopt;
}

KeyedSum keyedSum(const SecretBytes& key, std::initializer_list<std::span<const std::byte>> parts)
{
    KeyedSum sum;
    crypto_generichash_state state;
    crypto_generichash_init(&state, octets(key.span()), keyLength, sum.size());
    for (const std::span<const std::byte> part : parts)
        crypto_generichash_update(&state, octets(part), part.size());
    crypto_generichash_final(&state, octets(std::span(sum)), sum.size());
    sodium_memzero(&state, sizeof state); // it begins with the key
    return sum;
}

bool sumsAreEqual(const KeyedSum& one, const KeyedSum& other)
{
    return sodium_memcmp(one.data(), other.data(), one.size()) == 0;
}

} // namespace tarn
