#pragma once

namespace tarn {

/// The children of a context, as the context sees them. On its queue.
class ChildContexts {
public:
    virtual ~ChildContexts() = default;
    /// Lets them see what is pending now.
    virtual void publish() = 0;
    /// The context ends.
    virtual void close() = 0;
};

} // namespace tarn
