#include "tarnmodel/platform/coredata/sqlite/SubstringSignature.h"

#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>
#include <array>
#include <bit>
#include <memory>
#include <utility>

namespace tarn {

namespace {

/// From here on two code points make a word.
constexpr char32_t kFirstIdeographic = 0x2E80;
constexpr unsigned kCodePointBits = 21;
/// The number that a pair is told apart by, and the step from one of its hashes to the next.
constexpr std::uint64_t kPair = std::uint64_t{1} << 63U;
constexpr std::uint64_t kPairStep = std::uint64_t{1} << 60U;
constexpr int kHashesOfPair = 3;

/// A well-mixed number; different ones stay different. Its upper half is a hash.
std::uint64_t mixed(std::uint64_t number) noexcept
{
    number ^= number >> 30U;
    number *= 0xBF58476D1CE4E5B9ULL;
    number ^= number >> 27U;
    number *= 0x94D049BB133111EBULL;
    return number;
}

std::uint32_t hashOfMixed(std::uint64_t mixed) noexcept
{
    return static_cast<std::uint32_t>(mixed >> 32U);
}

std::uint64_t numberOfThree(std::uint64_t first, std::uint64_t second, std::uint64_t third) noexcept
{
    return (first << (2 * kCodePointBits)) | (second << kCodePointBits) | third;
}

/// Numbers, each once, in the order of their coming; what is kept of one is its hash.
class DistinctNumbers {
public:
    explicit DistinctNumbers(std::size_t expected)
        : table_(std::bit_ceil(std::clamp(2 * expected, kSmallestTable, kLargestFirstTable))), mask_(table_.size() - 1)
    { }

    void add(std::uint64_t number)
    {
        const std::uint64_t entry = mixed(number);
        // Three NULs are the number 0, the mark of an empty place.
        if (entry == 0 ? std::exchange(hasZero_, true) : !enter(entry))
            return;
        hashes_.push_back(hashOfMixed(entry));
        if (hashes_.size() > table_.size() / 2)
            grow();
    }
    std::vector<std::uint32_t> takeHashes() { return std::move(hashes_); }

private:
    static constexpr std::size_t kSmallestTable = 64;
    static constexpr std::size_t kLargestFirstTable = 1U << 10U;

    bool enter(std::uint64_t entry)
    {
        std::size_t place = (entry >> 32U) & mask_;
        while (table_[place] != 0) {
            if (table_[place] == entry)
                return false;
            place = (place + 1) & mask_;
        }
        table_[place] = entry;
        return true;
    }
    void grow()
    {
        std::vector<std::uint64_t> entries(4 * table_.size());
        entries.swap(table_);
        mask_ = table_.size() - 1;
        for (const std::uint64_t entry : entries)
            if (entry != 0)
                enter(entry);
    }

    std::vector<std::uint64_t> table_; ///< 0 for an empty place
    std::size_t mask_;
    std::vector<std::uint32_t> hashes_;
    bool hasZero_ = false;
};

/// The grams of three ASCII characters, which most texts are made of: a bit for each that there can be, a quarter of a
/// megabyte that a thread keeps. Setting one costs a fraction of what a table costs.
class ASCIIGrams {
public:
    static constexpr std::uint32_t kMask = (1U << 21U) - 1;

    void add(std::uint32_t key)
    {
        std::uint64_t& word = (*seen_)[key >> 6U];
        const std::uint64_t bit = std::uint64_t{1} << (key & 63U);
        if ((word & bit) != 0)
            return;
        word |= bit;
        keys_.push_back(key);
    }
    /// Forgets them.
    void takeHashes(std::vector<std::uint32_t>& hashes)
    {
        hashes.reserve(hashes.size() + keys_.size());
        for (const std::uint32_t key : keys_) {
            (*seen_)[key >> 6U] = 0;
            hashes.push_back(hashOfMixed(mixed(numberOfThree(key >> 14U, (key >> 7U) & 0x7FU, key & 0x7FU))));
        }
        keys_.clear();
    }

private:
    using Bits = std::array<std::uint64_t, (kMask + 1) / 64>;
    std::unique_ptr<Bits> seen_ = std::make_unique<Bits>();
    std::vector<std::uint32_t> keys_;
};

/// Hands out the grams of a text from its first code point to its last: `takeASCII` gets seven bits for each of three
/// ASCII characters, `take` the number of any other gram.
template <typename TakeASCII, typename Take> void forEachGram(std::string_view text, TakeASCII&& takeASCII, Take&& take)
{
    std::uint64_t beforeLast = 0;
    std::uint64_t last = 0;
    std::size_t count = 0;
    std::size_t asciiRun = 0;
    std::uint32_t key = 0;
    const auto byteAt = [&](std::size_t offset) { return static_cast<unsigned char>(text[offset]); };
    for (std::size_t offset = 0; offset < text.size(); ++count) {
        std::uint64_t current = byteAt(offset);
        if (current < 0x80) {
            if (asciiRun >= 2) {
                for (; offset < text.size() && byteAt(offset) < 0x80; ++offset) {
                    key = ((key << 7U) | byteAt(offset)) & ASCIIGrams::kMask;
                    takeASCII(key);
                }
                beforeLast = (key >> 7U) & 0x7FU;
                last = key & 0x7FU;
                continue;
            }
            key = (key << 7U) | static_cast<std::uint32_t>(current);
            ++asciiRun;
            ++offset;
        } else {
            const DecodedCodePoint decoded = decodeCodePoint(text, offset);
            current = decoded.codePoint;
            offset += decoded.length;
            asciiRun = 0;
        }
        if (count >= 2)
            take(numberOfThree(beforeLast, last, current));
        if (count >= 1 && std::max(last, current) >= kFirstIdeographic)
            for (int i = 0; i < kHashesOfPair; ++i)
                take(kPair + static_cast<std::uint64_t>(i) * kPairStep + ((last << kCodePointBits) | current));
        beforeLast = last;
        last = current;
    }
}

/// In the order of their coming.
std::vector<std::uint32_t> orderedHashes(std::string_view foldedText)
{
    DistinctNumbers numbers(foldedText.size());
    const auto take = [&](std::uint64_t number) { numbers.add(number); };
    const auto takeASCII
        = [&](std::uint32_t key) { take(numberOfThree(key >> 14U, (key >> 7U) & 0x7FU, key & 0x7FU)); };
    forEachGram(foldedText, takeASCII, take);
    return numbers.takeHashes();
}

/// The same in no order; faster for whole texts.
std::vector<std::uint32_t> unorderedHashes(std::string_view foldedText)
{
    thread_local ASCIIGrams kept;
    ASCIIGrams& ascii = kept; // looked up once
    DistinctNumbers numbers(foldedText.size());
    forEachGram(
        foldedText, [&](std::uint32_t key) { ascii.add(key); }, [&](std::uint64_t number) { numbers.add(number); });
    std::vector<std::uint32_t> hashes = numbers.takeHashes();
    ascii.takeHashes(hashes);
    return hashes;
}

void appendHeader(std::string& signature)
{
    const std::uint32_t header = signatureHeader(foldingVersion());
    for (unsigned shift = 0; shift < 32; shift += 8)
        signature += static_cast<char>((header >> shift) & 0xFFU);
}

} // namespace

std::vector<std::uint32_t> gramHashesOfNeedle(std::string_view foldedNeedle, std::size_t most)
{
    std::vector<std::uint32_t> hashes = orderedHashes(foldedNeedle);
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
    const std::vector<std::uint32_t> hashes = unorderedHashes(fold(text));
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
