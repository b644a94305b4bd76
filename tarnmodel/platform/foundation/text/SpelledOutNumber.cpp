#include "tarnmodel/platform/foundation/text/SpelledOutNumber.h"

#include "tarnmodel/platform/foundation/text/LocaleInternal.h"
#include "tarnmodel/platform/foundation/text/RegularExpression.h"

#include <unicode/fmtable.h>
#include <unicode/parsepos.h>
#include <unicode/rbnf.h>

#include <memory>

namespace tarn {

namespace {

constexpr int32_t kLongestNumber = 32;

/// Whether the text has the shape of a number: digits, or numerals in the order of their size.
///
/// ICU takes up to a second for 32 numerals in disorder, and reads next to none of them in the end. Possessive, so that
/// this takes no time itself.
bool isShapedAsNumber(std::string_view text)
{
    static const RegularExpression expression = [] {
        const std::string digit = "[一二两三四五六七八九壹贰叁肆伍陆柒捌玖]";
        const std::string below10000
            = "(?:" + digit + "千)?+[零〇]?+(?:" + digit + "百)?+[零〇]?+(?:" + digit + "?十)?+[零〇]?+" + digit + "?+";
        const std::string belowHundredMillion = "(?:" + below10000 + "万)?+" + below10000;
        const std::string belowTrillions = "(?:" + belowHundredMillion + "亿)?+" + belowHundredMillion;
        const std::string numerals = "(?:" + belowTrillions + "兆)?+" + belowTrillions;
        const std::string digits = "[零〇一二两三四五六七八九壹贰叁肆伍陆柒捌玖]++";
        return RegularExpression(
            "(?:第|负|-){0,2}+(?:[\\p{Nd},.]++|(?:" + digits + "|" + numerals + ")(?:点" + digits + ")?+)");
    }();
    return expression.matches(text).value_or(false);
}

/// Made once, on first use: that loads the rules of the language. Null when they are missing.
const icu::NumberFormat* chineseFormat()
{
    static const std::unique_ptr<const icu::NumberFormat> format = [] {
        UErrorCode status = U_ZERO_ERROR;
        auto made = std::make_unique<icu::RuleBasedNumberFormat>(
            icu::URBNF_SPELLOUT, localeWithIdentifier("zh_Hans_CN"), status);
        return U_SUCCESS(status) ? std::move(made) : nullptr;
    }();
    return format.get();
}

std::optional<std::int64_t> integerPart(double number)
{
    constexpr double kLimit = 9'223'372'036'854'775'808.0;
    const bool fits = number >= -kLimit && number < kLimit; // no for what is not a number
    return fits ? std::optional(static_cast<std::int64_t>(number)) : std::nullopt;
}

} // namespace

std::optional<std::int64_t> integerFromChineseNumerals(std::string_view text)
{
    if (text.size() > 3 * static_cast<std::size_t>(kLongestNumber))
        return std::nullopt;
    const icu::UnicodeString units
        = icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
    const icu::NumberFormat* format = chineseFormat();
    if (!format || units.isEmpty() || units.length() > kLongestNumber || !isShapedAsNumber(text))
        return std::nullopt;
    icu::Formattable value;
    icu::ParsePosition position(0);
    format->parse(units, value, position);
    if (position.getErrorIndex() >= 0 || position.getIndex() != units.length())
        return std::nullopt;
    if (value.getType() == icu::Formattable::kDouble)
        return integerPart(value.getDouble());
    return value.getInt64();
}

} // namespace tarn
