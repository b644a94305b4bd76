#include "tarnmodel/encryption/sealing/SafeNames.h"

#include <algorithm>
#include <string>

namespace tarn {

bool staysInFolder(const std::filesystem::path& name)
{
    return !name.empty() && name.is_relative() && name.native().find('\0') == std::string::npos
        && std::ranges::none_of(name, [](const std::filesystem::path& part) { return part == ".."; });
}

bool leadsNowhereElse(const std::filesystem::path& target, const std::filesystem::path& nameOfLink)
{
    if (target.empty() || !target.is_relative() || target.native().find('\0') != std::string::npos)
        return false;
    auto depth = std::distance(nameOfLink.begin(), nameOfLink.end()) - 1;
    bool wentDown = false;
    for (const std::filesystem::path& part : target) {
        if (part != "..") {
            wentDown = wentDown || (part != "." && !part.empty());
            depth += part != "." && !part.empty() ? 1 : 0;
        } else if (wentDown || --depth < 0) {
            return false; // up again out of a name that may be a link itself is not told by the text
        }
    }
    return true;
}

} // namespace tarn
