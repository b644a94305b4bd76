#include "platform/foundation/EnvironmentInternal.h"
#include "platform/foundation/NSUUID.h"
#include "platform/foundation/UTF.h"

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

std::optional<std::string> timeZoneIdentifierFromPath(std::string_view path)
{
    constexpr std::string_view kFolder = "zoneinfo/";
    const std::size_t found = path.rfind(kFolder);
    if (found == std::string_view::npos)
        return std::nullopt;
    std::string_view name = path.substr(found + kFolder.size());
    for (const std::string_view variant : {std::string_view("posix/"), std::string_view("right/")}) {
        if (name.starts_with(variant))
            name.remove_prefix(variant.size());
    }
    return name.empty() ? std::nullopt : std::optional(std::string(name));
}

std::optional<std::string> timeZoneIdentifierFromVariable(std::string_view value)
{
    if (value.starts_with(':'))
        value.remove_prefix(1);
    if (value.empty())
        return std::nullopt;
    if (auto name = timeZoneIdentifierFromPath(value))
        return name;
    return std::string(value);
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
