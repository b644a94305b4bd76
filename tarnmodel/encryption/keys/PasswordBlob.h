#pragma once

#include "tarnmodel/encryption/keys/KeyDerivation.h"
#include "tarnmodel/encryption/keys/KeyWrapping.h"
#include "tarnmodel/platform/foundation/values/NSData.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace tarn {

/// A master key and its name. Whoever uses it keeps it, also when it is forgotten meanwhile.
struct MasterKey {
    MasterKeyIdentifier identifier;
    std::shared_ptr<const SecretBytes> key;
};

/// The master keys of a password: the newest one, which protects what is protected now, and the former ones before it,
/// the latest first. Never empty.
using KeyRing = std::vector<MasterKey>;

/// The version of what is kept of a password, which its record names, too.
inline constexpr std::int16_t passwordBlobVersion = 1;
/// The most former master keys that a password keeps.
inline constexpr std::size_t mostFormerKeys = 1000;

/// What is kept of a password: how to try one, and the master keys, encrypted. The format is in docs/encryption.md.
class PasswordBlob {
public:
    /// Reads its outside: that it is whole, of this version, and asks for no more work than there should be.
    static std::optional<PasswordBlob> read(const NSData& data, NSError* error);
    /// The same ring encrypted by another key, for a record of this identifier.
    static std::optional<NSData> write(
        const KeyRing& ring, const DerivedKey& derived, std::string_view recordIdentifier, NSError* error);

    const KeyDerivation& derivation() const noexcept { return derivation_; }
    const MasterKeyIdentifier& newestKey() const noexcept { return newestKey_; }
    /// The names of all its keys, the newest first; what they are is not needed.
    std::vector<MasterKeyIdentifier> keys() const;
    /// Whether it was written by one who had this key, which is its newest.
    bool isVouchedForBy(const MasterKey& key) const;

    /// Its keys; none and "wrong password", or "damaged" when the password is right and the rest is not.
    std::optional<KeyRing> open(const SecretBytes& derivedKey, std::string_view recordIdentifier, NSError* error) const;

private:
    PasswordBlob() = default;
    bool readDerivation(NSError* error);
    std::optional<MasterKey> openNewest(
        const SecretBytes& derivedKey, std::string_view recordIdentifier, NSError* error) const;
    bool openFormer(KeyRing& ring, std::string_view recordIdentifier, NSError* error) const;

    NSData data_;
    KeyDerivation derivation_;
    MasterKeyIdentifier newestKey_{};
    std::size_t formerKeys_ = 0;
};

} // namespace tarn
