#pragma once

#include "tarnmodel/platform/foundation/events/QueueInternal.h"
#include "tarnmodel/platform/foundation/events/WakeDescriptorInternal.h"

#include <deque>
#include <utility>

namespace tarn {

struct Timer::State {
    std::weak_ptr<MainQueueState> queue;
    Task task;
    bool isPending = true; ///< guarded by the queue's mutex
};

/// What a main queue holds, shared with the threads that hand it tasks.
class MainQueueState : public std::enable_shared_from_this<MainQueueState> {
public:
    explicit MainQueueState(MainQueue& queue);

    bool isOwnedByThisThread() const noexcept { return parking_.get() == ThreadParking::existing(); }
    ThreadParking& parking() noexcept { return *parking_; }
    /// Null once the queue has ended.
    MainQueue* queue() const;

    // Any thread.
    void enqueue(Task task, bool isAwaited);
    void setAtEndOfPass(const void* key, Task task);
    void removeAtEndOfPass(const void* key);
    void setInEachPass(const void* key, Task task);
    void removeInEachPass(const void* key);
    Timer scheduleTimer(Task task);
    static void invalidate(Timer& timer);
    static bool isPending(const Timer& timer);
    bool hasWork() const;
    void setWake(Task wake);
    int fileDescriptor();
    /// Drops what is queued and takes nothing any more.
    void close();

    // The owning thread.
    std::size_t runPass(MainQueue& queue);
    /// Runs one task that another thread waits for; false when there is none.
    bool runAwaited();

private:
    struct Item {
        std::uint64_t number;
        bool isAwaited;
        Task task;
    };
    class Pass;

    bool hasWorkLocked() const noexcept;
    void announceWork(std::unique_lock<std::mutex> lock);
    void forgetAnnouncementWithoutWork();
    std::size_t runTimers(MainQueue& queue);
    std::size_t runQueued(MainQueue& queue);
    std::size_t runKeyed(MainQueue& queue, KeyedTasks& tasks);
    void runTasksOfEachPass(MainQueue& queue);

    const std::shared_ptr<ThreadParking> parking_ = ThreadParking::ofThisThread();
    mutable std::mutex mutex_;
    MainQueue* queue_;
    std::deque<Item> items_;
    std::uint64_t lastNumber_ = 0;
    KeyedTasks endOfPass_;
    std::vector<std::pair<const void*, std::shared_ptr<const Task>>> inEachPass_;
    std::vector<std::shared_ptr<Timer::State>> timers_;
    Task wake_;
    WakeDescriptor descriptor_;
    bool isAnnounced_ = false; ///< the host has been told of the work
    int passDepth_ = 0;
};

} // namespace tarn
