#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <atomic>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>

namespace tarn {

/// How far a migration is, and whether it is to end. `fraction`, `cancel` and `isCancelled` on any thread, the rest on
/// the one that migrates.
class MigrationProgress {
public:
    float fraction() const noexcept { return fraction_; }
    void setObserver(std::function<void(float)> observer) { observer_ = std::move(observer); }

    /// A run begins, of so many records in all its phases together.
    void begin(std::size_t total);
    /// So many records more are done. Throws a `StoreFailure` when the run was cancelled.
    void advance(std::size_t records);
    /// The run is over.
    void finish();

    /// Only the first error counts.
    void cancel(const NSError& error);
    bool isCancelled() const noexcept { return isCancelled_; }
    /// Throws the error of `cancel` as a `StoreFailure`.
    void checkIsNotCancelled() const;

private:
    void tell(float fraction);

    std::function<void(float)> observer_;
    std::atomic<float> fraction_ = 0;
    std::size_t total_ = 0;
    std::size_t done_ = 0;
    std::atomic<bool> isCancelled_ = false;
    mutable std::mutex mutex_;
    std::optional<NSError> cancellation_;
};

} // namespace tarn
