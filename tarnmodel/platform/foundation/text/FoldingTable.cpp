#include "tarnmodel/platform/foundation/text/FoldingTableInternal.h"

#include "tarnmodel/platform/foundation/text/FoldingInternal.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <unicode/unistr.h>

#include <algorithm>
#include <memory>
#include <string>

namespace tarn::folding {

namespace {

bool hasBoundaryBefore(UChar32 codePoint)
{
    return canonicalComposition().hasBoundaryBefore(codePoint);
}

icu::UnicodeString decomposed(char32_t codePoint)
{
    const UChar32 character = icuCodePoint(codePoint);
    icu::UnicodeString result;
    if (!canonicalDecomposition().getDecomposition(character, result))
        result = icu::UnicodeString(character);
    return result;
}

Entry markEntry(char32_t codePoint, std::string_view bytes)
{
    const UChar32 mark = icuCodePoint(codePoint);
    const icu::UnicodeString itself(mark);
    const auto quickCheck = u_getIntPropertyValue(mark, UCHAR_NFC_QUICK_CHECK);
    const bool staysAsItIs
        = decomposed(codePoint) == itself && icu::UnicodeString(itself).foldCase() == itself && quickCheck != UNORM_NO;
    const std::uint8_t combiningClass = u_getCombiningClass(mark);

    Entry entry(staysAsItIs ? EntryKind::Mark : EntryKind::ComplexMark, bytes);
    entry.setCombiningClass(combiningClass);
    entry.setCombinesBackward(combiningClass == 0 ? !hasBoundaryBefore(mark) : quickCheck != UNORM_YES);
    return entry;
}

/// Whether marks are dropped after the last base of the folded text, which is decomposed.
bool dropsMarksAfter(const icu::UnicodeString& folded)
{
    RemovalFilter filter;
    for (int32_t index = 0; index < folded.length(); index = folded.moveIndex32(index, 1)) {
        const auto codePoint = static_cast<char32_t>(folded.char32At(index));
        filter.keeps(codePoint, codePoint);
    }
    return filter.dropsMarks();
}

Entry starterEntry(char32_t codePoint, const std::string& result)
{
    icu::UnicodeString folded = decomposed(codePoint);
    folded.foldCase();
    const UChar32 first = folded.char32At(0);
    const UChar32 firstOfResult = icuCodePoint(decodeCodePoint(result, 0).codePoint);
    icu::UnicodeString resultDecomposed;
    UErrorCode status = U_ZERO_ERROR;
    canonicalDecomposition().normalize(icu::UnicodeString::fromUTF8(result), resultDecomposed, status);
    const bool isOneCodePoint = resultDecomposed.countChar32() == 1;

    const bool combinesBackward = !hasBoundaryBefore(first) || !hasBoundaryBefore(firstOfResult);
    const bool startsWithMark = u_getCombiningClass(first) != 0 || isMark(static_cast<char32_t>(first));
    if (U_FAILURE(status) || startsWithMark || (combinesBackward && !isOneCodePoint))
        return {};
    Entry entry(combinesBackward ? EntryKind::JoiningStarter : EntryKind::Starter, result);
    entry.setDropsMarks(dropsMarksAfter(folded));
    entry.setIsComposed(!isOneCodePoint);
    return entry;
}

Entry makeEntry(char32_t codePoint)
{
    if (isRemovedFormat(codePoint))
        return {EntryKind::Removed, {}};
    std::string text;
    appendCodePoint(text, codePoint);
    if (isMark(codePoint))
        return markEntry(codePoint, text);
    const std::string result = foldByReference(text);
    return result.empty() || result.size() > Entry::kMostBytes ? Entry() : starterEntry(codePoint, result);
}

} // namespace

std::array<std::atomic<const Table::Page*>, 0x1100> Table::pages_;

const Table::Page* Table::makePage(std::uint32_t number)
{
    auto made = std::make_unique<Page>();
    for (std::uint32_t index = 0; index < made->size(); ++index)
        (*made)[index] = makeEntry(number * 256 + index);
    const Page* expected = nullptr;
    if (pages_[number].compare_exchange_strong(expected, made.get(), std::memory_order_acq_rel))
        return made.release();
    return expected; // another thread was faster
}

} // namespace tarn::folding
