#include "files/PercentEncoding.h"

#include "platform/foundation/UTF.h"

#include <algorithm>
#include <charconv>

namespace tarn {

std::optional<std::string> stringByRemovingPercentEncoding(std::string_view text)
{
    std::string decoded;
    decoded.reserve(text.size());
    for (std::size_t position = 0; position < text.size(); ++position) {
        const std::size_t escape = std::min(text.find('%', position), text.size());
        decoded += text.substr(position, escape - position);
        position = escape;
        if (position == text.size())
            break;
        const std::string_view digits = text.substr(position + 1, 2);
        unsigned char value = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
        if (digits.size() < 2 || error != std::errc() || end != digits.data() + digits.size())
            return std::nullopt;
        decoded += static_cast<char>(value);
        position += digits.size();
    }
    if (!isValidUTF8(decoded))
        return std::nullopt;
    return decoded;
}

} // namespace tarn
