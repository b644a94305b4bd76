#pragma once

#include <memory>
#include <utility>

namespace tarn {

/// Tells whether an object still lives, without keeping it. Copies are about the same object.
class Lifeline {
public:
    /// Of no object: expired.
    Lifeline() = default;
    /// Of the object that holds the other end.
    explicit Lifeline(std::weak_ptr<const void> life) : life_(std::move(life)) { }
    /// Whether the object has ended, or there was none.
    bool expired() const noexcept { return life_.expired(); }

private:
    std::weak_ptr<const void> life_;
};

/// Base of objects that others refer to without keeping them alive: delegates, first of all.
///
/// A copy is an object of its own: references to the original do not lead to it.
class WeaklyReferenced {
public:
    /// Expires when this object ends.
    Lifeline lifeline() const noexcept { return Lifeline(lifeline_); }

protected:
    WeaklyReferenced() = default;
    /// A copy is an object of its own.
    WeaklyReferenced(const WeaklyReferenced&) { }
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): nothing is assigned
    WeaklyReferenced& operator=(const WeaklyReferenced&) { return *this; }
    ~WeaklyReferenced() = default;

private:
    std::shared_ptr<const void> lifeline_ = std::make_shared<char>();
};

/// Refers to an object that may end at any time; null from then on.
///
/// It does not keep the object from ending, so use it where the object ends: on one thread.
template <typename Object> class WeakReference {
public:
    WeakReference() = default;
    /// Refers to `object` while that lives; null for null.
    explicit WeakReference(Object* object) : object_(object)
    {
        if (object)
            lifeline_ = object->lifeline();
    }

    /// The object; null once it has ended.
    Object* get() const noexcept { return lifeline_.expired() ? nullptr : object_; }

private:
    Object* object_ = nullptr;
    Lifeline lifeline_;
};

} // namespace tarn
