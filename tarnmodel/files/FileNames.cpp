#include "tarnmodel/files/FileNames.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

namespace tarn {

namespace {

constexpr std::size_t kLongestName = 255;     ///< bytes, of every file system in use
constexpr std::size_t kLongestExtension = 32; ///< bytes, with the point
constexpr std::uint32_t kLargestCounter = 999'999'999;

bool isControl(std::string_view name, std::size_t at)
{
    const auto byte = static_cast<unsigned char>(name[at]);
    // U+0080 to U+009F are two bytes, of which the first is 0xC2.
    const bool isLatinControl = byte == 0xC2 && at + 1 < name.size() && static_cast<unsigned char>(name[at + 1]) < 0xA0;
    return byte < 0x20 || byte == 0x7F || isLatinControl;
}

std::string cutToLength(std::string_view name)
{
    if (name.size() <= kLongestName)
        return std::string(name);
    const std::string_view extension = name.substr(beginOfExtension(name));
    const std::string_view stem = name.substr(0, name.size() - extension.size());
    return std::string(cutBetweenCharacters(stem, kLongestName - extension.size())) + std::string(extension);
}

/// The counter at the end of a stem, and where its " (" begins.
std::optional<std::pair<std::uint32_t, std::size_t>> counterOf(std::string_view stem)
{
    const std::size_t open = stem.rfind(" (");
    if (open == std::string_view::npos || open == 0 || !stem.ends_with(')'))
        return std::nullopt;
    const std::string_view digits = stem.substr(open + 2, stem.size() - open - 3);
    std::uint32_t counter = 0;
    const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), counter);
    const bool isCounter = failure == std::errc() && end == digits.data() + digits.size() && counter > 1
        && counter < kLargestCounter && digits.front() != '0';
    return isCounter ? std::optional(std::pair(counter, open)) : std::nullopt;
}

} // namespace

std::size_t beginOfExtension(std::string_view name)
{
    const std::size_t point = name.rfind('.');
    const bool isExtension = point != std::string_view::npos && point > 0 && name.size() - point <= kLongestExtension;
    return isExtension ? point : name.size();
}

std::string_view cutBetweenCharacters(std::string_view text, std::size_t length)
{
    if (text.size() <= length)
        return text;
    while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80)
        --length;
    return text.substr(0, length);
}

std::string fileNameWithinFolder(std::string_view name)
{
    const std::string valid = validUTF8(name);
    std::string safe;
    safe.reserve(valid.size());
    for (std::size_t at = 0; at < valid.size(); ++at) {
        if (isControl(valid, at)) {
            at += static_cast<unsigned char>(valid[at]) == 0xC2 ? 1 : 0;
            safe += '_';
        } else {
            safe += valid[at] == '/' ? '_' : valid[at];
        }
    }
    if (safe.empty() || safe == "." || safe == "..")
        return "_";
    return cutToLength(safe);
}

std::string filepathWithIncreasedNumberCount(std::string_view name)
{
    const std::size_t begin = beginOfExtension(name);
    std::string_view stem = name.substr(0, begin);
    std::uint32_t counter = 2;
    if (const auto former = counterOf(stem)) {
        counter = former->first + 1;
        stem = stem.substr(0, former->second);
    }
    const std::string end = " (" + std::to_string(counter) + ")" + std::string(name.substr(begin));
    // A long name gives way to its counter, or two of them would be cut to the same.
    if (end.size() < kLongestName)
        stem = cutBetweenCharacters(stem, kLongestName - end.size());
    return std::string(stem) + end;
}

} // namespace tarn
