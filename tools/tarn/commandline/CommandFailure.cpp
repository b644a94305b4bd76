#include "tools/tarn/commandline/CommandFailure.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/platform/coredata/StoreErrors.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tools/tarn/commandline/DisplayText.h"

#include <algorithm>
#include <array>
#include <new>
#include <string_view>
#include <system_error>

namespace tarn {

namespace {

struct StoreErrorMeaning {
    long code;
    ExitCode exitCode;
    std::string_view advice;
};

constexpr std::array kMeanings{
    StoreErrorMeaning{StoreErrorBusy, ExitCode::Locked, "try again when the other program is done"},
    StoreErrorMeaning{StoreErrorIncompatible, ExitCode::NeedsMigration, "'tarn migrate' tells of which version it is"},
    StoreErrorMeaning{StoreErrorCorrupt, ExitCode::Corrupt, "run 'tarn doctor', and keep a copy of the file"},
    StoreErrorMeaning{StoreErrorNotAStore, ExitCode::Corrupt, "move it away or name another folder"},
    StoreErrorMeaning{StoreErrorReadOnly, ExitCode::InputOutput, "check the permissions of the folder"},
    StoreErrorMeaning{StoreErrorIO, ExitCode::InputOutput, "check the disk"},
    StoreErrorMeaning{StoreErrorFull, ExitCode::InputOutput, "make room on the disk and try again"},
    StoreErrorMeaning{StoreErrorCannotOpen, ExitCode::InputOutput, "check the folder and its permissions"},
    StoreErrorMeaning{StoreErrorReplaced, ExitCode::InputOutput, "try again"},
};

const StoreErrorMeaning* meaningOf(const NSError& error) noexcept
{
    if (error.domain() != TarnStoreErrorDomain)
        return nullptr;
    const auto* found = std::ranges::find(kMeanings, error.code(), &StoreErrorMeaning::code);
    return found == kMeanings.end() ? nullptr : found;
}

} // namespace

ExitCode exitCodeForStoreError(const NSError& error) noexcept
{
    const StoreErrorMeaning* meaning = meaningOf(error);
    return meaning ? meaning->exitCode : ExitCode::Failed;
}

CommandFailure failureForStoreError(const std::string& what, const NSError& error)
{
    std::string message = what + ": ";
    message += error.localizedDescription().empty() ? "Unknown Error" : singleLine(error.localizedDescription());
    if (const StoreErrorMeaning* meaning = meaningOf(error)) {
        message += "; ";
        message += meaning->advice;
    }
    return {exitCodeForStoreError(error), message};
}

CommandFailure failureForSystemError(const std::string& what, int number)
{
    return {ExitCode::InputOutput, what + ": " + std::generic_category().message(number)};
}

CommandFailure failureOfCurrentException()
{
    try {
        throw;
    } catch (const CommandFailure& failure) {
        return failure;
    } catch (const NSException& exception) {
        if (exception.name() == OVInvalidAccessorException)
            return {ExitCode::Locked, "a note or an attachment is protected by a password; nothing was changed"};
        return {ExitCode::Failed, exception.reason()};
    } catch (const std::bad_alloc&) {
        return {ExitCode::Failed, "out of memory"};
    } catch (const std::exception& exception) {
        return {ExitCode::Failed, exception.what()};
    }
}

} // namespace tarn
