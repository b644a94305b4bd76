#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What could be read of a key's value: a text, or a list of texts.
struct FrontMatterValue {
    std::vector<std::string> items; ///< one for a text, none for an empty value
    bool isList = false;
    bool hasComment = false; ///< something stands there that the items do not hold
};

/// One top-level key of front matter with everything that belongs to it.
struct FrontMatterEntry {
    std::string key;                       ///< "" for a comment that stands alone
    std::string source;                    ///< its lines as they were written, each with its line end
    std::optional<FrontMatterValue> value; ///< none when it is more than a text or a list of texts
};

/// The front matter of a text and what follows it.
struct FrontMatter {
    std::vector<FrontMatterEntry> entries;
    std::string_view body;    ///< a view into the text that was given
    std::string_view lineEnd; ///< "\n" or "\r\n", as the first line has it
};

/// The front matter that a text begins with: lines between "---" and "---" (or "..."), the first of them the text's
/// first, with at least one key. None when there is none, or when a line between is no YAML of the simple kind (keys,
/// texts, quoted texts, lists, deeper lines of a key, comments): such a text is to stay as it is.
std::optional<FrontMatter> frontMatterOfText(std::string_view text);

/// Reads the value of one key: what stands behind the colon, and the deeper lines that follow. None for nested values,
/// block texts, anchors, and quotes that do not close.
std::optional<FrontMatterValue> readFrontMatterValue(
    std::string_view inlineText, const std::vector<std::string_view>& deeperLines);

} // namespace tarn
