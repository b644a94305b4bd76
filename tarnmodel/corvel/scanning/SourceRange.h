#pragma once

#include <cstddef>
#include <cstdint>

namespace tarn::corvel {

/// A byte offset; texts over 2 GiB are refused on entry.
using Offset = std::uint32_t;

/// Bytes of the text, half open.
struct SourceRange {
    Offset begin = 0;
    Offset end = 0;

    Offset length() const noexcept { return end - begin; }
    bool empty() const noexcept { return begin == end; }
    friend bool operator==(const SourceRange&, const SourceRange&) = default;
};

/// From indexes of a text, which is never longer than an `Offset` can tell.
inline SourceRange rangeOf(std::size_t begin, std::size_t end) noexcept
{
    return {static_cast<Offset>(begin), static_cast<Offset>(end)};
}

} // namespace tarn::corvel
