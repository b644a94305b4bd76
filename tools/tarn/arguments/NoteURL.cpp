#include "tools/tarn/arguments/NoteURL.h"

#include "tarnmodel/platform/foundation/text/Characters.h"
#include "tarnmodel/platform/foundation/text/PercentEncoding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

namespace tarn {

namespace {

/// Scheme, host and action, of which letter case does not count.
constexpr std::string_view kBeginning = "tarn://x-callback-url/open-note?";

/// Removes the part in front of the next `separator`, or all, from the text.
std::string_view partTakenFrom(std::string_view& text, char separator)
{
    const std::size_t end = text.find(separator);
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return part;
}

} // namespace

std::optional<NoteURL> noteURLFromText(std::string_view text)
{
    text = trimmed(text);
    if (lowercased(text.substr(0, kBeginning.size())) != kBeginning)
        return std::nullopt;
    std::string_view query = text.substr(kBeginning.size());
    query = query.substr(0, query.find('#'));
    NoteURL url;
    while (!query.empty()) {
        std::string_view value = partTakenFrom(query, '&');
        const std::string_view name = partTakenFrom(value, '=');
        std::string* wanted = name == "id" ? &url.identifier : name == "title" ? &url.title : nullptr;
        if (!wanted)
            continue;
        auto decoded = stringByRemovingPercentEncoding(value);
        if (!decoded)
            return std::nullopt;
        *wanted = std::move(*decoded);
    }
    if (url.identifier.empty() && url.title.empty())
        return std::nullopt;
    return url;
}

} // namespace tarn
