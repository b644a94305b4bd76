#include "tarnmodel/platform/coredata/migration/MigrationProgress.h"

#include "tarnmodel/platform/coredata/rows/StoreFailure.h"

#include <algorithm>

namespace tarn {

namespace {

constexpr float kSmallestStep = 0.001F;

} // namespace

void MigrationProgress::begin(std::size_t total)
{
    total_ = total;
    done_ = 0;
    tell(0);
}

void MigrationProgress::advance(std::size_t records)
{
    checkIsNotCancelled();
    done_ = std::min(done_ + records, total_);
    const float fraction = total_ == 0 ? 0 : static_cast<float>(done_) / static_cast<float>(total_);
    // The whole is told at the end, when what is not counted is done as well.
    if (fraction < 1 && fraction >= fraction_ + kSmallestStep)
        tell(fraction);
}

void MigrationProgress::finish()
{
    tell(1);
}

void MigrationProgress::tell(float fraction)
{
    fraction_ = fraction;
    if (observer_)
        observer_(fraction);
}

void MigrationProgress::cancel(const NSError& error)
{
    const std::lock_guard lock(mutex_);
    if (!cancellation_)
        cancellation_ = error;
    isCancelled_ = true;
}

void MigrationProgress::checkIsNotCancelled() const
{
    if (!isCancelled_)
        return;
    const std::lock_guard lock(mutex_);
    throw StoreFailure(*cancellation_);
}

} // namespace tarn
