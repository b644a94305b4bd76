#pragma once

#include "tarnmodel/corvel/CVKBlock.h"
#include "tarnmodel/corvel/CVKLink.h"
#include "tarnmodel/corvel/CVKRange.h"
#include "tarnmodel/corvel/CVKTextSummary.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Replace the bytes of `range` by `replacement`.
struct CVKTextEdit {
    CVKRange range;          ///< of the text before any edit
    std::string replacement; ///< UTF-8
    friend bool operator==(const CVKTextEdit&, const CVKTextEdit&) = default;
};

/// Edits of one operation, sorted and disjoint, and where a selection lies after them.
struct CVKTextOperationResult {
    std::vector<CVKTextEdit> edits; ///< of the text before the operation
    CVKRange selectionRange;        ///< UTF-16 units
};

class CVKAST;
struct CVKCheckedEdits;

/// Whether a text after some of its edits, true where taken, still says what it must.
using CVKEditCheck = std::function<bool(const CVKAST& after, const std::vector<bool>& taken)>;

/// A parsed Markdown document: the text as given, and what was found in it.
///
/// A value; copies share the parse. Any thread. The text is never normalised: all ranges are bytes of it.
class CVKAST {
public:
    /// Parses `text`. Any bytes are taken. Raises `NSInvalidArgumentException` for more than 2 GiB.
    static CVKAST fromMarkdown(std::string_view text);
    static CVKAST fromMarkdown(std::string&& text);
    static CVKAST fromMarkdown(const char* text) { return fromMarkdown(std::string_view(text)); }

    /// The text of the document.
    const std::string& markdown() const noexcept;
    /// What a note derives from it; made on first use.
    const CVKTextSummary& textSummary() const;

    /// All links, pictures and wiki links, in order of their start; what stands in the text of a link follows it. Each
    /// call looks at the text again.
    std::vector<CVKLink> links() const;
    /// All link reference definitions in order, also those that no link uses. Each call looks at the text again.
    std::vector<CVKLinkDefinition> linkDefinitions() const;
    /// The blocks directly below the document, in order, `limit` of them at most.
    std::vector<CVKBlock> topLevelBlocks(std::size_t limit) const;

    /// The edits that make every link (not autolinks) to `from`, as it is or percent-decoded, a link to `to`; reference
    /// definitions once. `selectionRange` (UTF-16 units) is moved along.
    CVKTextOperationResult updateLinksURL(std::string_view from, std::string_view to, CVKRange selectionRange) const;
    /// The same of many links at a time: `newURL` is asked for each destination, as `textSummary().links` has it, and
    /// none leaves the link as it is. Nothing that it answers is asked for again.
    CVKTextOperationResult updateLinksURLs(
        const std::function<std::optional<std::string>(const std::string&)>& newURL, CVKRange selectionRange) const;
    /// Applies edits and parses the new text.
    CVKAST applyTextOperationResults(const CVKTextOperationResult& result) const;
    /// Makes edits, sorted and disjoint, and keeps those with which `check` holds: mostly all; where one spoils the
    /// text, all but it. `check` is asked several times where it fails.
    CVKCheckedEdits applyEdits(std::span<const CVKTextEdit> edits, const CVKEditCheck& check) const;

    /// HTML as the CommonMark reference renderer writes it. Hashtags and wiki links show as their text. For tests and
    /// exports.
    std::string html() const;

    struct Document; ///< the parse; known inside this folder
    const Document& document() const noexcept { return *document_; }

private:
    explicit CVKAST(std::shared_ptr<const Document> document);
    std::shared_ptr<const Document> document_;
};

/// What edits came to that were made as far as they hold.
struct CVKCheckedEdits {
    CVKAST document;         ///< of the text with the edits that were taken
    std::vector<bool> taken; ///< which of them
};

} // namespace tarn
