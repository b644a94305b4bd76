#pragma once

#include "tarnmodel/corvel/CVKRange.h"

#include <cstddef>
#include <optional>
#include <string>

namespace tarn {

/// How a text writes a link.
enum class CVKLinkForm {
    Inline,         ///< `[text](destination "title")`
    Image,          ///< `![text](destination "title")`
    Reference,      ///< `[text][label]`, `[label][]` or `[label]`
    ImageReference, ///< the same after "!"
    Autolink,       ///< `<https://e.org>` or `<me@e.org>`
    Wiki,           ///< `[[title]]` or `[[title|alias]]`, also after "!"
};

/// How a reference names its definition.
enum class CVKReferenceShape {
    None,      ///< the link is no reference
    Full,      ///< `[text][label]`
    Collapsed, ///< `[label][]`
    Shortcut,  ///< `[label]`
};

/// A link or picture as a text writes it, see `CVKAST::links`.
///
/// A value. All ranges are bytes of `CVKAST::markdown()`. Those of a link that goes over several lines of a quote or
/// list hold what begins these lines.
struct CVKLink {
    CVKLinkForm form = CVKLinkForm::Inline; ///< how it is written
    CVKRange range;                         ///< the whole link, all brackets and its "!" included
    /// What stands between the first brackets, as written. Of a wiki link its alias, trimmed; without a "|" an empty
    /// range behind the title. Of an autolink its destination.
    CVKRange text;
    /// Whether a text is written beside the destination, were it empty: never for an autolink, and for a wiki link if
    /// it has a "|".
    bool hasText = false;
    /// As written, without < and >; of a reference that of its definition; of a wiki link its title, trimmed.
    CVKRange destination;
    /// The destination as it is meant, UTF-8: as `CVKTextSummary::links` has it, and of a wiki link as
    /// `CVKWikiLink::decodedTitle`.
    std::string decodedDestination;
    /// The title of `Inline` and `Image`, as written between its marks. {0, 0} when there is none; that of a reference
    /// stands in its definition.
    CVKRange title;
    std::optional<std::size_t> definition;             ///< of a reference: its place in `CVKAST::linkDefinitions()`
    CVKReferenceShape shape = CVKReferenceShape::None; ///< how a reference names its definition
    bool isEmbed = false; ///< a wiki link with "!" before it, with which `range` begins then
    /// Whether it stands in a row of a table, where a "|" splits cells unless a backslash is before it. The rows are
    /// the lines of a paragraph from the first on that is followed by a delimiter row with as many cells.
    bool isInTableRow = false;
    friend bool operator==(const CVKLink&, const CVKLink&) = default;
};

/// `[label]: destination "title"`, see `CVKAST::linkDefinitions`.
///
/// A value. All ranges are bytes of `CVKAST::markdown()`.
struct CVKLinkDefinition {
    CVKRange range;       ///< from its first bracket to the end of its last line, line ending excluded
    CVKRange label;       ///< as written between the brackets
    CVKRange destination; ///< as written, without < and >
    CVKRange title;       ///< as written between its marks; {0, 0} when there is none
    std::size_t uses = 0; ///< links that it gives their destination; 0 where an earlier one has the same label
    friend bool operator==(const CVKLinkDefinition&, const CVKLinkDefinition&) = default;
};

} // namespace tarn
