#include "tarnmodel/corvel/rewriting/TagPath.h"

#include "tarnmodel/corvel/scanning/TagNames.h"

#include "tarnmodel/platform/foundation/text/Folding.h"

#include <algorithm>

namespace tarn::corvel {

TagPath::TagPath(std::string_view name) : key_(normalizedTagName(name)) { }

std::optional<std::string> TagPath::tailOf(std::string_view path) const
{
    for (std::size_t end = 0; end < path.size();) {
        end = std::min(path.find('/', end + 1), path.size());
        if (fold(path.substr(0, end)) == key_)
            return std::string(path.substr(end));
    }
    return std::nullopt;
}

} // namespace tarn::corvel
