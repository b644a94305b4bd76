#pragma once

#include "fuzz/search/Require.h"
#include "tarnmodel/encryption/keys/KeyDerivation.h"
#include "tarnmodel/encryption/keys/PasswordBlob.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/values/NSData.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tarn {

inline constexpr std::string_view fuzzedIdentifier = "FUZZED";

/// Always the same random bytes, so that an input always does the same.
class FixedRandom {
public:
    FixedRandom()
    {
        world_.setRandomBytes([](std::span<std::byte> bytes) {
            static std::uint64_t state = 1;
            for (std::byte& byte : bytes) {
                state = state * 6364136223846793005U + 1442695040888963407U;
                byte = static_cast<std::byte>(state >> 56U);
            }
        });
    }

private:
    EnvironmentOverride world_;
};

inline MasterKey fuzzedMasterKey()
{
    return {randomArray<MasterKeyIdentifier>(), std::make_shared<const SecretBytes>(*newKey(nullptr))};
}

/// What is sound, with some bytes of it exchanged: where, in the first two bytes of the input; by what, in the others.
inline std::vector<std::byte> patched(const NSData& sound, std::span<const std::byte> input)
{
    std::vector<std::byte> bytes(sound.span().begin(), sound.span().end());
    if (input.size() < 2)
        return bytes;
    const std::size_t at
        = (std::to_integer<std::size_t>(input[0]) << 8U | std::to_integer<std::size_t>(input[1])) % bytes.size();
    const auto some = input.subspan(2).first(std::min(input.size() - 2, bytes.size() - at));
    std::ranges::copy(some, bytes.begin() + static_cast<std::ptrdiff_t>(at));
    return bytes;
}

} // namespace tarn
