#pragma once

#include "tarnmodel/corvel/scanning/SourceRange.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace tarn::corvel {

struct ScannedHashtag {
    SourceRange name;
    std::size_t end = 0; ///< after the hashtag
    bool closed = false; ///< `#a b#`
};

/// What ends a word beside white space, for hashtags and for the search field alike.
bool isTagTerminator(char32_t codePoint) noexcept;
/// Digits and hyphens only: a number or a date.
bool isNumberLike(std::string_view name) noexcept;
/// Six hex digits: a colour.
bool startsLikeColor(std::string_view name) noexcept;

/// The hashtag whose hash mark stands at `offset`. Looks at 502 code points at most.
std::optional<ScannedHashtag> scanHashtag(std::string_view content, std::size_t offset) noexcept;

} // namespace tarn::corvel
