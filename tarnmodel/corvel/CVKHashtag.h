#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class CVKAST;

/// Names of tags, and texts rewritten for them.
class CVKHashtag {
public:
    CVKHashtag() = delete;

    // Names -----------------------------------------------------------------------------------------------------------
    /// The canonical written form of a tag path; "" when the name is unusable. Idempotent, and the paths above a
    /// canonical path are canonical.
    static std::string sanitizeTagName(std::string_view name);
    /// The key by which two paths are the same tag: fold(sanitizeTagName(name)).
    static std::string normalizeTagName(std::string_view name);
    /// The path split at "/", empty pieces dropped.
    static std::vector<std::string> componentsForForTagName(std::string_view name);
    /// The path of these components, joined by "/".
    static std::string tagNameFromComponents(const std::vector<std::string>& components);
    /// The hashtag as a text writes it: `#name`, or `#name#` where the name needs the closed form; "" for an unusable
    /// name.
    static std::string hashtagStringForTagName(std::string_view name);

    // Finding ---------------------------------------------------------------------------------------------------------
    /// A hashtag in a text.
    struct Found {
        std::string_view path; ///< as written, a view of the text
        std::size_t end = 0;   ///< the byte after the hashtag
    };
    /// The hashtag whose hash mark is the byte at `offset`, by the rules for characters alone: whether it stands in
    /// code or in a link, a parse tells.
    static std::optional<Found> hashtagAt(std::string_view text, std::size_t offset) noexcept;

    // Rewriting: each gives the parsed document of the new text, checked by a fresh parse. An unusable name gives the
    // text unchanged.
    /// Below the title, so that title and links to it survive.
    static CVKAST addTagNameToTheTopOfString(std::string_view name, std::string_view text);
    /// Below the text, or in a last line of tags.
    static CVKAST addTagNameToTheBottomOfString(std::string_view name, std::string_view text);
    /// Every hashtag of the old path and of every path below it; tails stay as written.
    static CVKAST renameTagName(std::string_view name, std::string_view newName, std::string_view text);
    /// Without the hashtags of the path and of every path below it.
    static CVKAST removeTagName(std::string_view name, std::string_view text);
};

} // namespace tarn
