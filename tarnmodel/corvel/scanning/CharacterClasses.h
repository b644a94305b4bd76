#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarn::corvel {

constexpr bool isSpaceOrTab(char c) noexcept
{
    return c == ' ' || c == '\t';
}
constexpr bool isLineEnd(char c) noexcept
{
    return c == '\n' || c == '\r';
}
/// Space, tab and line ends: what separates the parts of a link or of a tag.
constexpr bool isBlank(char c) noexcept
{
    return isSpaceOrTab(c) || isLineEnd(c);
}
constexpr bool isASCIIDigit(char c) noexcept
{
    return c >= '0' && c <= '9';
}
constexpr bool isASCIILetter(char c) noexcept
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
constexpr bool isASCIIAlphanumeric(char c) noexcept
{
    return isASCIIDigit(c) || isASCIILetter(c);
}
constexpr bool isASCIIHexDigit(char c) noexcept
{
    return isASCIIDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}
constexpr bool isASCIIControl(char c) noexcept
{
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}
/// The control characters of Unicode: those of ASCII and of Latin-1.
constexpr bool isControl(char32_t codePoint) noexcept
{
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0);
}
constexpr bool isASCIIPunctuation(char c) noexcept
{
    return (c >= '!' && c <= '/') || (c >= ':' && c <= '@') || (c >= '[' && c <= '`') || (c >= '{' && c <= '~');
}
constexpr char lowerASCII(char c) noexcept
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

/// A set of bytes, looked up with one load.
class ByteSet {
public:
    constexpr explicit ByteSet(std::string_view members)
    {
        for (const char member : members)
            bits_[static_cast<unsigned char>(member)] = true;
    }
    constexpr bool contains(char c) const noexcept { return bits_[static_cast<unsigned char>(c)]; }

private:
    std::array<bool, 256> bits_{};
};

/// Unicode white space and punctuation as emphasis sees them; punctuation includes symbols.
bool isUnicodeWhiteSpace(char32_t codePoint) noexcept;
bool isUnicodePunctuation(char32_t codePoint) noexcept;

/// The code point that ends before `offset`; a newline at the start of the text. Ill-formed bytes read as U+FFFD.
char32_t codePointBefore(std::string_view text, std::size_t offset) noexcept;
/// The code point at `offset`; a newline at the end of the text.
char32_t codePointAt(std::string_view text, std::size_t offset) noexcept;

} // namespace tarn::corvel
