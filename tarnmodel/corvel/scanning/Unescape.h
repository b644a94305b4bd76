#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarn::corvel {

/// Appends what the character reference at `offset` (an "&") stands for; gives its length, or 0 when there is none.
std::size_t appendEntity(std::string& result, std::string_view content, std::size_t offset);

/// Appends the text without backslash escapes and with character references decoded, as destinations, titles and info
/// strings are read.
void appendUnescaped(std::string& result, std::string_view raw);
std::string unescaped(std::string_view raw);

} // namespace tarn::corvel
