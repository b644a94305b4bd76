#pragma once

#include "tarnmodel/platform/foundation/values/NSRange.h"

#include <string_view>
#include <vector>

namespace tarn {

// What the two expressions of the search language match, from left to right, found in one pass over the text. The
// expressions themselves take minutes for some texts of 100 KB. Texts are valid UTF-16.

/// The matches of `OVNoteSearchManager::quotedSearchRegularExpression()`.
std::vector<NSRange> quotedMatches(std::u16string_view text);
/// The matches of `OVNoteSearchManager::tagSearchRegularExpression()`.
std::vector<NSRange> tagMatches(std::u16string_view text);

/// The text without the stretches, which are in order and do not overlap.
std::u16string textWithoutRanges(std::u16string_view text, const std::vector<NSRange>& stretches);

} // namespace tarn
