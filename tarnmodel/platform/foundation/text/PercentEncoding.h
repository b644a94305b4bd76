#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// Characters that stand for themselves in a percent-encoded text.
enum class UnescapedCharacters : std::uint8_t {
    URLQuery,       ///< what RFC 3986 allows in a query: ASCII letters, digits and -._~!$&'()*+,;=:@/?
    URLQueryHeader, ///< the same without ' ? & ( )
    Alphanumeric,   ///< letters, marks and numbers of Unicode (general categories L, M and N)
};

/// The text with each other character as "%" and two upper-case hexadecimal digits for each of its UTF-8 bytes.
/// Ill-formed UTF-8 is encoded as U+FFFD. Any thread.
std::string stringByAddingPercentEncoding(std::string_view text, UnescapedCharacters unescaped);

/// The text with every "%" and two hexadecimal digits replaced by the byte that they name. None when a "%" stands
/// without two digits or the result is not valid UTF-8. Any thread.
std::optional<std::string> stringByRemovingPercentEncoding(std::string_view text);

} // namespace tarn
