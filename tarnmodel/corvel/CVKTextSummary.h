#pragma once

#include "tarnmodel/corvel/CVKWikiLink.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tarn {

/// What a note derives from its text. All strings UTF-8.
struct CVKTextSummary {
    std::string title;              ///< plain text of the title line; "" when there is none
    std::string subtitle;           ///< plain text after it, at most 300 UTF-16 units
    std::vector<std::string> tags;  ///< sanitized paths with every ancestor, one spelling for each normalized key, in
                                    ///< order of first appearance
    std::size_t todoCount = 0;      ///< open to-do items
    std::size_t doneCount = 0;      ///< completed to-do items
    std::size_t codeBlockCount = 0; ///< fenced and indented blocks
    std::vector<CVKWikiLink> wikiLinks; ///< in order of offset
    std::vector<std::string> links;     ///< destinations in order of the start of each link
};

} // namespace tarn
