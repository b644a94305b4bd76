#pragma once

#include "tarnmodel/corvel/CVKAST.h"

#include <string>
#include <string_view>

namespace tarn::corvel {

/// Rewriting of hashtags; see `CVKHashtag`, which offers the same to the outside.
CVKAST renamedTag(const CVKAST& document, std::string_view name, std::string_view newName);
CVKAST withoutTag(const CVKAST& document, std::string_view name);
CVKAST withTagAtTop(const CVKAST& document, std::string_view name);
CVKAST withTagAtBottom(const CVKAST& document, std::string_view name);

} // namespace tarn::corvel
