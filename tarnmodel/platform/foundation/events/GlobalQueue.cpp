#include "tarnmodel/platform/foundation/events/GlobalPoolInternal.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/events/QueueInternal.h"

#include <map>
#include <mutex>
#include <utility>

namespace tarn {

namespace {

/// Tasks that were asked for under a key and have not run yet.
struct KeyedGlobalTasks {
    std::mutex mutex;
    KeyedTasks tasks;
};
KeyedGlobalTasks& keyedGlobalTasks()
{
    static auto* const tasks = new KeyedGlobalTasks;
    return *tasks;
}

void runOldestKeyedTask()
{
    std::optional<Task> task;
    {
        KeyedGlobalTasks& keyed = keyedGlobalTasks();
        const std::lock_guard lock(keyed.mutex);
        task = keyed.tasks.takeFirst(keyed.tasks.lastNumber());
    }
    if (task)
        (*task)();
}

} // namespace

GlobalQueue::GlobalQueue() : Queue("global") { }

GlobalQueue::~GlobalQueue() = default;

GlobalQueue& GlobalQueue::shared()
{
    static auto* const queue = new GlobalQueue; // lives as long as its threads
    return *queue;
}

void GlobalQueue::async(Task task)
{
    GlobalPool& pool = GlobalPool::shared();
    pool.post([this, task = std::move(task)] { runTask(*this, task); });
    pool.passOnShortage();
}

void GlobalQueue::enqueueAwaited(Task task)
{
    async(std::move(task));
}

bool GlobalQueue::workOff(const Task& awaited)
{
    if (GlobalPool::shared().hasThread())
        return false;
    runTask(*this, awaited);
    return true;
}

bool GlobalQueue::isCurrent() const noexcept
{
    return CurrentQueueScope::queue() == this;
}

void GlobalQueue::runAtEndOfPass(const void* key, Task task)
{
    KeyedGlobalTasks& keyed = keyedGlobalTasks();
    bool isNew = false;
    {
        const std::lock_guard lock(keyed.mutex);
        isNew = keyed.tasks.set(key, std::move(task));
    }
    if (isNew)
        async(runOldestKeyedTask);
}

void GlobalQueue::cancelAtEndOfPass(const void* key)
{
    KeyedGlobalTasks& keyed = keyedGlobalTasks();
    const std::lock_guard lock(keyed.mutex);
    keyed.tasks.remove(key);
}

} // namespace tarn
