#pragma once

#include <string>
#include <string_view>

namespace tarn {

/// A name that stays within its folder on any disk: without "/", NUL and control characters (each becomes "_"), not
/// ".", ".." or nothing ("_"), and of 255 bytes at most, cut between characters so that the extension stays. A name
/// that is so already comes back as it is; invalid UTF-8 becomes U+FFFD.
std::string fileNameWithinFolder(std::string_view name);

/// The name with a counter before its extension: "a.png" gives "a (2).png", and that gives "a (3).png".
std::string filepathWithIncreasedNumberCount(std::string_view name);

} // namespace tarn
