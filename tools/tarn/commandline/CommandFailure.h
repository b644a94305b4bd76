#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tools/tarn/commandline/ExitCode.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace tarn {

/// Ends a command: one line for people (what, which file or note, what to do) and the exit code. Where there is a
/// choice to make, `choices` are lines behind it.
class CommandFailure : public std::runtime_error {
public:
    CommandFailure(ExitCode code, const std::string& message, std::vector<std::string> choices = {})
        : std::runtime_error(message), code_(code), choices_(std::move(choices))
    { }
    ExitCode code() const noexcept { return code_; }
    const std::vector<std::string>& choices() const noexcept { return choices_; }
    /// The same failure that says one thing more.
    CommandFailure saying(const std::string& more) const { return {code_, what() + ("; " + more), choices_}; }

private:
    ExitCode code_;
    std::vector<std::string> choices_;
};

/// The reader of standard output went away: the program ends without a word.
class OutputClosed : public std::runtime_error {
public:
    OutputClosed() : std::runtime_error("standard output was closed") { }
};

/// The exit code for an error of the object store.
ExitCode exitCodeForStoreError(const NSError& error) noexcept;
/// "what: description", with what to do where there is something to do.
CommandFailure failureForStoreError(const std::string& what, const NSError& error);
/// "what: No such file or directory", for a number that the system gave.
CommandFailure failureForSystemError(const std::string& what, int number);

/// Inside of a handler: what any exception but `OutputClosed` comes to for a command.
CommandFailure failureOfCurrentException();

} // namespace tarn
