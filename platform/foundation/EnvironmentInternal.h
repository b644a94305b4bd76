#pragma once

#include "platform/foundation/Environment.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The answers of the operating system. Locale and time zone ask the variables of `Environment`, so that an overridden
/// variable shows there too.
EnvironmentProviders systemEnvironmentProviders();

/// "de_DE" from "de_DE.UTF-8@euro", "sr_Latn_RS" from "sr_RS@latin"; "en_US_POSIX" from "C", "C.UTF-8", "POSIX", "".
std::string localeIdentifierFromSystemName(std::string_view name);

/// The Olson name that a value of TZ stands for; none for nothing, and the text itself for forms that name no file.
std::optional<std::string> timeZoneIdentifierFromVariable(std::string_view value);

/// What follows "zoneinfo/" in the path of a zone's file; none for another path.
std::optional<std::string> timeZoneIdentifierFromPath(std::string_view path);

/// Sixteen bytes from 32 hexadecimal digits with white space around them; none for anything else and for all zeros.
std::optional<MachineIdentifier> machineIdentifierFromText(std::string_view text);

/// The value of `key` in a file of shell assignments (KEY=value, quotes and backslashes as a shell reads them); none
/// when it is absent or empty.
std::optional<std::string> valueInAssignments(std::string_view text, std::string_view key);

} // namespace tarn
