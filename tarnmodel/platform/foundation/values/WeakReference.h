#pragma once

#include <memory>

namespace tarn {

/// Base of objects that others refer to without keeping them alive: delegates, first of all.
///
/// A copy is an object of its own: references to the original do not lead to it.
class WeaklyReferenced {
public:
    /// Expires when this object ends.
    std::weak_ptr<const void> lifeline() const noexcept { return lifeline_; }

protected:
    WeaklyReferenced() = default;
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
    explicit WeakReference(Object* object) : object_(object)
    {
        if (object)
            lifeline_ = object->lifeline();
    }

    Object* get() const noexcept { return lifeline_.expired() ? nullptr : object_; }

private:
    Object* object_ = nullptr;
    std::weak_ptr<const void> lifeline_;
};

} // namespace tarn
