#pragma once

#include "tarnmodel/platform/foundation/text/Folding.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>

#include <string>
#include <string_view>

namespace tarn {

/// The same bytes as `fold` by ICU alone; slow. It is what the fast path is made from and tested against.
std::string foldByReference(std::string_view text);

} // namespace tarn

namespace tarn::folding {

/// Marks after a base below this code point (Latin, Greek, Cyrillic and what stands among them) are dropped.
inline constexpr char32_t kFirstBaseThatKeepsMarks = 0x0510;
/// The one mark that case folding turns into a letter.
inline constexpr char32_t kIotaSubscript = 0x0345;
inline constexpr char32_t kZeroWidthJoiner = 0x200D;

/// ICU's normalizers, made once.
const icu::Normalizer2& canonicalDecomposition();
const icu::Normalizer2& canonicalComposition();

inline UChar32 icuCodePoint(char32_t codePoint) noexcept
{
    return static_cast<UChar32>(codePoint);
}
inline bool isMark(char32_t codePoint) noexcept
{
    return (U_GET_GC_MASK(icuCodePoint(codePoint)) & U_GC_M_MASK) != 0;
}
/// A format character that folding removes.
inline bool isRemovedFormat(char32_t codePoint) noexcept
{
    return codePoint != kZeroWidthJoiner && u_charType(icuCodePoint(codePoint)) == U_FORMAT_CHAR;
}

/// Walks decomposed text and says what is removed from it.
class RemovalFilter {
public:
    /// Whether `codePoint` stays. `folded` is what its last code point becomes by case folding.
    bool keeps(char32_t codePoint, char32_t folded) noexcept
    {
        if (isRemovedFormat(codePoint))
            return false; // the base before it goes on being the base
        if (!isMark(codePoint)) {
            dropsMarks_ = folded < kFirstBaseThatKeepsMarks;
            return true;
        }
        if (dropsMarks_)
            return false;
        // The iota subscript that stays will be the letter iota, which is the base of what follows.
        dropsMarks_ = codePoint == kIotaSubscript;
        return true;
    }
    bool dropsMarks() const noexcept { return dropsMarks_; }

private:
    bool dropsMarks_ = false; // marks without a base stay
};

/// The folds by ICU alone, as the options ask; slow.
std::string foldByICU(std::string_view text, ComparisonOptions options);

} // namespace tarn::folding
