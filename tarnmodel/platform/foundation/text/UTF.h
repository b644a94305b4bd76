#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarn {

/// One step of reading UTF-8: the code point and how many bytes it took (at least 1 unless the text is empty).
/// Bytes that are no valid UTF-8 read as U+FFFD, one maximal ill-formed part at a time.
struct DecodedCodePoint {
    char32_t codePoint = 0xFFFD;
    std::size_t length = 0;
    bool valid = false;
};
DecodedCodePoint decodeCodePoint(std::string_view text, std::size_t offset) noexcept;
/// Appends the code point as UTF-8; surrogates and values above U+10FFFF become U+FFFD.
void appendCodePoint(std::string& text, char32_t codePoint);

bool isValidUTF8(std::string_view text) noexcept;
/// The text with every ill-formed part replaced by U+FFFD; what every text goes through when it enters.
std::string validUTF8(std::string_view text);

/// Length of UTF-8 text in UTF-16 code units.
std::size_t utf16Length(std::string_view text) noexcept;
/// The byte offset of a UTF-16 offset, clamped to the end; an offset inside a surrogate pair gives its start.
std::size_t byteOffsetForUTF16Offset(std::string_view text, std::size_t utf16Offset) noexcept;

std::u16string utf16FromUTF8(std::string_view text);
std::string utf8FromUTF16(std::u16string_view text);

/// White space as users see it: U+0009-000D, U+0020, U+0085, U+00A0, U+1680, U+2000-200A, U+2028, U+2029, U+202F,
/// U+205F, U+3000.
bool isWhiteSpace(char32_t codePoint) noexcept;
/// Without white space at both ends; a view into `text`.
std::string_view trimmed(std::string_view text) noexcept;
std::string_view trimmed(std::string&& text) = delete;

} // namespace tarn
