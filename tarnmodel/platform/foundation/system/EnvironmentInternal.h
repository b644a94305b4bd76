#pragma once

#include "tarnmodel/platform/foundation/system/Environment.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The answers of the operating system. The locale asks the variables of `Environment`, so that an overridden variable
/// shows there too.
EnvironmentProviders systemEnvironmentProviders();

/// "de_DE" from "de_DE.UTF-8@euro", "sr_Latn_RS" from "sr_RS@latin"; "en_US_POSIX" from "C", "C.UTF-8", "POSIX", "".
std::string localeIdentifierFromSystemName(std::string_view name);

/// Seconds of local time ahead of UTC, by libc.
std::chrono::seconds systemLocalTimeOffset(NSDate date);

/// Sets or removes TZ or TZDIR for libc. Not while another thread may look at a variable.
void setZoneVariableOfProcess(const std::string& name, const std::optional<std::string>& value);

/// Whether a value of TZ has the form of rules: "EST5EDT,M3.2.0,M11.1.0", "<+0530>-5:30".
bool isTimeZoneRule(std::string_view value);

/// Sixteen bytes from 32 hexadecimal digits with white space around them; none for anything else and for all zeros.
std::optional<MachineIdentifier> machineIdentifierFromText(std::string_view text);

/// The value of `key` in a file of shell assignments (KEY=value, quotes and backslashes as a shell reads them); none
/// when it is absent or empty.
std::optional<std::string> valueInAssignments(std::string_view text, std::string_view key);

} // namespace tarn
