#pragma once

#include <asio/post.hpp>
#include <asio/strand.hpp>
#include <asio/thread_pool.hpp>

#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace tarn {

class MainQueueState;

/// The threads under the global queue and all serial queues.
///
/// A thread that waits in a `sync` is made up for by another one, so that what it waits for finds a thread.
class GlobalPool {
public:
    using Executor = asio::thread_pool::executor_type;

    /// Never destroyed; when the process ends it works off what is queued and takes nothing more.
    static GlobalPool& shared();

    Executor executor() noexcept { return pool_.get_executor(); }
    /// Closes this main queue before the last tasks run, since nobody drains it then.
    void closeWhenProcessEnds(std::weak_ptr<MainQueueState> queue);
    /// Once it is true nothing may be posted any more.
    bool isClosed() const;

    /// Marks a thread as one that runs a task of the pool.
    class WorkingThreadScope {
    public:
        WorkingThreadScope() noexcept;
        ~WorkingThreadScope();
        WorkingThreadScope(const WorkingThreadScope&) = delete;
        WorkingThreadScope& operator=(const WorkingThreadScope&) = delete;
    };
    /// Says that the calling thread waits; means something on threads of the pool only.
    class BlockedThreadScope {
    public:
        BlockedThreadScope();
        ~BlockedThreadScope();
        BlockedThreadScope(const BlockedThreadScope&) = delete;
        BlockedThreadScope& operator=(const BlockedThreadScope&) = delete;

    private:
        const bool isWorkingThread_;
    };

private:
    GlobalPool();
    void threadBlocks();
    void threadGoesOn();
    void finish();

    const std::size_t wantedThreads_;
    asio::thread_pool pool_;
    mutable std::mutex mutex_;
    std::vector<std::thread> extraThreads_;
    std::size_t blockedThreads_ = 0;
    std::weak_ptr<MainQueueState> mainQueue_;
    bool isClosed_ = false;
};

} // namespace tarn
