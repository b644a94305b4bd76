#pragma once

#include <any>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace tarn {

/// What an observer is given; everything in it is valid during the call only.
struct NSNotification {
    std::string_view name;              ///< which kind of event it is
    const void* object = nullptr;       ///< who sent it; may be null
    const std::any* userInfo = nullptr; ///< what came along; may be null

    /// What came along when it is a `T`, else null.
    template <typename T> const T* userInfoAs() const noexcept
    {
        return userInfo ? std::any_cast<T>(userInfo) : nullptr;
    }
};

/// Keeps one observer registered; ends with its life. Movable.
///
/// Once `cancel()` or the destructor has returned the observer is not called any more. When a call of it runs on
/// another thread they wait for its end, except from within an observer, where waiting could never end.
class [[nodiscard]] NSNotificationSubscription {
public:
    NSNotificationSubscription() = default;
    ~NSNotificationSubscription();
    /// Takes the registration over.
    NSNotificationSubscription(NSNotificationSubscription&& other) noexcept;
    NSNotificationSubscription& operator=(NSNotificationSubscription&& other) noexcept;

    /// Ends the registration; nothing when it has ended.
    void cancel();
    /// Whether the observer is still registered.
    bool isActive() const noexcept { return observer_ != nullptr; }

private:
    friend class NSNotificationCenter;
    struct Observer;
    struct Registry;
    NSNotificationSubscription(std::shared_ptr<Registry> registry, std::shared_ptr<Observer> observer) noexcept;

    std::shared_ptr<Registry> registry_;
    std::shared_ptr<Observer> observer_;
};

/// Tells observers of named events, on the thread that posts, in the order of their registration.
///
/// Any thread. Observers may add and remove observers (themselves too) and post again: one that is removed during a
/// post is not called any more, one that is added is called from the next post on.
///
///     auto saved = NSNotificationCenter::defaultCenter().addObserver(
///         NSManagedObjectContextDidSaveNotification, &context, [](const NSNotification&) { ... });
class NSNotificationCenter {
public:
    /// What an observer runs.
    using Block = std::function<void(const NSNotification&)>;

    /// A centre of one's own, without observers.
    NSNotificationCenter();
    ~NSNotificationCenter();
    NSNotificationCenter(const NSNotificationCenter&) = delete;
    NSNotificationCenter& operator=(const NSNotificationCenter&) = delete;

    /// The one of this process.
    static NSNotificationCenter& defaultCenter();

    /// Calls `block` for each notification of this name, from `object` only unless that is null.
    [[nodiscard]] NSNotificationSubscription addObserver(std::string_view name, const void* object, Block block);

    /// Calls the observers. When some throw, the others are called all the same, then the first exception goes on to
    /// the caller.
    void postNotification(std::string_view name, const void* object);
    void postNotification(std::string_view name, const void* object, const std::any& userInfo);

private:
    void post(const NSNotification& notification);

    std::shared_ptr<NSNotificationSubscription::Registry> registry_;
};

} // namespace tarn
