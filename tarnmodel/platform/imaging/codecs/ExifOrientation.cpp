#include "tarnmodel/platform/imaging/codecs/ExifOrientation.h"

#include "tarnmodel/platform/imaging/codecs/ByteOrder.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tarn {

namespace {

constexpr std::string_view kPrefix("Exif\0\0", 6);
constexpr std::string_view kLittleEndian("II*\0", 4);
constexpr std::string_view kBigEndian("MM\0*", 4);
constexpr std::size_t kEntrySize = 12;
constexpr std::uint32_t kOrientationTag = 0x0112;
constexpr std::uint32_t kShort = 3;

bool beginsWith(std::span<const std::uint8_t> data, std::string_view text)
{
    return data.size() >= text.size()
        && std::equal(text.begin(), text.end(), data.begin(),
            [](char one, std::uint8_t other) { return static_cast<std::uint8_t>(one) == other; });
}

} // namespace

int exifOrientation(std::span<const std::uint8_t> data)
{
    if (beginsWith(data, kPrefix))
        data = data.subspan(kPrefix.size());
    const bool isLittle = beginsWith(data, kLittleEndian);
    if ((!isLittle && !beginsWith(data, kBigEndian)) || data.size() < 8)
        return 1;
    const auto number16 = isLittle ? littleEndian16 : bigEndian16;
    const auto number32 = isLittle ? littleEndian32 : bigEndian32;

    const std::size_t directory = number32(data.data() + 4);
    if (directory > data.size() - 2)
        return 1;
    const std::size_t entries = number16(data.data() + directory);
    auto rest = data.subspan(directory + 2);
    for (std::size_t entry = 0; entry < entries && rest.size() >= kEntrySize;
         ++entry, rest = rest.subspan(kEntrySize)) {
        if (number16(rest.data()) != kOrientationTag)
            continue;
        const std::uint32_t orientation = number16(rest.data() + 8);
        const bool isOne = number16(rest.data() + 2) == kShort && number32(rest.data() + 4) == 1;
        return isOne && orientation >= 1 && orientation <= 8 ? static_cast<int>(orientation) : 1;
    }
    return 1;
}

} // namespace tarn
