#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn {

/// What was done to a text when a tag or a note was renamed, or a tag added or removed: a change that no person made,
/// and that can be made again to another version of the text.
///
///     if (const auto rewriting = TextRewriting::between(former, rewritten))
///         text = rewriting->appliedTo(text);
class TextRewriting {
public:
    /// None when the texts differ in anything else, or in more than one tag: then the change may be a person's. What is
    /// given makes exactly `rewritten` of `former`.
    static std::optional<TextRewriting> between(std::string_view former, std::string_view rewritten);
    /// The text with the same done to it; unchanged where it has none of the names.
    std::string appliedTo(std::string text) const;

private:
    enum class TagChange { None, Renamed, Removed, AddedOnTop, AddedAtBottom };

    bool takeLinks(std::string_view former, std::string_view rewritten);
    bool takeTags(std::string_view former, std::string_view rewritten);
    bool makes(std::string_view former, std::string_view rewritten) const;
    std::string withTag(std::string text) const;

    std::vector<std::pair<std::string, std::string>> renamedTitles_;
    bool skipsTitleLine_ = false;
    TagChange tagChange_ = TagChange::None;
    std::string tag_;
    std::string newTag_;
};

} // namespace tarn
