#pragma once

#include "tarnmodel/corvel/blocks/Document.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn::corvel {

/// The text of a leaf as inline parsing sees it: its lines without prefixes, joined by line ends, trimmed at both ends.
///
/// Lines that follow each other in the source are read in place; others are copied together, with a table back to the
/// source. Reuse one object for many leaves: it keeps its buffers. The document's text must outlive it.
class LeafContent {
public:
    void assign(const CVKAST::Document& document, const Block& leaf);

    std::string_view text() const noexcept { return text_; }
    /// The source offset of a content offset. The end of a range is better asked for by `sourceRange`.
    Offset sourceOffset(std::size_t offset) const noexcept;
    /// The content offset of a source offset within one of its lines.
    std::size_t contentOffset(Offset source) const noexcept;
    /// The source range of a content range; its end lies on the line of its last byte.
    SourceRange sourceRange(std::size_t begin, std::size_t end) const noexcept;

private:
    struct Segment {
        Offset content = 0;
        Offset source = 0;
    };

    std::string_view text_;
    std::string joined_;
    std::vector<Segment> segments_;
};

} // namespace tarn::corvel
