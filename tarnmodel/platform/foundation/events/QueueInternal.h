#pragma once

#include "tarnmodel/platform/foundation/events/Queue.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <exception>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace tarn {

/// How long a `sync` waits before it is logged: 5 seconds until set. For tests.
void setSyncWarningDelay(std::chrono::milliseconds delay) noexcept;

/// Where a thread sleeps, whatever it waits for: tasks for its main queues, or the end of a `sync`.
class ThreadParking {
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    /// The one of the calling thread.
    static const std::shared_ptr<ThreadParking>& ofThisThread();
    /// The same, or null before the thread has ever waited or owned a main queue.
    static ThreadParking* existing() noexcept;
    ThreadParking();
    ~ThreadParking();
    ThreadParking(const ThreadParking&) = delete;
    ThreadParking& operator=(const ThreadParking&) = delete;

    /// Wakes the thread, now or when it next goes to sleep. Any thread.
    void poke();
    /// How often it was poked; look at it before looking at what the poke may have changed.
    std::uint64_t pokes() const;
    /// Sleeps until there was a poke since `seen`; false when the deadline came first. On the thread itself.
    bool sleepUntil(TimePoint deadline, std::uint64_t seen);
    void sleep(std::uint64_t seen);

    void addMainQueue(std::weak_ptr<MainQueueState> queue);
    /// The living main queues of the thread, in the order in which they were made.
    std::vector<std::shared_ptr<MainQueueState>> mainQueues() const;
    /// The first of them, or null.
    MainQueue* firstMainQueue() const noexcept;

private:
    mutable std::mutex mutex_;
    std::condition_variable poked_;
    std::uint64_t pokes_ = 0;
    std::vector<std::weak_ptr<MainQueueState>> mainQueues_;
};

/// Runs what other threads wait for on the main queues of the calling thread; what waits for nobody stays queued.
void serveAwaitedTasksOfThisThread();

/// Makes a queue the current one of the calling thread.
class CurrentQueueScope {
public:
    explicit CurrentQueueScope(Queue* queue) noexcept;
    ~CurrentQueueScope();
    CurrentQueueScope(const CurrentQueueScope&) = delete;
    CurrentQueueScope& operator=(const CurrentQueueScope&) = delete;

    /// The queue set last, or null.
    static Queue* queue() noexcept;

private:
    Queue* previous_;
};

/// Runs a task of a queue; what it throws is logged.
void runTask(Queue& queue, const Task& task);

/// Logs what went wrong among the queues, whatever the sink does.
void logFailure(std::string_view message) noexcept;

/// Tasks that wait for the end of a pass, one for each key, in the order in which they were asked for. Not locked.
class KeyedTasks {
public:
    /// Whether the key is new; a known one gets the other task and keeps its place.
    bool set(const void* key, Task task);
    /// Whether the key was there.
    bool remove(const void* key);
    bool isEmpty() const noexcept { return entries_.empty(); }
    /// Give it to `takeFirst` to get only what is here now.
    std::uint64_t lastNumber() const noexcept { return lastNumber_; }
    std::optional<Task> takeFirst(std::uint64_t lastNumber);

private:
    struct Entry {
        const void* key;
        std::uint64_t number;
        Task task;
    };
    std::vector<Entry> entries_;
    std::uint64_t lastNumber_ = 0;
};

} // namespace tarn
