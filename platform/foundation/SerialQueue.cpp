#include "platform/foundation/GlobalPoolInternal.h"
#include "platform/foundation/Queue.h"
#include "platform/foundation/QueueInternal.h"

#include <mutex>
#include <utility>

namespace tarn {

struct SerialQueue::State {
    asio::strand<GlobalPool::Executor> strand = asio::make_strand(GlobalPool::shared().executor());
    std::mutex mutex;
    KeyedTasks endOfPass;
};

SerialQueue::SerialQueue(std::string_view label) : Queue(label), state_(std::make_unique<State>()) { }

SerialQueue::~SerialQueue() = default;

std::shared_ptr<SerialQueue> SerialQueue::make(std::string_view label)
{
    return std::shared_ptr<SerialQueue>(new SerialQueue(label));
}

void SerialQueue::async(Task task)
{
    if (GlobalPool::shared().isClosed())
        return;
    asio::post(state_->strand, [self = shared_from_this(), task = std::move(task)]() mutable {
        const GlobalPool::WorkingThreadScope working;
        self->runPass(std::exchange(task, nullptr));
    });
}

void SerialQueue::runPass(const Task& task)
{
    runTask(*this, task);
    std::unique_lock lock(state_->mutex);
    const std::uint64_t lastNumber = state_->endOfPass.lastNumber();
    while (auto atEnd = state_->endOfPass.takeFirst(lastNumber)) {
        lock.unlock();
        runTask(*this, *atEnd);
        atEnd.reset(); // what goes with it may call this queue
        lock.lock();
    }
}

void SerialQueue::enqueueAwaited(Task task)
{
    async(std::move(task));
}

bool SerialQueue::isCurrent() const noexcept
{
    return CurrentQueueScope::queue() == this;
}

void SerialQueue::runAtEndOfPass(const void* key, Task task)
{
    bool isNew = false;
    {
        const std::lock_guard lock(state_->mutex);
        isNew = state_->endOfPass.set(key, std::move(task));
    }
    // An empty pass makes sure that there is an end, also when the one under way is at its end already.
    if (isNew)
        async([] {});
}

void SerialQueue::cancelAtEndOfPass(const void* key)
{
    const std::lock_guard lock(state_->mutex);
    state_->endOfPass.remove(key);
}

} // namespace tarn
