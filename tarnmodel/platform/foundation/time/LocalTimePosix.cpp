#include "tarnmodel/platform/foundation/system/EnvironmentInternal.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <mutex>

namespace tarn {

namespace {

/// Where libc looks for the files of zones unless TZDIR says otherwise.
constexpr std::string_view kZoneFolder = "/usr/share/zoneinfo";
constexpr std::string_view kMarkOfZoneFile = "TZif";

bool isZoneFile(const std::filesystem::path& file)
{
    std::array<char, kMarkOfZoneFile.size()> mark{};
    std::ifstream stream(file, std::ios::binary);
    return stream.read(mark.data(), mark.size()) && std::string_view(mark.data(), mark.size()) == kMarkOfZoneFile;
}

/// As libc reads TZ: a file of that name, or rules.
bool isKnownTimeZone(std::string_view value)
{
    if (value.starts_with(':'))
        value.remove_prefix(1);
    if (value.empty())
        return true;
    const char* const folder = std::getenv("TZDIR");
    return isZoneFile(std::filesystem::path(folder ? folder : kZoneFolder) / value) || isTimeZoneRule(value);
}

/// What TZ says is looked at when it says something new.
void tellOfUnknownZone()
{
    static std::mutex mutex;
    static std::optional<std::string> lastLooked;
    const char* const value = std::getenv("TZ");
    if (!value)
        return;
    {
        const std::lock_guard lock(mutex);
        if (lastLooked == value)
            return;
        lastLooked = value;
    }
    if (!isKnownTimeZone(value))
        logMessage("The system has no time zone \"" + std::string(value) + "\" and takes it for UTC.");
}

} // namespace

std::chrono::seconds systemLocalTimeOffset(NSDate date)
{
    // localtime_r alone would keep to the zone of its first call; the system may have been set to another since.
    ::tzset();
    tellOfUnknownZone();
    // The clock of the library counts nanoseconds, which end in 2262.
    const std::time_t time
        = std::chrono::floor<std::chrono::seconds>(systemTimeOfDate(date)).time_since_epoch().count();
    std::tm local{};
    return std::chrono::seconds(::localtime_r(&time, &local) ? local.tm_gmtoff : 0);
}

void setZoneVariableOfProcess(const std::string& name, const std::optional<std::string>& value)
{
    if (value)
        ::setenv(name.c_str(), value->c_str(), 1);
    else
        ::unsetenv(name.c_str());
    ::tzset();
}

} // namespace tarn
