// Search strings of any bytes: a predicate whose canonical form stays, nothing, or the parser's exception.

#include "fuzz/search/Require.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/search/OVNoteSearchManager.h"

#include <cstdint>

using namespace tarn;

namespace {

void compile(std::string_view query)
{
    try {
        const auto predicate = OVNoteSearchManager::predicateForSearchString(query);
        if (!predicate)
            return;
        const std::string format = predicate->predicateFormat();
        require(isValidUTF8(format));
        require(NSPredicate::predicateWithFormat(format).predicateFormat() == format);
    } catch (const NSException& exception) {
        // Only "@ocr" makes texts that do not parse.
        require(exception.name() == NSInvalidArgumentException);
        require(OVNoteSearchManager::allowOCRSearch());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string bytes(data, data + size);
    OVNoteSearchManager::setAllowOCRSearch(bytes.front() % 2 != 0);
    const std::string_view query = std::string_view(bytes).substr(1);
    compile(query);
    require(isValidUTF8(OVNoteSearchManager::likeOrPatternForSearchString(query)));
    require(OVNoteSearchManager::likeOrRegexForSearchString(query).has_value() || query.size() > 10'000);
    require(isValidUTF8(OVNoteSearchManager::searchStringForNoteEditor(query)));
    const std::string rest = OVNoteSearchManager::searchStringWithoutSpecialSearches(query);
    require(!OVNoteSearchManager::searchStringContainsSpecialSearches(rest));
    require(OVNoteSearchManager::searchStringWithoutSpecialSearches(rest) == rest);
    return 0;
}
