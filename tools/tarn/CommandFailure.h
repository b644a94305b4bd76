#pragma once

#include "platform/foundation/NSError.h"
#include "tools/tarn/ExitCode.h"

#include <stdexcept>
#include <string>

namespace tarn {

/// Ends a command: one line for people (what, which file or note, what to do) and the exit code.
class CommandFailure : public std::runtime_error {
public:
    CommandFailure(ExitCode code, const std::string& message) : std::runtime_error(message), code_(code) { }
    ExitCode code() const noexcept { return code_; }

private:
    ExitCode code_;
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

} // namespace tarn
