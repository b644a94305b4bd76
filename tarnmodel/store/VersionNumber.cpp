#include "tarnmodel/store/VersionNumberInternal.h"

#include <charconv>
#include <system_error>

namespace tarn {

VersionNumber versionNumberOf(std::string_view version)
{
    const std::size_t blank = version.rfind(' ');
    if (blank == std::string_view::npos)
        return {.name = version};
    const std::string_view digits = version.substr(blank + 1);
    VersionNumber found{.name = version.substr(0, blank)};
    const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), found.number);
    const bool isNumber = failure == std::errc() && end == digits.data() + digits.size();
    return isNumber ? found : VersionNumber{.name = version};
}

} // namespace tarn
