#include "tarnmodel/platform/foundation/text/FoldingSegmentInternal.h"

#include "tarnmodel/platform/foundation/text/FoldingInternal.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <unicode/unistr.h>

#include <algorithm>
#include <vector>

namespace tarn::folding {

namespace {

struct Character {
    char32_t codePoint;
    std::uint8_t combiningClass;
};
using Characters = std::vector<Character>;

Character character(UChar32 codePoint)
{
    return {static_cast<char32_t>(codePoint), u_getCombiningClass(codePoint)};
}

void append(Characters& characters, const icu::UnicodeString& text)
{
    for (int32_t index = 0; index < text.length(); index = text.moveIndex32(index, 1))
        characters.push_back(character(text.char32At(index)));
}

/// Brings each run of marks into canonical order.
void reorder(Characters& characters)
{
    const auto isStarter = [](const Character& entry) { return entry.combiningClass == 0; };
    for (auto start = characters.begin(); start != characters.end();) {
        start = std::find_if_not(start, characters.end(), isStarter);
        const auto end = std::find_if(start, characters.end(), isStarter);
        std::stable_sort(start, end,
            [](const Character& left, const Character& right) { return left.combiningClass < right.combiningClass; });
        start = end;
    }
}

Characters decomposed(std::string_view text)
{
    Characters characters;
    icu::UnicodeString decomposition;
    for (std::size_t offset = 0; offset < text.size();) {
        const DecodedCodePoint decoded = decodeCodePoint(text, offset);
        offset += decoded.length;
        if (canonicalDecomposition().getDecomposition(icuCodePoint(decoded.codePoint), decomposition))
            append(characters, decomposition);
        else
            characters.push_back(character(icuCodePoint(decoded.codePoint)));
    }
    reorder(characters);
    return characters;
}

icu::UnicodeString caseFolded(char32_t codePoint)
{
    return icu::UnicodeString(icuCodePoint(codePoint)).foldCase();
}

/// Folds, then removes marks and format characters; of two foldings the second one turns the iota subscript into a
/// letter.
Characters foldedAndFiltered(const Characters& source)
{
    Characters result;
    RemovalFilter filter;
    for (const Character& entry : source) {
        if (isMark(entry.codePoint)) {
            if (filter.keeps(entry.codePoint, entry.codePoint))
                append(result, caseFolded(entry.codePoint));
            continue;
        }
        const icu::UnicodeString folded = caseFolded(entry.codePoint);
        const auto last = static_cast<char32_t>(folded.char32At(folded.length() - 1));
        if (filter.keeps(entry.codePoint, last))
            append(result, folded);
    }
    reorder(result);
    return result;
}

} // namespace

std::string foldSegment(std::string_view segment)
{
    icu::UnicodeString text;
    for (const Character& entry : foldedAndFiltered(decomposed(segment)))
        text.append(icuCodePoint(entry.codePoint));
    UErrorCode status = U_ZERO_ERROR;
    text = canonicalComposition().normalize(text, status);
    if (U_FAILURE(status))
        throw NSException(NSInternalInconsistencyException, "A text could not be normalized.");
    return utf8FromUTF16({text.getBuffer(), static_cast<std::size_t>(text.length())});
}

} // namespace tarn::folding
