#include "tarnmodel/platform/foundation/text/ByteCount.h"

#include <array>
#include <charconv>
#include <cstddef>

namespace tarn {

std::string stringFromByteCount(std::uintmax_t bytes)
{
    constexpr std::array kUnits{"kB", "MB", "GB", "TB", "PB", "EB"};
    if (bytes < 1'000)
        return std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes");
    double size = static_cast<double>(bytes) / 1'000;
    std::size_t unit = 0;
    // What would be rounded to a thousand is one of the next unit.
    while (size >= 999.95 && unit + 1 < kUnits.size()) {
        size /= 1'000;
        ++unit;
    }
    // With a point whatever the language of the process.
    std::array<char, 32> number{};
    const auto end = std::to_chars(number.data(), number.data() + number.size(), size, std::chars_format::fixed, 1);
    return std::string(number.data(), end.ptr) + " " + kUnits[unit];
}

} // namespace tarn
