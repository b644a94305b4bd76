#include "tarnmodel/platform/coredata/context/child/ParentHandle.h"

#include "tarnmodel/platform/coredata/context/ContextCore.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

namespace tarn {

ParentHandle::ParentHandle(ContextCore& core) : queue_(core.sharedQueue()), core_(&core)
{
    publish();
}

std::shared_ptr<ParentHandle> ParentHandle::ofContext(ContextCore& core)
{
    core.assertOnQueue();
    if (!core.children)
        core.children = std::make_shared<ParentHandle>(core);
    return std::static_pointer_cast<ParentHandle>(core.children); // nobody else makes them
}

std::shared_ptr<const UnsavedSnapshot> ParentHandle::snapshot() const
{
    const std::lock_guard lock(mutex_);
    return snapshot_;
}

void ParentHandle::publish()
{
    const auto previous = snapshot();
    auto next = UnsavedSnapshot::ofContext(*core_, previous.get());
    const std::lock_guard lock(mutex_);
    snapshot_ = std::move(next);
}

bool ParentHandle::perform(const std::function<void(ContextCore&)>& work, NSError* error) const
{
    bool isThere = true;
    const auto run = [&] {
        isThere = core_ != nullptr;
        if (isThere)
            work(*core_);
    };
    try {
        queue_->sync(run);
    } catch (const NSException& exception) {
        // The queue is gone, or the work raised: either way nothing of it counts.
        assignError(error, NSError(TarnStoreErrorDomain, StoreErrorGeneric, exception.reason()));
        return false;
    }
    if (!isThere)
        assignError(error, NSError(TarnStoreErrorDomain, StoreErrorGeneric, "The parent context is gone"));
    return isThere;
}

void ParentHandle::close()
{
    core_ = nullptr;
}

} // namespace tarn
