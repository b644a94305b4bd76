#pragma once

#include <string_view>

namespace tarn {

/// Whether the bytes contain those of the needle; an empty one is in everything. Costs at most a look at each byte,
/// several at once where the machine can do that.
bool containsBytes(std::string_view bytes, std::string_view needle) noexcept;

} // namespace tarn
