#include "platform/coredata/SubstringSignature.h"

#include "platform/foundation/Folding.h"
#include "platform/foundation/UTF.h"

#include <algorithm>
#include <bit>

namespace tarn {

namespace {

/// From here on two code points make a word.
constexpr char32_t kFirstIdeographic = 0x2E80;
constexpr unsigned kCodePointBits = 21;
/// The number that a pair is told apart by, and the step from one of its hashes to the next.
constexpr std::uint64_t kPair = std::uint64_t{1} << 63U;
constexpr std::uint64_t kPairStep = std::uint64_t{1} << 60U;
constexpr int kHashesOfPair = 3;

/// The upper half of a well-mixed number: the index of a bit is taken from its upper bits.
std::uint32_t mixed(std::uint64_t number) noexcept
{
    number ^= number >> 30U;
    number *= 0xBF58476D1CE4E5B9ULL;
    number ^= number >> 27U;
    number *= 0x94D049BB133111EBULL;
    return static_cast<std::uint32_t>(number >> 32U);
}

/// Numbers, each once, in the order of their coming.
class DistinctHashes {
public:
    explicit DistinctHashes(std::size_t expected)
        : table_(std::bit_ceil(std::clamp(2 * expected, kSmallestTable, kLargestFirstTable))), mask_(table_.size() - 1)
    { }

    void add(std::uint32_t hash)
    {
        if (hash == 0) { // the mark of an empty place
            hasZero_ = true;
            return;
        }
        if (!enter(hash))
            return;
        found_.push_back(hash);
        if (found_.size() > table_.size() / 2)
            grow();
    }
    std::vector<std::uint32_t> take()
    {
        if (hasZero_)
            found_.push_back(0);
        return std::move(found_);
    }

private:
    static constexpr std::size_t kSmallestTable = 64;
    static constexpr std::size_t kLargestFirstTable = 1U << 14U;

    bool enter(std::uint32_t hash)
    {
        std::size_t place = hash & mask_;
        while (table_[place] != 0) {
            if (table_[place] == hash)
                return false;
            place = (place + 1) & mask_;
        }
        table_[place] = hash;
        return true;
    }
    void grow()
    {
        table_.assign(table_.size() * 4, 0);
        mask_ = table_.size() - 1;
        for (const std::uint32_t hash : found_)
            enter(hash);
    }

    std::vector<std::uint32_t> table_; ///< 0 for an empty place
    std::size_t mask_;
    std::vector<std::uint32_t> found_;
    bool hasZero_ = false;
};

/// Calls `take` with the hashes of each gram, from the first code point to the last.
template <typename Take> void forEachGramHash(std::string_view text, Take&& take)
{
    std::uint64_t beforeLast = 0;
    std::uint64_t last = 0;
    std::size_t count = 0;
    for (std::size_t offset = 0; offset < text.size(); ++count) {
        const auto byte = static_cast<unsigned char>(text[offset]);
        std::uint64_t current = byte;
        if (byte < 0x80) {
            ++offset;
        } else {
            const DecodedCodePoint decoded = decodeCodePoint(text, offset);
            current = decoded.codePoint;
            offset += decoded.length;
        }
        if (count >= 2)
            take(mixed((beforeLast << (2 * kCodePointBits)) | (last << kCodePointBits) | current));
        if (count >= 1 && std::max(last, current) >= kFirstIdeographic)
            for (int i = 0; i < kHashesOfPair; ++i)
                take(mixed(kPair + static_cast<std::uint64_t>(i) * kPairStep + ((last << kCodePointBits) | current)));
        beforeLast = last;
        last = current;
    }
}

std::vector<std::uint32_t> distinctHashes(std::string_view foldedText)
{
    DistinctHashes hashes(foldedText.size());
    forEachGramHash(foldedText, [&](std::uint32_t hash) { hashes.add(hash); });
    return hashes.take();
}

void appendHeader(std::string& signature)
{
    const std::uint32_t header = signatureHeader(foldingVersion());
    for (unsigned shift = 0; shift < 32; shift += 8)
        signature += static_cast<char>((header >> shift) & 0xFFU);
}

} // namespace

std::vector<std::uint32_t> gramHashes(std::string_view foldedText)
{
    std::vector<std::uint32_t> hashes = distinctHashes(foldedText);
    std::sort(hashes.begin(), hashes.end());
    return hashes;
}

std::vector<std::uint32_t> gramHashesOfNeedle(std::string_view foldedNeedle, std::size_t most)
{
    std::vector<std::uint32_t> hashes = distinctHashes(foldedNeedle);
    // Neighbours share letters; those that stand apart say more.
    const std::size_t step = hashes.size() / std::max<std::size_t>(most, 1) + 1;
    std::vector<std::uint32_t> chosen;
    for (std::size_t i = 0; i < hashes.size(); i += step)
        chosen.push_back(hashes[i]);
    return chosen;
}

std::uint32_t signatureHeader(int foldingVersion)
{
    return signatureFormat | (static_cast<std::uint32_t>(foldingVersion) << 8U);
}

std::string signatureOfNothing()
{
    std::string signature;
    appendHeader(signature);
    return signature;
}

std::string signatureOfText(std::string_view text)
{
    const std::vector<std::uint32_t> hashes = distinctHashes(fold(text));
    // Two bits for each hash, in whole bytes.
    const std::size_t byteCount = (hashes.size() + 3) / 4;
    const std::uint64_t bitCount = std::uint64_t{byteCount} * 8;
    std::string signature;
    signature.reserve(signatureHeaderSize + byteCount);
    appendHeader(signature);
    signature.resize(signatureHeaderSize + byteCount, '\0');
    for (const std::uint32_t hash : hashes) {
        const std::uint64_t index = (hash * bitCount) >> 32U;
        char& byte = signature[signatureHeaderSize + (index >> 3U)];
        byte = static_cast<char>(static_cast<unsigned char>(byte) | (1U << (index & 7U)));
    }
    return signature;
}

bool isCurrentSignature(std::string_view signature) noexcept
{
    if (signature.size() < signatureHeaderSize)
        return false;
    std::uint32_t header = 0;
    for (unsigned i = 0; i < signatureHeaderSize; ++i)
        header |= std::uint32_t{static_cast<unsigned char>(signature[i])} << (8 * i);
    static const std::uint32_t current = signatureHeader(foldingVersion());
    return header == current;
}

} // namespace tarn
