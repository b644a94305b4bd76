#include "tarnmodel/platform/foundation/system/EnvironmentInternal.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/text/RegularExpression.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>

namespace tarn {

namespace {

constexpr std::string_view kNeutralLocale = "en_US_POSIX";

/// The value of one assignment without its quoting.
std::string unquoted(std::string_view text)
{
    std::string value;
    char quote = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const char character = text[index];
        if (quote == 0 && (character == '"' || character == '\''))
            quote = character;
        else if (character == quote)
            quote = 0;
        else if (character == '\\' && quote != '\'' && index + 1 < text.size())
            value.push_back(text[++index]);
        else
            value.push_back(character);
    }
    return value;
}

} // namespace

std::string localeIdentifierFromSystemName(std::string_view name)
{
    const std::string_view base = name.substr(0, name.find_first_of(".@"));
    if (base.empty() || base == "C" || base == "POSIX")
        return std::string(kNeutralLocale);

    const std::size_t at = name.find('@');
    const std::string_view modifier = at == std::string_view::npos ? std::string_view() : name.substr(at + 1);
    const std::string_view script = modifier == "latin" ? "_Latn" : modifier == "cyrillic" ? "_Cyrl" : "";
    std::string identifier(base);
    std::replace(identifier.begin(), identifier.end(), '-', '_');
    identifier.insert(std::min(identifier.find('_'), identifier.size()), script);
    return identifier;
}

bool isTimeZoneRule(std::string_view value)
{
    static const RegularExpression rule([] {
        const std::string name = "(?:[A-Za-z]{3,}|<[A-Za-z0-9+-]{3,}>)";
        const std::string time = "[+-]?\\d{1,3}(?::\\d{1,2}){0,2}";
        const std::string day = "(?:J?\\d{1,3}|M\\d{1,2}\\.\\d\\.\\d)(?:/" + time + ")?";
        return "^" + name + time + "(?:" + name + "(?:" + time + ")?(?:," + day + "," + day + ")?)?$";
    }());
    return rule.matches(value) == true;
}

std::optional<MachineIdentifier> machineIdentifierFromText(std::string_view text)
{
    const std::string_view digits = trimmed(text);
    if (digits.size() != 32)
        return std::nullopt;
    std::string identifier(digits);
    for (const std::size_t hyphen : {std::size_t(8), std::size_t(13), std::size_t(18), std::size_t(23)})
        identifier.insert(hyphen, 1, '-');
    const auto bytes = bytesOfUUIDString(identifier);
    if (!bytes || *bytes == MachineIdentifier{})
        return std::nullopt;
    return bytes;
}

std::optional<std::string> valueInAssignments(std::string_view text, std::string_view key)
{
    std::optional<std::string> value;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.starts_with(key) && line.size() > key.size() && line[key.size()] == '=')
            value = unquoted(line.substr(key.size() + 1)); // the last one counts, as in a shell
    }
    return value && !value->empty() ? value : std::nullopt;
}

} // namespace tarn
