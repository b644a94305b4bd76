#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

// Signatures tell which texts cannot contain a string. They stand in store files: docs/file-format.md says how they are
// made, and whoever changes the grams, the hash, the rounding or the order of bits raises `signatureFormat`.

// Of a folded text's distinct grams hashes are taken: one for every three code points in a row, three for every two of
// which one is at or above U+2E80, where words are short. What a folded text contains has no gram that the text lacks.

/// At most `most` of a needle's hashes, from all over it: enough to tell texts apart.
std::vector<std::uint32_t> gramHashesOfNeedle(std::string_view foldedNeedle, std::size_t most);

/// What a signature begins with: the format and the version of the folding, by which it is known to be stale.
inline constexpr std::size_t signatureHeaderSize = 4;
inline constexpr std::uint8_t signatureFormat = 1;
std::uint32_t signatureHeader(int foldingVersion);

/// The signature of a text. A text without grams (an empty one, or of two letters) has the header alone, as nil has.
std::string signatureOfText(std::string_view text);
/// Of what is no text.
std::string signatureOfNothing();
/// Whether it was made by the same rules as ours.
bool isCurrentSignature(std::string_view signature) noexcept;

/// Whether all grams are in the bits that follow the header; a text without bits has none.
inline bool hasGrams(const std::uint8_t* bits, std::size_t byteCount, std::span<const std::uint32_t> hashes) noexcept
{
    const std::uint64_t bitCount = std::uint64_t{byteCount} * 8;
    for (const std::uint32_t hash : hashes) {
        const std::uint64_t index = (hash * bitCount) >> 32U;
        if (bitCount == 0 || ((bits[index >> 3U] >> (index & 7U)) & 1U) == 0)
            return false;
    }
    return true;
}

} // namespace tarn
