#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"

#include "tarnmodel/platform/foundation/events/QueueInternal.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tarn {

namespace {

/// How many observers are being called on this thread, one within the other.
thread_local int depthOfCallsOnThisThread = 0;

/// How long a removal sleeps between two looks at its own main queue.
constexpr std::chrono::milliseconds kServingInterval(2);

} // namespace

/// One registration. Calls are counted, so that a removal can wait for those of other threads.
struct NSNotificationSubscription::Observer {
    Observer(std::string observedName, const void* observedObject, NSNotificationCenter::Block observedBlock)
        : name(std::move(observedName)), object(observedObject), block(std::move(observedBlock))
    { }

    bool wants(const NSNotification& notification) const noexcept
    {
        return object == nullptr || object == notification.object;
    }

    bool beginCall()
    {
        const std::lock_guard lock(mutex);
        calls += removed ? 0 : 1;
        return !removed;
    }

    void endCall()
    {
        const std::lock_guard lock(mutex);
        --calls;
        if (removed)
            callEnded.notify_all();
    }

    void remove()
    {
        std::unique_lock lock(mutex);
        removed = true;
        if (depthOfCallsOnThisThread > 0)
            return; // two observers that remove each other would wait for ever
        while (calls > 0) {
            callEnded.wait_for(lock, kServingInterval);
            lock.unlock();
            serveAwaitedTasksOfThisThread(); // the call may be waiting for this very thread
            lock.lock();
        }
    }

    const std::string name;
    const void* const object;
    const NSNotificationCenter::Block block;

    std::mutex mutex;
    std::condition_variable callEnded;
    int calls = 0;
    bool removed = false;
};

/// The observers of each name, in the order of their registration. A list is never changed, only replaced: who posts
/// walks the one that it took.
struct NSNotificationSubscription::Registry {
    using List = std::vector<std::shared_ptr<Observer>>;

    std::shared_ptr<const List> observers(std::string_view name)
    {
        const std::lock_guard lock(mutex);
        const auto found = lists.find(name);
        return found == lists.end() ? nullptr : found->second;
    }

    void add(std::shared_ptr<Observer> observer)
    {
        const std::lock_guard lock(mutex);
        std::shared_ptr<const List>& list = lists[observer->name];
        auto changed = list ? std::make_shared<List>(*list) : std::make_shared<List>();
        changed->push_back(std::move(observer));
        list = std::move(changed);
    }

    void remove(const std::shared_ptr<Observer>& observer)
    {
        const std::lock_guard lock(mutex);
        const auto found = lists.find(observer->name);
        if (found == lists.end())
            return;
        auto changed = std::make_shared<List>(*found->second);
        std::erase(*changed, observer);
        if (changed->empty())
            lists.erase(found);
        else
            found->second = std::move(changed);
    }

    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const noexcept { return std::hash<std::string_view>()(name); }
    };

    std::mutex mutex;
    std::unordered_map<std::string, std::shared_ptr<const List>, Hash, std::equal_to<>> lists;
};

NSNotificationSubscription::NSNotificationSubscription(
    std::shared_ptr<Registry> registry, std::shared_ptr<Observer> observer) noexcept
    : registry_(std::move(registry)), observer_(std::move(observer))
{ }

NSNotificationSubscription::~NSNotificationSubscription()
{
    cancel();
}

NSNotificationSubscription::NSNotificationSubscription(NSNotificationSubscription&& other) noexcept = default;

NSNotificationSubscription& NSNotificationSubscription::operator=(NSNotificationSubscription&& other) noexcept
{
    if (this == &other)
        return *this;
    cancel();
    registry_ = std::move(other.registry_);
    observer_ = std::move(other.observer_);
    return *this;
}

void NSNotificationSubscription::cancel()
{
    const auto observer = std::exchange(observer_, nullptr);
    const auto registry = std::exchange(registry_, nullptr);
    if (!observer)
        return;
    registry->remove(observer);
    observer->remove();
}

NSNotificationCenter::NSNotificationCenter() : registry_(std::make_shared<NSNotificationSubscription::Registry>()) { }

NSNotificationCenter::~NSNotificationCenter() = default;

NSNotificationCenter& NSNotificationCenter::defaultCenter()
{
    // Never destroyed: static objects of the host may post while the process ends.
    static auto* const center = new NSNotificationCenter;
    return *center;
}

NSNotificationSubscription NSNotificationCenter::addObserver(std::string_view name, const void* object, Block block)
{
    auto observer = std::make_shared<NSNotificationSubscription::Observer>(std::string(name), object, std::move(block));
    registry_->add(observer);
    return {registry_, std::move(observer)};
}

void NSNotificationCenter::postNotification(std::string_view name, const void* object)
{
    post({.name = name, .object = object, .userInfo = nullptr});
}

void NSNotificationCenter::postNotification(std::string_view name, const void* object, const std::any& userInfo)
{
    post({.name = name, .object = object, .userInfo = &userInfo});
}

void NSNotificationCenter::post(const NSNotification& notification)
{
    const auto observers = registry_->observers(notification.name);
    if (!observers)
        return;
    std::exception_ptr firstFailure;
    for (const auto& observer : *observers) {
        if (!observer->wants(notification) || !observer->beginCall())
            continue;
        ++depthOfCallsOnThisThread;
        try {
            observer->block(notification);
        } catch (...) {
            if (!firstFailure)
                firstFailure = std::current_exception();
        }
        --depthOfCallsOnThisThread;
        observer->endCall();
    }
    if (firstFailure)
        std::rethrow_exception(firstFailure);
}

} // namespace tarn
