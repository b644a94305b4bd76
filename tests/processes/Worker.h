#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <span>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace tarn {

/// What the test program does when its first argument is "worker": one part in a play of several processes. The exit
/// code is 0, or 3 after a message on standard error.
int runWorker(std::span<const std::string_view> arguments);

/// What a worker cannot go on from.
struct WorkerFailure {
    std::string message;
};
/// Throws a `WorkerFailure` unless the condition holds.
void require(bool condition, const NSError& error);
/// The number that an argument stands for; -1 for any other text.
int numberOf(std::string_view argument);

/// How a worker ended.
struct WorkerResult {
    int exitCode = -1; ///< -1 when a signal ended it
    int signal = 0;
    std::string output; ///< of standard output and standard error
};

/// Another process of this program that runs as a worker. It never outlives this object.
class WorkerProcess {
public:
    /// `injections`, where there are some, are what `strace -e` is to do to its calls of the system.
    explicit WorkerProcess(const std::vector<std::string>& arguments, const std::vector<std::string>& injections = {});
    /// Whether this system lets us inject anything.
    static bool canBeTraced();
    ~WorkerProcess();
    WorkerProcess(WorkerProcess&& other) noexcept;
    WorkerProcess& operator=(WorkerProcess&&) = delete;

    /// Reads what it says to the end, and waits for it.
    WorkerResult finish();

private:
    pid_t pid_ = -1;
    int pipe_ = -1;
};

} // namespace tarn
