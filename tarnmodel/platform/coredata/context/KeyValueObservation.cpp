#include "tarnmodel/platform/coredata/KeyValueObservation.h"

#include "tarnmodel/platform/coredata/context/ContextCore.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/foundation/values/WeakReference.h"

#include <algorithm>

namespace tarn {

KeyValueObservation::KeyValueObservation(KeyValueObservation&& other) noexcept
    : registration_(std::move(other.registration_))
{
    other.registration_.reset();
}

KeyValueObservation& KeyValueObservation::operator=(KeyValueObservation&& other) noexcept
{
    if (this != &other) {
        invalidate();
        registration_ = std::move(other.registration_);
        other.registration_.reset();
    }
    return *this;
}

KeyValueObservation::~KeyValueObservation()
{
    invalidate();
}

void KeyValueObservation::invalidate()
{
    if (const auto registration = std::static_pointer_cast<ObserverRegistration>(registration_.lock()))
        registration->active = false;
    registration_.reset();
}

Lifeline NSManagedObject::lifeline() const
{
    core().assertOnQueue(this);
    auto& lifeline = RecordAccess::details(*this).lifeline;
    if (!lifeline)
        lifeline = std::make_shared<char>();
    return Lifeline(lifeline);
}

KeyValueObservation NSManagedObject::addObserver(std::string_view key, KeyValueObserver observer)
{
    core().assertOnQueue(this);
    auto& observers = RecordAccess::details(*this).observers;
    std::erase_if(observers, [](const auto& registration) { return !registration->active; });
    observers.push_back(
        std::make_shared<ObserverRegistration>(ObserverRegistration{std::string(key), std::move(observer)}));
    return KeyValueObservation(observers.back());
}

std::set<std::string> NSManagedObject::keysAffectingValueForKey(std::string_view key) const
{
    constexpr std::string_view suffix = "Value";
    if (!key.ends_with(suffix))
        return {};
    const std::string_view base = key.substr(0, key.size() - suffix.size());
    const NSAttributeDescription* attribute = entity().attributeNamed(base);
    return attribute && attribute->isScalar() ? std::set<std::string>{std::string(base)} : std::set<std::string>();
}

void RecordAccess::keepObserved(const NSManagedObject& object)
{
    object.core().observedValues.keep(object);
}

bool RecordAccess::isObserved(const NSManagedObject& object, const std::string& key)
{
    const auto hears = [&](const auto& registration) {
        return registration->active
            && (registration->key == key || object.keysAffectingValueForKey(registration->key).contains(key));
    };
    const RecordDetails* details = detailsIfAny(object);
    return details && std::any_of(details->observers.begin(), details->observers.end(), hears);
}

void NSManagedObject::tellObservers(std::string_view key)
{
    if (!details_ || details_->observers.empty())
        return;
    const std::string changed(key);
    const auto observers = details_->observers;
    for (const auto& registration : observers)
        if (registration->active
            && (registration->key == changed || keysAffectingValueForKey(registration->key).contains(changed)))
            registration->observer(*this, registration->key);
}

void NSManagedObject::willChangeValueForKey(std::string_view key)
{
    RecordAccess::propertyForKey(*this, key);
    core().records.beginWrite(*this);
}

void NSManagedObject::didChangeValueForKey(std::string_view key)
{
    tellObservers(RecordAccess::propertyForKey(*this, key).name());
}

void NSManagedObject::willAccessValueForKey(std::string_view key) const
{
    prepareRead(RecordAccess::propertyForKey(*this, key).index());
}

void NSManagedObject::didAccessValueForKey(std::string_view key) const
{
    RecordAccess::propertyForKey(*this, key);
}

} // namespace tarn
