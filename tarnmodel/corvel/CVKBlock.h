#pragma once

#include "tarnmodel/corvel/CVKRange.h"

namespace tarn {

/// A block of a document, see `CVKAST::topLevelBlocks`. A value.
struct CVKBlock {
    /// What a block is.
    enum class Kind {
        Heading,     ///< `# text`, or a text above a line of = or -
        Paragraph,   ///< text; a table is one too
        Html,        ///< raw HTML
        Definitions, ///< link reference definitions, one or several
        Code,        ///< fenced or indented code
        Other,       ///< a quote, a list or a thematic break
    };

    Kind kind = Kind::Other; ///< what it is
    int level = 0;           ///< of a heading, 1 to 6; else 0
    bool isSetext = false;   ///< a heading by a line of = or - below it, which belongs to `range`
    CVKRange range; ///< bytes of `CVKAST::markdown()`: from its first byte that is no blank to the end of its last
                    ///< line, line ending excluded
    friend bool operator==(const CVKBlock&, const CVKBlock&) = default;
};

} // namespace tarn
