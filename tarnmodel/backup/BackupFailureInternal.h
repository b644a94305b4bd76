#pragma once

#include "tarnmodel/backup/BackupErrors.h"
#include "tarnmodel/platform/coredata/StoreErrors.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <exception>
#include <filesystem>
#include <string>
#include <string_view>

namespace tarn {

/// A failure on its way through the inside of a backup; the public operations turn it into their error.
class BackupFailure : public std::exception {
public:
    explicit BackupFailure(NSError error) : error_(std::move(error)) { }
    BackupFailure(BackupErrorCode code, std::string_view description) : error_(TarnBackupErrorDomain, code, description)
    { }
    const NSError& error() const noexcept { return error_; }
    const char* what() const noexcept override { return error_.localizedDescription().c_str(); }

private:
    NSError error_;
};

/// Throws what the system said last of the file.
[[noreturn]] void failWithSystem(const std::filesystem::path& file, std::string_view action);
/// Runs it; what it throws becomes `error` and a false answer.
template <typename Operation> bool reportingBackupFailure(NSError* error, Operation&& operation)
{
    try {
        operation();
        return true;
    } catch (const BackupFailure& failure) {
        assignError(error, failure.error());
    } catch (...) {
        assignError(error, errorOfCurrentException());
    }
    return false;
}
/// Runs what answers whether it worked and gives an error otherwise; throws that.
template <typename Operation> void orThrow(Operation&& operation)
{
    NSError error;
    if (!operation(&error))
        throw BackupFailure(error);
}

} // namespace tarn
