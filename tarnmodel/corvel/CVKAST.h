#pragma once

#include "tarnmodel/corvel/CVKTextSummary.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A half-open range of bytes of a document's text.
struct CVKRange {
    std::size_t location = 0; ///< of the first byte
    std::size_t length = 0;   ///< in bytes
    friend bool operator==(const CVKRange&, const CVKRange&) = default;
};

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

    /// The edits that make every link (not autolinks) to `from`, as it is or percent-decoded, a link to `to`; reference
    /// definitions once. `selectionRange` (UTF-16 units) is moved along.
    CVKTextOperationResult updateLinksURL(std::string_view from, std::string_view to, CVKRange selectionRange) const;
    /// The same of many links at a time: `newURL` is asked for each destination, as `textSummary().links` has it, and
    /// none leaves the link as it is. Nothing that it answers is asked for again.
    CVKTextOperationResult updateLinksURLs(
        const std::function<std::optional<std::string>(const std::string&)>& newURL, CVKRange selectionRange) const;
    /// Applies edits and parses the new text.
    CVKAST applyTextOperationResults(const CVKTextOperationResult& result) const;

    /// HTML as the CommonMark reference renderer writes it. Hashtags and wiki links show as their text. For tests and
    /// exports.
    std::string html() const;

    struct Document; ///< the parse; known inside this folder
    const Document& document() const noexcept { return *document_; }

private:
    explicit CVKAST(std::shared_ptr<const Document> document);
    std::shared_ptr<const Document> document_;
};

} // namespace tarn
