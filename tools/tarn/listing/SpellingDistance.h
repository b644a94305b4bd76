#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarn {

/// The code points of a text as words are compared, folded.
std::u32string spellingOf(std::string_view text);

/// How many slips of the keyboard lie between two spellings: letters left out, put in, put in place of another, or two
/// neighbours swapped. More than `limit` is given as `limit + 1`.
std::size_t spellingDistance(std::u32string_view left, std::u32string_view right, std::size_t limit);

/// How many slips make a word of so many letters another one that is still taken for it: one in three, three at most.
std::size_t slipsIn(std::size_t length) noexcept;

} // namespace tarn
