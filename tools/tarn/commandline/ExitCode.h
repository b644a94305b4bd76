#pragma once

namespace tarn {

/// What the program tells its caller. Scripts rely on these numbers.
enum class ExitCode : int {
    Done = 0,
    Failed = 1, ///< nothing was found, or (part of) the work failed
    Usage = 2,
    Locked = 3,
    NeedsMigration = 4,
    Corrupt = 5,
    InputOutput = 6,
    Interrupted = 128, ///< by a signal, whose number is added
};

} // namespace tarn
