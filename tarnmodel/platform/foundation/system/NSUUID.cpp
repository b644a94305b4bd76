#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include "tarnmodel/platform/foundation/system/Environment.h"

namespace tarn {

namespace {

constexpr std::size_t kTextLength = 36;
constexpr std::string_view kDigits = "0123456789ABCDEF";

constexpr bool isHyphenPosition(std::size_t index) noexcept
{
    return index == 8 || index == 13 || index == 18 || index == 23;
}

/// 0 to 15, or -1.
int hexadecimalValue(char character) noexcept
{
    if (character >= '0' && character <= '9')
        return character - '0';
    if (character >= 'A' && character <= 'F')
        return character - 'A' + 10;
    if (character >= 'a' && character <= 'f')
        return character - 'a' + 10;
    return -1;
}

} // namespace

std::string newUUIDString()
{
    std::array<std::byte, 16> bytes{};
    Environment::current().fillWithRandomBytes(bytes);
    bytes[6] = (bytes[6] & std::byte{0x0F}) | std::byte{0x40}; // version 4
    bytes[8] = (bytes[8] & std::byte{0x3F}) | std::byte{0x80}; // the variant that the version belongs to
    return uuidString(bytes);
}

bool isUUIDString(std::string_view text) noexcept
{
    if (text.size() != kTextLength)
        return false;
    for (std::size_t index = 0; index < kTextLength; ++index) {
        if (isHyphenPosition(index) ? text[index] != '-' : hexadecimalValue(text[index]) < 0)
            return false;
    }
    return true;
}

std::string uuidString(std::span<const std::byte, 16> bytes)
{
    std::string text;
    text.reserve(kTextLength);
    for (const std::byte byte : bytes) {
        if (isHyphenPosition(text.size()))
            text.push_back('-');
        text.push_back(kDigits[std::to_integer<std::size_t>(byte >> 4)]);
        text.push_back(kDigits[std::to_integer<std::size_t>(byte & std::byte{0x0F})]);
    }
    return text;
}

std::optional<std::array<std::byte, 16>> bytesOfUUIDString(std::string_view text) noexcept
{
    if (!isUUIDString(text))
        return std::nullopt;
    std::array<std::byte, 16> bytes{};
    std::size_t position = 0;
    for (std::byte& byte : bytes) {
        if (isHyphenPosition(position))
            ++position;
        byte = static_cast<std::byte>(hexadecimalValue(text[position]) * 16 + hexadecimalValue(text[position + 1]));
        position += 2;
    }
    return bytes;
}

} // namespace tarn
