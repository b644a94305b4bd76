#pragma once

#include "tarnmodel/corvel/CVKLink.h"
#include "tarnmodel/corvel/blocks/Document.h"

#include <cstddef>
#include <vector>

namespace tarn::corvel {

/// Every link of the document as it is written, in order of their start.
std::vector<CVKLink> listLinks(const CVKAST::Document& document);

struct ListedDefinitions {
    std::vector<CVKLinkDefinition> all; ///< in order
    std::vector<std::size_t> places;    ///< in `all`, of those that count, by their `DefinitionIndex`
};
/// Every link reference definition of the document.
ListedDefinitions listDefinitions(const CVKAST::Document& document);

} // namespace tarn::corvel
