#pragma once

#include <concepts>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>

namespace tarn {

class NSManagedObject;

/// What hears of a change: anything that can be called with the record and the key that was asked for.
class KeyValueObserver {
public:
    /// Anything that can be called so.
    template <typename Block>
    requires(std::invocable<Block&, NSManagedObject&, std::string_view> && !std::same_as<Block, KeyValueObserver>)
        KeyValueObserver(Block block)
        : block_(std::move(block)) // a lambda stands for one
    { }
    /// Calls it, on the queue of the record's context.
    void operator()(NSManagedObject& record, std::string_view key) const { block_(record, key); }

private:
    std::function<void(NSManagedObject& record, std::string_view key)> block_;
};

/// Ends an observation when it goes. Movable; may outlive the record.
class KeyValueObservation {
public:
    KeyValueObservation() = default;
    /// Takes the observation over.
    KeyValueObservation(KeyValueObservation&& other) noexcept;
    KeyValueObservation& operator=(KeyValueObservation&& other) noexcept;
    ~KeyValueObservation();
    /// Ends the observation; nothing when it has ended.
    void invalidate();

private:
    friend class NSManagedObject;
    explicit KeyValueObservation(std::weak_ptr<void> registration) : registration_(std::move(registration)) { }
    std::weak_ptr<void> registration_;
};

} // namespace tarn
