#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace tarn {

/// A piece of work for a queue.
using Task = std::function<void()>;

/// Where work runs. A task that throws is logged, and the queue goes on.
///
/// Any thread may use any queue, unless a member says otherwise.
class Queue {
public:
    /// `label`: a name for people and logs.
    explicit Queue(std::string_view label);
    virtual ~Queue();
    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;

    /// A name for people and logs.
    const std::string& label() const noexcept { return label_; }

    /// Runs the task later, never inside this call.
    virtual void async(Task task) = 0;
    /// Runs the task and returns when it is done; at once and inline when this queue is current. What the task throws
    /// is thrown here. A thread that owns a main queue goes on serving `sync` calls to that queue while it waits. A
    /// wait of 5 seconds is logged. Raises `NSInternalInconsistencyException` when the queue ends before the task could
    /// run. Where no thread can be made for the queue, the calling thread does its work.
    void sync(const Task& task);
    /// Whether the calling code runs on this queue.
    virtual bool isCurrent() const noexcept = 0;

    /// Runs the task at the end of the current pass of this queue (of the next one when none is under way), once for
    /// each key, however often it is asked for: the last task given counts. Asked for at the end of a pass, it runs at
    /// the end of the next one. On a serial queue a pass is one task.
    virtual void runAtEndOfPass(const void* key, Task task) = 0;
    /// Takes back what `runAtEndOfPass` was given for this key.
    virtual void cancelAtEndOfPass(const void* key) = 0;

    /// The queue whose task this thread runs, else the main queue that this thread owns, else null.
    static Queue* current() noexcept;

protected:
    /// Like `async`, for a task that another thread waits for.
    virtual void enqueueAwaited(Task task) = 0;
    /// For the thread that waits for this task: runs it, or what stands before it, when no thread of the library can.
    /// False when there is nothing for the calling thread to do.
    virtual bool workOff(const Task& awaited);

private:
    std::string label_;
};

class MainQueueState;

/// The queue of a thread that belongs to the host: it runs tasks only while that thread calls `drain` or `runUntil`, or
/// waits in a `sync` (then only the `sync` calls of others).
///
/// Owned by the thread that made it.
///
///     MainQueue::main().setWake([] { g_main_context_wakeup(nullptr); });
class MainQueue final : public Queue {
public:
    /// A queue that the calling thread owns.
    explicit MainQueue(std::string_view label = "main");
    /// Tasks that have not run are dropped; whoever waits for one in `sync` gets an exception.
    ~MainQueue() override;

    /// The one of this process, owned by the thread that calls this first.
    static MainQueue& main();

    void async(Task task) override;
    /// Whether the calling thread owns this queue.
    bool isCurrent() const noexcept override;
    void runAtEndOfPass(const void* key, Task task) override;
    void cancelAtEndOfPass(const void* key) override;

    /// Runs the task in every pass from now on, before the tasks for its end, until it is taken back; one for each key.
    /// It is no work of its own: an idle queue is not woken for it. On the owning thread.
    void runInEachPass(const void* key, Task task);
    /// Takes back what `runInEachPass` was given for this key.
    void cancelInEachPass(const void* key);

    /// One pass: due timers, the tasks that were queued at entry, the tasks of each pass, those for
    /// the end of this one. What these queue waits for the next pass. Returns how many ran, the tasks of each pass left
    /// out. On the owning thread.
    std::size_t drain();
    /// Whether a pass would have something to run.
    bool hasWork() const;

    /// Waits and drains until the predicate holds. It is looked at after each pass and about 50 times a second.
    /// On the owning thread.
    void runUntil(const std::function<bool()>& done);
    /// The same for at most `limit`; whether the predicate held.
    bool runUntil(const std::function<bool()>& done, std::chrono::milliseconds limit);

    /// Called once when work comes to the idle queue, and again after each pass that leaves work; from any thread. It
    /// must not drain the queue itself.
    void setWake(Task wake);
    /// A file descriptor that is readable while there is work, for poll-based hosts; made on demand, closed by this
    /// queue. -1 where the system has none.
    int fileDescriptor();

private:
    friend class Timer;
    void enqueueAwaited(Task task) override;

    std::shared_ptr<MainQueueState> state_;
};

/// A zero-delay timer that fires once. A handle: the timer goes on when the handle goes. Copies are the same timer.
class Timer {
public:
    Timer() = default;
    /// Calls `task` at the start of the queue's next pass, and never in the one under way.
    static Timer scheduleAfterPass(MainQueue& queue, Task task);
    /// After this the timer does not fire. On the queue's thread; elsewhere it may be firing already.
    void invalidate();
    /// Whether it is still going to fire.
    bool isValid() const noexcept;

private:
    struct State;
    friend class MainQueueState;
    std::shared_ptr<State> state_;
};

/// A private queue: first in, first out, one task at a time, on the threads of the global queue.
///
/// It keeps itself alive while it has work.
class SerialQueue final : public Queue, public std::enable_shared_from_this<SerialQueue> {
public:
    /// A new queue; threads are made when it gets work.
    static std::shared_ptr<SerialQueue> make(std::string_view label);
    ~SerialQueue() override;

    void async(Task task) override;
    bool isCurrent() const noexcept override;
    void runAtEndOfPass(const void* key, Task task) override;
    void cancelAtEndOfPass(const void* key) override;

private:
    explicit SerialQueue(std::string_view label);
    void enqueueAwaited(Task task) override;
    bool workOff(const Task& awaited) override;
    bool schedule();
    void runTurn();
    bool runSome(int most);
    void runPass(const Task& task);

    struct State;
    std::unique_ptr<State> state_;
};

/// The concurrent queue of the process: at least two threads once there is work for them, more while some of them wait
/// in a `sync`. Where the system gives fewer, those do the work; where it gives none, `MainQueue::main()` does it in
/// its passes.
///
/// When the process ends, `MainQueue::main()` takes no more tasks, and the tasks of this queue that are left run to
/// their end.
class GlobalQueue final : public Queue {
public:
    /// The one of this process.
    static GlobalQueue& shared();

    void async(Task task) override;
    bool isCurrent() const noexcept override;
    /// Tasks of this queue have no common pass: it runs like any other task.
    void runAtEndOfPass(const void* key, Task task) override;
    void cancelAtEndOfPass(const void* key) override;

private:
    GlobalQueue();
    ~GlobalQueue() override;
    void enqueueAwaited(Task task) override;
    bool workOff(const Task& awaited) override;
};

} // namespace tarn
