#pragma once

#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The text of a file as a note holds it, and the dates that the file tells of itself.
struct ImportedText {
    std::string text;
    std::optional<NSDate> creationDate;
    std::optional<NSDate> modificationDate;
};

/// Takes YAML front matter off. Its title becomes the heading of a text that begins with none, its tags become hashtags
/// at the bottom, its dates are handed out. Whatever is not used so, to the last comment, stays in the text as a fenced
/// block below the body. A text with malformed front matter, or none, stays as it is.
ImportedText importedTextOfFile(std::string_view text);

/// The text with a hashtag for each of these names at its bottom, but for tags that it has already.
std::string textWithTags(std::string text, const std::vector<std::string>& names);

} // namespace tarn
