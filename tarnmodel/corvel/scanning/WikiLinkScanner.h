#pragma once

#include "tarnmodel/corvel/scanning/SourceRange.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarn::corvel {

struct ScannedWikiLink {
    SourceRange title; ///< as written, trimmed
    SourceRange alias; ///< as written, trimmed
    bool hasAlias = false;
    std::size_t end = 0; ///< after the brackets
};

/// The wiki link whose first bracket stands at `offset`; none where `[[1]](url)` is an ordinary link.
std::optional<ScannedWikiLink> scanWikiLink(std::string_view content, std::size_t offset) noexcept;

/// A title or alias as it is meant: without backslash escapes, trimmed.
std::string decodedWikiText(std::string_view raw);
/// A title as it is written between the brackets: `\ [ ] |` escaped, line breaks as blanks.
std::string encodedWikiTitle(std::string_view title);

} // namespace tarn::corvel
