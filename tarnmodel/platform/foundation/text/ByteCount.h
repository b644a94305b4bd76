#pragma once

#include <cstdint>
#include <string>

namespace tarn {

/// A number of bytes for people: "512 bytes", "3.4 MB"; units of a thousand, one digit behind the point. Any thread.
std::string stringFromByteCount(std::uintmax_t bytes);

} // namespace tarn
