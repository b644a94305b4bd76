#pragma once

namespace tarn {

/// Says on standard error that there is no memory, without needing any.
void tellOfMemoryShortage() noexcept;

/// From now on a want of memory where no exception can pass (a destructor of a library, say) ends the program with this
/// line and exit code 1 instead of a signal. The store is left as by any sudden end: what was saved is there.
void endInWordsWhenMemoryIsShort() noexcept;

} // namespace tarn
