#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <span>
#include <string>

#include <sodium.h>

namespace tarn {

/// BLAKE2b of 32 bytes, piece by piece.
class BackupHash {
public:
    using Digest = std::array<unsigned char, 32>;

    BackupHash();
    void add(std::span<const std::byte> bytes);
    /// Of all that was added; nothing is to be added after it.
    Digest digest();
    /// The same in 64 hexadecimal digits.
    std::string hexadecimal();

private:
    crypto_generichash_state state_;
};

} // namespace tarn
