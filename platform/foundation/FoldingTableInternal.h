#pragma once

#include <array>
#include <atomic>
#include <cstdint>

namespace tarn::folding {

/// What folding does with one code point.
enum class EntryKind : std::uint8_t {
    Starter,     ///< gives `bytes`, and is the base of the marks that follow
    Mark,        ///< dropped or kept as it is, by its base
    ComplexMark, ///< a mark that changes when it is kept
    Removed,     ///< a format character
    Complex,     ///< whatever does not fit into an entry
};

struct Entry {
    EntryKind kind = EntryKind::Complex;
    std::uint8_t length = 0;           ///< of `bytes`
    std::uint8_t combiningClass = 0;   ///< of a mark
    bool dropsMarks : 1 = false;       ///< a starter after which marks are dropped
    bool combinesBackward : 1 = false; ///< it may form one character with what stands before it
    bool isComposed : 1 = false;       ///< a starter that a mark may take apart again
    std::array<char, 4> bytes{};       ///< UTF-8
};
static_assert(sizeof(Entry) == 8);

/// The entry of a code point (U+10FFFF at most). Pages of 256 are made from ICU's data when first asked for. Any
/// thread.
class Table {
public:
    static const Entry& entry(char32_t codePoint)
    {
        const Page* page = pages_[codePoint >> 8U].load(std::memory_order_acquire);
        if (!page) [[unlikely]]
            page = makePage(codePoint >> 8U);
        return (*page)[codePoint & 0xFFU];
    }

    /// Whether folding from this code point on does not depend on what stands before it, nor that on it.
    static bool startsSegment(char32_t codePoint)
    {
        const Entry& found = entry(codePoint);
        return found.kind == EntryKind::Starter && !found.combinesBackward;
    }

private:
    using Page = std::array<Entry, 256>;
    static const Page* makePage(std::uint32_t number);

    static std::array<std::atomic<const Page*>, 0x1100> pages_; // pages live as long as the process
};

} // namespace tarn::folding
