#include "tarnmodel/platform/coredata/rows/WriterLock.h"

namespace tarn {

bool WriterLock::take(std::chrono::milliseconds patience)
{
    std::unique_lock lock(mutex_);
    const auto self = std::this_thread::get_id();
    if (owner_ == self)
        return false;
    if (!free_.wait_for(lock, patience, [this] { return owner_ == std::thread::id(); }))
        return false;
    owner_ = self;
    return true;
}

bool WriterLock::takeAtOnce()
{
    return take(std::chrono::milliseconds(0));
}

void WriterLock::giveBack()
{
    {
        std::scoped_lock lock(mutex_);
        owner_ = std::thread::id();
    }
    free_.notify_one();
}

bool WriterLock::isMine() const
{
    std::scoped_lock lock(mutex_);
    return owner_ == std::this_thread::get_id();
}

} // namespace tarn
