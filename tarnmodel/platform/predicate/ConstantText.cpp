#include "tarnmodel/platform/predicate/ConstantText.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <system_error>

namespace tarn {

namespace {

constexpr std::int64_t kMicrosecondsPerSecond = 1'000'000;
constexpr std::size_t kFractionDigits = 6;
// 2001-01-01T00:00:00Z, in seconds since 1970.
constexpr std::int64_t kReferenceDate = 978'307'200;

/// All of `text` as one number.
template <typename Number> std::optional<Number> wholeNumber(std::string_view text)
{
    Number number{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return number;
}

void appendDouble(std::string& result, double number)
{
    if (!std::isfinite(number)) {
        result += "<number>";
        return;
    }
    const std::size_t start = result.size();
    fmt::format_to(std::back_inserter(result), "{}", number);
    if (result.find_first_of(".e", start) == std::string::npos)
        result += ".0"; // or it would be read as an integer
}

bool needsEscape(char32_t codePoint)
{
    const bool isControl = codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0);
    return isControl || codePoint == '"' || codePoint == '\\' || codePoint == 0x2028 || codePoint == 0x2029;
}

void appendEscaped(std::string& result, char32_t codePoint)
{
    switch (codePoint) {
    case '"':
    case '\\':
        (result += '\\') += static_cast<char>(codePoint);
        break;
    case '\n':
        result += "\\n";
        break;
    case '\r':
        result += "\\r";
        break;
    case '\t':
        result += "\\t";
        break;
    default:
        fmt::format_to(std::back_inserter(result), "\\u{:04x}", static_cast<std::uint32_t>(codePoint));
    }
}

void appendString(std::string& result, std::string_view text)
{
    result += '"';
    for (std::size_t offset = 0; offset < text.size();) {
        const DecodedCodePoint decoded = decodeCodePoint(text, offset);
        if (needsEscape(decoded.codePoint))
            appendEscaped(result, decoded.codePoint);
        else if (decoded.valid)
            result += text.substr(offset, decoded.length);
        else
            appendCodePoint(result, decoded.codePoint);
        offset += decoded.length;
    }
    result += '"';
}

void appendDate(std::string& result, NSDate date)
{
    // Split first: the earliest dates have no number of microseconds since 2001.
    const std::int64_t since1970 = microsecondsSince1970(date);
    std::int64_t seconds = since1970 / kMicrosecondsPerSecond;
    std::int64_t fraction = since1970 % kMicrosecondsPerSecond;
    seconds -= kReferenceDate;
    if (seconds < 0 && fraction > 0) {
        ++seconds;
        fraction -= kMicrosecondsPerSecond;
    }
    const char* sign = seconds < 0 || fraction < 0 ? "-" : "";
    fmt::format_to(
        std::back_inserter(result), "CAST({}{}.{:06}, \"{}\")", sign, std::abs(seconds), std::abs(fraction), kDateType);
}

void appendData(std::string& result, const NSData& data)
{
    result += "CAST(\"";
    for (const std::byte byte : data.span())
        fmt::format_to(std::back_inserter(result), "{:02x}", std::to_integer<unsigned>(byte));
    fmt::format_to(std::back_inserter(result), "\", \"{}\")", kDataType);
}

void appendArray(std::string& result, const Value::Array& values)
{
    result += '{';
    std::string_view separator;
    for (const Value& value : values) {
        result += separator;
        appendConstantText(result, value);
        separator = ", ";
    }
    result += '}';
}

} // namespace

std::optional<Value> numberFromText(std::string_view text)
{
    if (text.find_first_of(".eE") == std::string_view::npos) {
        const auto integer = wholeNumber<std::int64_t>(text);
        return integer ? std::optional<Value>(Value(*integer)) : std::nullopt;
    }
    const auto number = wholeNumber<double>(text);
    return number ? std::optional<Value>(Value(*number)) : std::nullopt;
}

std::optional<Value> dateFromReferenceSeconds(std::string_view text)
{
    const bool isNegative = text.starts_with('-');
    if (isNegative)
        text.remove_prefix(1);
    const std::size_t dot = text.find('.');
    std::string digits(dot == std::string_view::npos ? std::string_view() : text.substr(dot + 1));
    if (digits.find_first_not_of("0123456789") != std::string::npos)
        return std::nullopt;
    digits.resize(kFractionDigits, '0');
    const auto whole = wholeNumber<std::int64_t>(text.substr(0, dot));
    const auto part = wholeNumber<std::int64_t>(digits);
    if (!whole || *whole < 0 || !part)
        return std::nullopt;
    std::int64_t since1970 = 0;
    if (__builtin_add_overflow(isNegative ? -*whole : *whole, kReferenceDate, &since1970)
        || __builtin_mul_overflow(since1970, kMicrosecondsPerSecond, &since1970)
        || __builtin_add_overflow(since1970, isNegative ? -*part : *part, &since1970))
        return std::nullopt;
    return Value(dateWithMicrosecondsSince1970(since1970));
}

std::optional<Value> dataFromHexDigits(std::string_view text)
{
    if (text.size() % 2 != 0)
        return std::nullopt;
    std::vector<std::byte> bytes;
    bytes.reserve(text.size() / 2);
    for (; !text.empty(); text.remove_prefix(2)) {
        unsigned char byte = 0;
        const auto [stop, error] = std::from_chars(text.data(), text.data() + 2, byte, 16);
        if (error != std::errc() || stop != text.data() + 2)
            return std::nullopt;
        bytes.push_back(static_cast<std::byte>(byte));
    }
    return Value(NSData(std::move(bytes)));
}

void appendConstantText(std::string& result, const Value& value)
{
    switch (value.kind()) {
    case Value::Kind::Nil:
        result += "nil";
        break;
    case Value::Kind::Bool:
        result += value.asBool() ? '1' : '0';
        break;
    case Value::Kind::Integer:
        fmt::format_to(std::back_inserter(result), "{}", value.asInteger());
        break;
    case Value::Kind::Double:
        appendDouble(result, value.asDouble());
        break;
    case Value::Kind::String:
        appendString(result, value.asString());
        break;
    case Value::Kind::Date:
        appendDate(result, value.asDate());
        break;
    case Value::Kind::Data:
        appendData(result, value.asData());
        break;
    case Value::Kind::Object:
        result += "<object>";
        break;
    case Value::Kind::Array:
        appendArray(result, value.asArray());
        break;
    }
}

} // namespace tarn
