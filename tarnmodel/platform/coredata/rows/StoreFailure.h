#pragma once

#include "tarnmodel/platform/coredata/StoreErrors.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <exception>
#include <new>
#include <utility>

namespace tarn {

/// A failure on its way through the inside of a store; the store's public operations turn it into their error.
class StoreFailure : public std::exception {
public:
    explicit StoreFailure(NSError error) : error_(std::move(error)) { }
    StoreFailure(long code, std::string_view description);

    const NSError& error() const noexcept { return error_; }
    const char* what() const noexcept override { return error_.localizedDescription().c_str(); }

private:
    NSError error_;
};

/// Runs an operation of a store's interface: what it throws becomes `error` and a false answer.
template <typename Operation> bool reportingFailure(NSError* error, Operation&& operation)
{
    try {
        std::forward<Operation>(operation)();
        return true;
    } catch (...) {
        assignError(error, errorOfCurrentException());
        return false;
    }
}

} // namespace tarn
