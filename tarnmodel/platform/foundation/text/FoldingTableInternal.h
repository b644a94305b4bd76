#pragma once

#include <array>
#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tarn::folding {

/// What folding does with one code point.
enum class EntryKind : std::uint8_t {
    Starter,        ///< gives `bytes`, is the base of the marks that follow, and does not look back
    JoiningStarter, ///< the same, but it may form one character with what stands before it
    Mark,           ///< dropped or kept as it is, by its base
    ComplexMark,    ///< a mark that changes when it is kept
    Removed,        ///< a format character
    Complex,        ///< whatever does not fit into an entry
};

/// One word that answers for one code point; the inner loop keeps it in a register.
class Entry {
public:
    Entry() = default;
    Entry(EntryKind kind, std::string_view bytes) noexcept
    {
        bits_ = static_cast<std::uint64_t>(kind) | (bytes.size() << kLengthShift);
        for (std::size_t index = 0; index < bytes.size(); ++index)
            bits_ |= static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[index])) << (kBytesShift + 8 * index);
    }
    static constexpr std::size_t kMostBytes = 4;

    EntryKind kind() const noexcept { return static_cast<EntryKind>(bits_ & 0xFFU); }
    bool isAnyMark() const noexcept { return kind() == EntryKind::Mark || kind() == EntryKind::ComplexMark; }
    /// The length of the UTF-8 that it gives.
    std::size_t length() const noexcept { return (bits_ >> kLengthShift) & 0xFFU; }
    /// Writes `kMostBytes` bytes, of which `length()` count.
    void write(char* destination) const noexcept
    {
        auto bytes = static_cast<std::uint32_t>(bits_ >> kBytesShift);
        if constexpr (std::endian::native == std::endian::big)
            bytes = __builtin_bswap32(bytes);
        std::memcpy(destination, &bytes, sizeof bytes);
    }

    /// Of a mark; of a tail, the class of the mark that stands last.
    std::uint8_t combiningClass() const noexcept { return static_cast<std::uint8_t>(bits_ >> kClassShift); }
    void setCombiningClass(std::uint8_t combiningClass) noexcept
    {
        bits_ &= ~(std::uint64_t(0xFF) << kClassShift);
        bits_ |= std::uint64_t(combiningClass) << kClassShift;
    }
    /// A starter after which marks are dropped.
    bool dropsMarks() const noexcept { return (bits_ & kDropsMarks) != 0; }
    void setDropsMarks(bool flag) noexcept { set(kDropsMarks, flag); }
    /// A mark that may form one character with what stands before it.
    bool combinesBackward() const noexcept { return (bits_ & kCombinesBackward) != 0; }
    void setCombinesBackward(bool flag) noexcept { set(kCombinesBackward, flag); }
    /// A starter that a mark may take apart again.
    bool isComposed() const noexcept { return (bits_ & kIsComposed) != 0; }
    void setIsComposed(bool flag) noexcept { set(kIsComposed, flag); }

private:
    static constexpr unsigned kLengthShift = 8;
    static constexpr unsigned kClassShift = 16;
    static constexpr unsigned kBytesShift = 32;
    static constexpr std::uint64_t kDropsMarks = 1U << 24U;
    static constexpr std::uint64_t kCombinesBackward = 1U << 25U;
    static constexpr std::uint64_t kIsComposed = 1U << 26U;

    void set(std::uint64_t bit, bool flag) noexcept { bits_ = flag ? bits_ | bit : bits_ & ~bit; }

    std::uint64_t bits_ = static_cast<std::uint64_t>(EntryKind::Complex);
};

/// The entry of a code point (U+10FFFF at most). Pages of 256 are made from ICU's data when first asked for. Any
/// thread.
class Table {
public:
    static Entry entry(char32_t codePoint)
    {
        const Page* page = pages_[codePoint >> 8U].load(std::memory_order_acquire);
        if (!page) [[unlikely]]
            page = makePage(codePoint >> 8U);
        return (*page)[codePoint & 0xFFU];
    }

    /// Whether folding from this code point on does not depend on what stands before it, nor that on it.
    static bool startsSegment(char32_t codePoint) { return entry(codePoint).kind() == EntryKind::Starter; }

private:
    using Page = std::array<Entry, 256>;
    static const Page* makePage(std::uint32_t number);

    static std::array<std::atomic<const Page*>, 0x1100> pages_; // pages live as long as the process
};

} // namespace tarn::folding
