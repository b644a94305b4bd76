#pragma once

namespace tarn {

/// Stops the fuzzer where something that must hold does not.
inline void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

} // namespace tarn
