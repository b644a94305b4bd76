#pragma once

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/encryption/keys/KeyArena.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tarn {

/// How a password becomes a key: what is kept beside what that key opens.
struct KeyDerivation {
    std::uint32_t passes = 0;
    std::uint32_t memoryInKibibytes = 0;
    std::array<std::byte, 16> salt{};

    bool operator==(const KeyDerivation&) const = default;
};

/// The most that data may ask for, so that nobody can make us work for hours.
inline constexpr std::uint32_t mostPasses = 10;
inline constexpr std::uint32_t mostMemoryInKibibytes = std::uint32_t{1} << 20U;
inline constexpr std::uint32_t leastMemoryInKibibytes = 8;
/// What is taken where the memory that was asked for cannot be had.
inline constexpr OVKeyDerivationCost smallerCost{3, std::uint32_t{64} << 10U};

/// A password ready to be used, in canonical composition; none and an error when it is none.
std::optional<SecretBytes> passwordInUse(std::string_view password, NSError* error);

/// The key that a password is. None and an error when there is no memory; it waits for as long as it takes.
std::optional<SecretBytes> deriveKey(const SecretBytes& password, const KeyDerivation& derivation, NSError* error);

/// A key, and how to get it again.
struct DerivedKey {
    KeyDerivation derivation;
    SecretBytes key;
};
/// With a new salt, at this cost or the smaller one. What lies outside of the limits is taken to them.
std::optional<DerivedKey> deriveNewKey(const SecretBytes& password, const OVKeyDerivationCost& cost, NSError* error);

} // namespace tarn
