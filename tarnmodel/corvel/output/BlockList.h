#pragma once

#include "tarnmodel/corvel/CVKBlock.h"
#include "tarnmodel/corvel/blocks/Document.h"

#include <cstddef>
#include <vector>

namespace tarn::corvel {

/// The first blocks directly below the document.
std::vector<CVKBlock> listTopLevelBlocks(const CVKAST::Document& document, std::size_t limit);

} // namespace tarn::corvel
