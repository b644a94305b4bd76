#pragma once

#include "platform/coredata/PendingSnapshot.h"
#include "platform/foundation/Queue.h"

#include <functional>
#include <memory>
#include <mutex>

namespace tarn {

class ContextCore;

/// What joins a context with its children, and outlives it: what it has pending, and the way to its queue.
class ParentLink {
public:
    ParentLink(ContextCore& core, std::shared_ptr<Queue> queue);

    /// What the context published last. Any thread.
    std::shared_ptr<const PendingSnapshot> snapshot() const;
    /// Lets children see what is pending now. On the context's queue.
    void publish();
    /// Runs the work on the context's queue and waits for it; false and an error when the context is gone. Any thread.
    bool perform(const std::function<void(ContextCore&)>& work, NSError* error) const;
    /// The context ends. On its queue.
    void close();

private:
    mutable std::mutex mutex_;
    std::shared_ptr<const PendingSnapshot> snapshot_;
    std::shared_ptr<Queue> queue_;
    ContextCore* core_; ///< null once the context is gone; used on its queue alone
};

} // namespace tarn
