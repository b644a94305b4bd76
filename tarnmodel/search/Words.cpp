#include "tarnmodel/search/Words.h"

#include "tarnmodel/platform/foundation/text/Characters.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

namespace tarn {

std::optional<std::string_view> WordSplitter::next()
{
    if (!rest_)
        return std::nullopt;
    const std::size_t blank = rest_->find(' ');
    const std::string_view word = rest_->substr(0, blank);
    if (blank == std::string_view::npos)
        rest_.reset();
    else
        rest_->remove_prefix(blank + 1);
    return word;
}

bool containsBlank(std::string_view text)
{
    for (std::size_t offset = 0; offset < text.size();) {
        const DecodedCodePoint next = decodeCodePoint(text, offset);
        if (isBlank(next.codePoint))
            return true;
        offset += next.length;
    }
    return false;
}

} // namespace tarn
