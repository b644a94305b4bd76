#pragma once

#include "tarnmodel/corvel/CVKAST.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn::corvel {

/// The text with the edits made. Raises `NSInvalidArgumentException` for edits that overlap, are not sorted or lie
/// outside.
std::string appliedEdits(std::string_view text, std::span<const CVKTextEdit> edits);
/// Where a UTF-16 range of the text lies after the edits; a place within replaced text stays as near as it can.
CVKRange movedSelection(std::string_view text, std::span<const CVKTextEdit> edits, CVKRange selection);

/// Counts, links and wiki titles: what no rewriting of tags changes.
bool haveSameLinksAndCounts(const CVKTextSummary& a, const CVKTextSummary& b);

} // namespace tarn::corvel
