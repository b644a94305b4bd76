#include "tools/tarn/arguments/ThumbOptions.h"

#include "tools/tarn/commandline/CommandFailure.h"

#include <charconv>
#include <cstdint>
#include <string_view>
#include <system_error>

namespace tarn {

namespace {

constexpr std::uint32_t kLongestSide = 1'000'000;

CommandFailure unusable(const std::string& option, const std::string& value, const std::string& wanted)
{
    return {ExitCode::Usage, option + " \"" + value + "\" is not " + wanted};
}

/// The text from its first to its last character as a number.
template <typename Number> std::optional<Number> numberIn(std::string_view text, auto... format)
{
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, format...);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

std::optional<double> sideIn(std::string_view text)
{
    const auto side = numberIn<std::uint32_t>(text);
    return side && *side > 0 && *side <= kLongestSide ? std::optional<double>(*side) : std::nullopt;
}

std::optional<double> placeIn(std::string_view text)
{
    const auto place = numberIn<double>(text);
    return place && *place >= 0 && *place <= 1 ? place : std::nullopt;
}

/// Both parts around the separator; none without one.
std::optional<std::pair<std::string_view, std::string_view>> partsOf(std::string_view text, char separator)
{
    const std::size_t at = text.find(separator);
    if (at == std::string_view::npos)
        return std::nullopt;
    return std::pair(text.substr(0, at), text.substr(at + 1));
}

void takeAlignment(const std::string& text, OVThumbOptions& options)
{
    const auto parts = partsOf(text, ',');
    options.xAlign = parts ? placeIn(parts->first) : std::nullopt;
    options.yAlign = parts ? placeIn(parts->second) : std::nullopt;
    if (!options.xAlign || !options.yAlign)
        throw unusable("--align", text, "two numbers from 0 to 1, as \"0.5,1\"");
}

void takeTrimming(const std::string& text, OVThumbOptions& options)
{
    options.trimTopBottomTransparentPixels = true;
    if (text.empty())
        return;
    const auto margin = numberIn<std::uint32_t>(text);
    if (!margin)
        throw unusable("--trim", text, "a number of rows; write \"--trim=5\", or --trim behind everything else");
    options.trimTransparentPixelsHorizontalMargin = *margin;
}

OVThumbColor colorIn(const std::string& text)
{
    const std::string_view digits = std::string_view(text).substr(text.starts_with('#') ? 1 : 0);
    const auto number = digits.size() == 6 ? numberIn<std::uint32_t>(digits, 16) : std::nullopt;
    if (!number)
        throw unusable("--background", text, "a colour in six hexadecimal digits, as \"ffee00\"");
    return {.red = static_cast<std::uint8_t>(*number >> 16),
        .green = static_cast<std::uint8_t>(*number >> 8),
        .blue = static_cast<std::uint8_t>(*number),
        .alpha = 255};
}

} // namespace

OVThumbSize thumbSizeOf(const ThumbArguments& arguments)
{
    const std::string text = arguments.size.value_or("");
    const auto parts = partsOf(text, 'x');
    const auto width = parts ? sideIn(parts->first) : std::nullopt;
    const auto height = parts ? sideIn(parts->second) : std::nullopt;
    if (!width || !height)
        throw unusable("--size", text, "a size in pixels, as \"200x150\"");
    return {*width, *height};
}

OVThumbOptions thumbOptionsOf(const ThumbArguments& arguments)
{
    OVThumbOptions options;
    if (arguments.contain)
        options.contain = true;
    if (arguments.cover)
        options.cover = true;
    if (arguments.noRatio)
        options.preserveRatio = false;
    if (arguments.align)
        takeAlignment(*arguments.align, options);
    if (arguments.trim)
        takeTrimming(*arguments.trim, options);
    if (arguments.background)
        options.backgroundColor = colorIn(*arguments.background);
    return options;
}

} // namespace tarn
