#pragma once

#include <cstddef>

namespace tarn {

/// Bytes of the longest text, and of the longest data, that an attribute of a record can hold.
inline constexpr std::size_t maximumValueLength = std::size_t{512} << 20U;

} // namespace tarn
