#pragma once

#include <string>
#include <string_view>

namespace tarn::corvel {

/// Appends text with `& < > "` escaped and NUL as U+FFFD.
void appendHtmlEscaped(std::string& html, std::string_view text);
/// Appends text as it is, but NUL as U+FFFD.
void appendWithoutNul(std::string& html, std::string_view text);
/// Appends a destination for an attribute: what no URL may hold percent-encoded, `&` and `'` escaped.
void appendEscapedURL(std::string& html, std::string_view url);
/// Appends `%` and the byte in upper-case hex.
void appendPercentEncoded(std::string& text, char byte);

} // namespace tarn::corvel
