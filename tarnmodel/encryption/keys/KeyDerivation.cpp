#include "tarnmodel/encryption/keys/KeyDerivation.h"

#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/keys/KeyWrapping.h"
#include "tarnmodel/encryption/keys/SodiumInternal.h"
#include "tarnmodel/platform/foundation/text/Normalization.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace tarn {
namespace {

constexpr std::size_t kLongestPassword = 1024;
/// Composition makes a text three times shorter at most; who gives more than this gives no password.
constexpr std::size_t kLongestDecomposedPassword = 3 * kLongestPassword;

static_assert(std::tuple_size_v<decltype(KeyDerivation::salt)> == crypto_pwhash_SALTBYTES);
static_assert(std::size_t{leastMemoryInKibibytes} << 10U >= crypto_pwhash_MEMLIMIT_MIN);

std::optional<SecretBytes> copyOfPassword(std::string_view password, NSError* error)
{
    if (password.empty() || password.size() > kLongestPassword) {
        failEncryption(error, OVEncryptionErrorNotAPassword);
        return std::nullopt;
    }
    auto copy = KeyArena::shared()->take(password.size(), error);
    if (copy)
        std::memcpy(copy->span().data(), password.data(), password.size());
    return copy;
}

bool isASCII(std::string_view text)
{
    return std::ranges::all_of(text, [](char character) { return static_cast<unsigned char>(character) < 0x80; });
}

} // namespace

std::optional<SecretBytes> passwordInUse(std::string_view password, NSError* error)
{
    if (password.size() > kLongestDecomposedPassword || !isValidUTF8(password)) {
        failEncryption(error, OVEncryptionErrorNotAPassword);
        return std::nullopt;
    }
    if (isASCII(password))
        return copyOfPassword(password, error);
    std::string composed = canonicallyComposed(password);
    auto copy = copyOfPassword(composed, error);
    sodium_memzero(composed.data(), composed.size());
    return copy;
}

std::optional<SecretBytes> deriveKey(const SecretBytes& password, const KeyDerivation& derivation, NSError* error)
{
    auto key = KeyArena::shared()->take(keyLength, error);
    if (!key)
        return std::nullopt;
    const std::size_t memory = std::size_t{derivation.memoryInKibibytes} << 10U;
    if (crypto_pwhash(octets(key->span()), keyLength, reinterpret_cast<const char*>(password.span().data()),
            password.span().size(), octets(std::span(derivation.salt)), derivation.passes, memory,
            crypto_pwhash_ALG_ARGON2ID13)
        == 0)
        return key;
    failEncryption(error, OVEncryptionErrorOutOfMemory, "There is not enough memory to try a password");
    return std::nullopt;
}

std::optional<DerivedKey> deriveNewKey(const SecretBytes& password, const OVKeyDerivationCost& cost, NSError* error)
{
    KeyDerivation derivation;
    derivation.passes = std::clamp(cost.passes, std::uint32_t{1}, mostPasses);
    derivation.memoryInKibibytes = std::clamp(cost.memoryInKibibytes, leastMemoryInKibibytes, mostMemoryInKibibytes);
    fillWithRandom(derivation.salt);
    auto key = deriveKey(password, derivation, error);
    if (!key && derivation.memoryInKibibytes > smallerCost.memoryInKibibytes) {
        derivation.passes = std::max(derivation.passes, smallerCost.passes);
        derivation.memoryInKibibytes = smallerCost.memoryInKibibytes;
        key = deriveKey(password, derivation, error);
    }
    if (!key)
        return std::nullopt;
    return DerivedKey{derivation, std::move(*key)};
}

} // namespace tarn
