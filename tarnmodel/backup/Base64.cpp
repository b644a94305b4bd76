#include "tarnmodel/backup/Base64Internal.h"

#include <sodium.h>

namespace tarn {
namespace {

constexpr int kVariant = sodium_base64_VARIANT_ORIGINAL;

} // namespace

std::string base64String(std::span<const std::byte> bytes)
{
    // The library writes a NUL behind the text.
    std::string text(sodium_base64_encoded_len(bytes.size(), kVariant), '\0');
    sodium_bin2base64(
        text.data(), text.size(), reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(), kVariant);
    text.pop_back();
    return text;
}

std::optional<NSData> dataFromBase64String(std::string_view text)
{
    std::vector<std::byte> bytes(text.size() / 4 * 3 + 1); // the library wants room also for nothing
    std::size_t length = 0;
    const char* end = nullptr;
    if (sodium_base642bin(reinterpret_cast<unsigned char*>(bytes.data()), bytes.size(), text.data(), text.size(),
            nullptr, &length, &end, kVariant)
            != 0
        || end != text.data() + text.size())
        return std::nullopt;
    bytes.resize(length);
    return NSData(std::move(bytes));
}

} // namespace tarn
