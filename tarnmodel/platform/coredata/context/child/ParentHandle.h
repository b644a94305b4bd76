#pragma once

#include "tarnmodel/platform/coredata/context/ChildContexts.h"
#include "tarnmodel/platform/coredata/context/child/UnsavedSnapshot.h"
#include "tarnmodel/platform/foundation/events/Queue.h"

#include <functional>
#include <memory>
#include <mutex>

namespace tarn {

class ContextCore;

/// What joins a context with its children, and outlives it: what it has pending, and the way to its queue.
class ParentHandle : public ChildContexts {
public:
    explicit ParentHandle(ContextCore& core);
    /// Of this context; made when its first child asks. On the queue.
    static std::shared_ptr<ParentHandle> ofContext(ContextCore& core);

    /// What the context published last. Any thread.
    std::shared_ptr<const UnsavedSnapshot> snapshot() const;
    /// Runs the work on the context's queue and waits for it; false and an error when the context is gone. Any thread.
    bool perform(const std::function<void(ContextCore&)>& work, NSError* error) const;
    void publish() override;
    void close() override;

private:
    mutable std::mutex mutex_;
    std::shared_ptr<const UnsavedSnapshot> snapshot_;
    std::shared_ptr<Queue> queue_;
    ContextCore* core_; ///< null once the context is gone; used on its queue alone
};

} // namespace tarn
