#pragma once

#include "tarnmodel/platform/foundation/values/NSRange.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn {

/// One stretch of a search string that belongs together, a quoted phrase or a tag, with the text that stands for it.
///
/// A value.
///
///     OVNoteSearchToken token(NSRange{0, 5}, "(ANY tags.title ==[cd] \"work\")");
class OVNoteSearchToken {
public:
    /// `predicateString` may be empty; it is not used yet.
    OVNoteSearchToken(NSRange range, std::string predicateString)
        : range_(range), predicateString_(std::move(predicateString))
    { }

    /// The first token, in the order of the list, that includes the location; null without one. It belongs to the list.
    static OVNoteSearchToken* tokenForLocation(std::uint64_t location, std::vector<OVNoteSearchToken>& tokens);
    static const OVNoteSearchToken* tokenForLocation(
        std::uint64_t location, const std::vector<OVNoteSearchToken>& tokens);
    /// An empty range includes nothing.
    bool includeLocation(std::uint64_t location) const noexcept;

    /// In UTF-16 units of the search string.
    NSRange range() const noexcept { return range_; }
    void setRange(NSRange range) noexcept { range_ = range; }
    /// The text of the predicate that the stretch stands for; may be empty.
    const std::string& predicateString() const noexcept { return predicateString_; }
    void setPredicateString(std::string_view predicateString) { predicateString_ = predicateString; }
    /// Whether the text has been taken; the other words of the stretch then add nothing.
    bool predicatedUsed() const noexcept { return predicatedUsed_; }
    void setPredicatedUsed(bool predicatedUsed) noexcept { predicatedUsed_ = predicatedUsed; }

private:
    NSRange range_;
    std::string predicateString_;
    bool predicatedUsed_ = false;
};

} // namespace tarn
