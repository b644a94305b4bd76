#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarn {

/// A name that stays within its folder on any disk: without "/", NUL and control characters (each becomes "_"), not
/// ".", ".." or nothing ("_"), and of 255 bytes at most, cut between characters so that the extension stays. A name
/// that is so already comes back as it is; invalid UTF-8 becomes U+FFFD.
std::string fileNameWithinFolder(std::string_view name);

/// The name with a counter before its extension: "a.png" gives "a (2).png", and that gives "a (3).png".
std::string filepathWithIncreasedNumberCount(std::string_view name);

/// Where the extension begins, with its point; the length of the name when it has none. What is longer than 32 bytes is
/// no extension that anybody needs.
std::size_t beginOfExtension(std::string_view name);

/// The longest beginning of at most `length` bytes that ends between characters.
std::string_view cutBetweenCharacters(std::string_view text, std::size_t length);

} // namespace tarn
