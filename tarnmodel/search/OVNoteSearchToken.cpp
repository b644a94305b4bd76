#include "tarnmodel/search/OVNoteSearchToken.h"

#include <algorithm>

namespace tarn {

bool OVNoteSearchToken::includeLocation(std::uint64_t location) const noexcept
{
    return range_.location <= location && location - range_.location < range_.length;
}

const OVNoteSearchToken* OVNoteSearchToken::tokenForLocation(
    std::uint64_t location, const std::vector<OVNoteSearchToken>& tokens)
{
    const auto found = std::ranges::find_if(
        tokens, [location](const OVNoteSearchToken& token) { return token.includeLocation(location); });
    return found == tokens.end() ? nullptr : &*found;
}

OVNoteSearchToken* OVNoteSearchToken::tokenForLocation(std::uint64_t location, std::vector<OVNoteSearchToken>& tokens)
{
    return const_cast<OVNoteSearchToken*>(tokenForLocation(location, std::as_const(tokens)));
}

} // namespace tarn
