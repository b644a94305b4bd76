#pragma once

#include <cstdint>

namespace tarn {

/// How often this program has asked for memory by `new` so far, on all threads.
std::int64_t allocationCount() noexcept;

} // namespace tarn
