#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

class CVKAST;

/// A link to a note by its title, as a text writes it: `[[title]]` or `[[title|alias]]`.
class CVKWikiLink {
public:
    /// `offset` counts UTF-16 code units.
    CVKWikiLink(std::string decodedTitle, std::size_t offset) : decodedTitle_(std::move(decodedTitle)), offset_(offset)
    { }

    /// The title that is linked: unescaped and trimmed.
    const std::string& decodedTitle() const noexcept { return decodedTitle_; }
    /// Where the link starts in the text, in UTF-16 code units.
    std::size_t offset() const noexcept { return offset_; }

    /// A wiki link as a text writes it: the title escaped, on one line; the alias as it is.
    static std::string markdown(std::string_view title, const std::optional<std::string>& alias = std::nullopt);

    /// The text with every wiki link to `title` (compared folded) pointing at `newTitle`; aliases and inner blanks
    /// stay. With `skipInTitle` links that start in the title line stay as they are.
    static CVKAST updateWikiLinkWithTitle(
        std::string_view title, std::string_view newTitle, bool skipInTitle, std::string_view text);

    friend bool operator==(const CVKWikiLink&, const CVKWikiLink&) = default;

private:
    std::string decodedTitle_;
    std::size_t offset_;
};

} // namespace tarn
