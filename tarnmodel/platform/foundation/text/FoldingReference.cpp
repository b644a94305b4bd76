#include "tarnmodel/platform/foundation/text/FoldingInternal.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <unicode/unistr.h>

namespace tarn::folding {

namespace {

const icu::Normalizer2& require(const icu::Normalizer2* normalizer, UErrorCode status)
{
    if (U_FAILURE(status) || !normalizer)
        throw NSException(NSInternalInconsistencyException, "The Unicode data of ICU are missing.");
    return *normalizer;
}

icu::UnicodeString normalized(const icu::Normalizer2& normalizer, const icu::UnicodeString& text)
{
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString result = normalizer.normalize(text, status);
    if (U_FAILURE(status))
        throw NSException(NSInternalInconsistencyException, "A text could not be normalized.");
    return result;
}

/// Folds every code point but the iota subscript, which is still a mark here.
icu::UnicodeString withFoldedLetters(const icu::UnicodeString& text)
{
    icu::UnicodeString result;
    for (int32_t start = 0; start < text.length();) {
        int32_t end = text.indexOf(static_cast<char16_t>(kIotaSubscript), start);
        if (end < 0)
            end = text.length();
        result.append(text.tempSubStringBetween(start, end).foldCase(U_FOLD_CASE_DEFAULT));
        if (end < text.length())
            result.append(text.charAt(end));
        start = end + 1;
    }
    return result;
}

icu::UnicodeString withoutMarksAndFormats(const icu::UnicodeString& text, bool isFolded)
{
    icu::UnicodeString result;
    RemovalFilter filter;
    for (int32_t index = 0; index < text.length(); index = text.moveIndex32(index, 1)) {
        const UChar32 codePoint = text.char32At(index);
        UChar32 last = codePoint;
        if (!isFolded) {
            const icu::UnicodeString folded = icu::UnicodeString(codePoint).foldCase(U_FOLD_CASE_DEFAULT);
            last = folded.char32At(folded.length() - 1);
        }
        if (filter.keeps(static_cast<char32_t>(codePoint), static_cast<char32_t>(last)))
            result.append(codePoint);
    }
    return result;
}

} // namespace

const icu::Normalizer2& canonicalDecomposition()
{
    UErrorCode status = U_ZERO_ERROR;
    static const icu::Normalizer2& normalizer = require(icu::Normalizer2::getNFDInstance(status), status);
    return normalizer;
}

const icu::Normalizer2& canonicalComposition()
{
    UErrorCode status = U_ZERO_ERROR;
    static const icu::Normalizer2& normalizer = require(icu::Normalizer2::getNFCInstance(status), status);
    return normalizer;
}

std::string foldByICU(std::string_view text, ComparisonOptions options)
{
    const std::u16string units = utf16FromUTF8(text);
    icu::UnicodeString result(units.data(), static_cast<int32_t>(units.size()));
    result = normalized(canonicalDecomposition(), result);
    if (options.caseInsensitive)
        result = withFoldedLetters(result);
    if (options.diacriticInsensitive)
        result = withoutMarksAndFormats(result, options.caseInsensitive);
    if (options.caseInsensitive)
        result.foldCase(U_FOLD_CASE_DEFAULT);
    result = normalized(canonicalComposition(), result);
    return utf8FromUTF16({result.getBuffer(), static_cast<std::size_t>(result.length())});
}

} // namespace tarn::folding

namespace tarn {

std::string foldByReference(std::string_view text)
{
    return folding::foldByICU(text, {.caseInsensitive = true, .diacriticInsensitive = true});
}

} // namespace tarn
