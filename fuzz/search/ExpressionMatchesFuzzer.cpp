// The scanners find what the two expressions match.

#include "fuzz/search/Require.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/search/ExpressionMatches.h"
#include "tarnmodel/search/OVNoteSearchManager.h"

#include <algorithm>
#include <cstdint>

using namespace tarn;

namespace {

bool isSame(const std::vector<NSRange>& ranges, const RegularExpression& expression, std::string_view text)
{
    return std::ranges::equal(ranges, expression.allMatches(text), {}, {}, &RegularExpressionMatch::range);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // The expressions take too long for more.
    const std::string text = validUTF8(std::string(data, data + std::min<std::size_t>(size, 1'000)));
    const std::u16string units = utf16FromUTF8(text);
    require(isSame(quotedMatches(units), OVNoteSearchManager::quotedSearchRegularExpression(), text));
    require(isSame(tagMatches(units), OVNoteSearchManager::tagSearchRegularExpression(), text));
    return 0;
}
