#pragma once

#include "tarnmodel/platform/foundation/text/Folding.h"

#include <string>
#include <string_view>

namespace tarn {

/// The regular expression that a MATCHES with these options looks for in folded text.
///
/// The pattern is brought to NFC, and its literal characters, escaped ones and `\Q...\E` included, are folded as the
/// text is; classes, groups and other escapes stay. Without options it is the pattern itself. A malformed pattern
/// stays malformed. Whether letter case counts is the matcher's affair.
std::string foldedPattern(std::string_view pattern, ComparisonOptions options);

} // namespace tarn
