#include "tarnmodel/encryption/manager/UnlockedKeys.h"

#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarn {
namespace {

/// A clock that is set right goes back by so much without anybody having meant to win time with it.
constexpr std::chrono::microseconds kClockCorrection = std::chrono::seconds(5);

const MasterKey* keyIn(const KeyRing& ring, const MasterKeyIdentifier& identifier)
{
    const auto found = std::ranges::find(ring, identifier, &MasterKey::identifier);
    return found == ring.end() ? nullptr : &*found;
}

} // namespace

UnlockedKeys::UnlockedKeys(std::chrono::seconds timeLimit, Events events)
    : timeLimit_(timeLimit), events_(std::move(events))
{ }

void UnlockedKeys::unlock(const std::string& password, KeyRing ring)
{
    Outcome outcome;
    outcome.unlocked = true;
    std::unique_lock lock(mutex_);
    if (isClosed_)
        return;
    std::erase_if(open_, [&](const Ring& open) { return open.password == password; });
    open_.push_back({password, std::move(ring), now()});
    tell(std::move(lock), outcome);
}

void UnlockedKeys::lock(std::string_view password)
{
    Outcome outcome;
    std::unique_lock lock(mutex_);
    const auto found = std::ranges::find(open_, password, &Ring::password);
    if (found == open_.end())
        return;
    Ring ring = std::move(*found);
    open_.erase(found);
    lockRing(std::move(ring), outcome);
    tell(std::move(lock), outcome);
}

void UnlockedKeys::lockAll()
{
    Outcome outcome;
    std::unique_lock lock(mutex_);
    for (Ring& ring : std::exchange(open_, {}))
        lockRing(std::move(ring), outcome);
    tell(std::move(lock), outcome);
}

void UnlockedKeys::close()
{
    Outcome outcome;
    std::unique_lock lock(mutex_);
    isClosed_ = true;
    holders_.clear();
    for (const HeldRing& held : std::exchange(held_, {}))
        outcome.forgotten.push_back(held.ring.password);
    for (Ring& ring : std::exchange(open_, {}))
        lockRing(std::move(ring), outcome);
    const auto self = std::this_thread::get_id();
    toldAll_.wait(lock, [&] { return telling_.size() == telling_.count(self); });
    tell(std::move(lock), outcome);
}

void UnlockedKeys::lockRing(Ring ring, Outcome& outcome)
{
    outcome.locked = true;
    if (holders_.empty()) {
        outcome.forgotten.push_back(ring.password);
        return;
    }
    HeldRing& held = held_.emplace_back(HeldRing{std::move(ring), {}});
    for (const auto& [token, thread] : holders_)
        held.holders.insert(token);
}

bool UnlockedKeys::isDue(const Ring& ring, NSDate now) const
{
    if (timeLimit_ == std::chrono::microseconds(0))
        return false;
    const std::chrono::microseconds unused = now - ring.lastUse;
    return unused > timeLimit_ || unused < -kClockCorrection;
}

void UnlockedKeys::expire(NSDate now, Outcome& outcome)
{
    for (std::size_t index = open_.size(); index-- > 0;) {
        if (!isDue(open_[index], now))
            continue;
        Ring ring = std::move(open_[index]);
        open_.erase(std::next(open_.begin(), static_cast<std::ptrdiff_t>(index)));
        lockRing(std::move(ring), outcome);
    }
}

template <typename Matches> UnlockedKeys::Ring* UnlockedKeys::ringWhere(const Matches& matches)
{
    for (Ring& ring : open_)
        if (matches(ring))
            return &ring;
    const std::thread::id self = std::this_thread::get_id();
    for (HeldRing& held : held_) {
        const auto isOwn = [&](Token token) {
            const auto holder = holders_.find(token);
            return holder != holders_.end() && holder->second == self;
        };
        if (matches(held.ring) && std::ranges::any_of(held.holders, isOwn))
            return &held.ring;
    }
    return nullptr;
}

/// What `find` gives under the lock, after what is due was locked.
template <typename Find> auto UnlockedKeys::use(const Find& find)
{
    Outcome outcome;
    std::unique_lock lock(mutex_);
    const NSDate present = now(); // under the lock, so that two threads do not seem to turn the clock back
    expire(present, outcome);
    auto result = find(present);
    tell(std::move(lock), outcome);
    return result;
}

std::optional<MasterKey> UnlockedKeys::key(const MasterKeyIdentifier& identifier)
{
    return use([&](NSDate present) -> std::optional<MasterKey> {
        Ring* const ring = ringWhere([&](const Ring& one) { return keyIn(one.keys, identifier) != nullptr; });
        if (!ring)
            return std::nullopt;
        ring->lastUse = std::max(ring->lastUse, present);
        return *keyIn(ring->keys, identifier);
    });
}

std::optional<std::string> UnlockedKeys::passwordOf(const MasterKeyIdentifier& identifier)
{
    return use([&](NSDate) -> std::optional<std::string> {
        const Ring* const ring = ringWhere([&](const Ring& one) { return keyIn(one.keys, identifier) != nullptr; });
        return ring ? std::optional(ring->password) : std::nullopt;
    });
}

std::shared_ptr<void> UnlockedKeys::hold()
{
    return use([&](NSDate) -> std::shared_ptr<void> {
        const Token token = ++lastToken_;
        holders_.emplace(token, std::this_thread::get_id());
        return {nullptr, [keys = weak_from_this(), token](void*) {
                    if (const auto still = keys.lock())
                        still->release(token);
                }};
    });
}

void UnlockedKeys::release(Token token)
{
    Outcome outcome;
    std::unique_lock lock(mutex_);
    holders_.erase(token);
    for (std::size_t index = held_.size(); index-- > 0;) {
        held_[index].holders.erase(token);
        if (!held_[index].holders.empty())
            continue;
        const std::string password = held_[index].ring.password;
        held_.erase(std::next(held_.begin(), static_cast<std::ptrdiff_t>(index)));
        const auto isIt = [&](const Ring& ring) { return ring.password == password; };
        const auto isHeld = [&](const HeldRing& held) { return isIt(held.ring); };
        if (std::ranges::none_of(open_, isIt) && std::ranges::none_of(held_, isHeld))
            outcome.forgotten.push_back(password);
    }
    tell(std::move(lock), outcome);
}

std::optional<std::chrono::microseconds> UnlockedKeys::lockWhatIsDue()
{
    return use([&](NSDate present) -> std::optional<std::chrono::microseconds> {
        std::optional<std::chrono::microseconds> least;
        if (timeLimit_ == std::chrono::microseconds(0))
            return least;
        for (const Ring& ring : open_) {
            const std::chrono::microseconds rest = timeLimit_ - (present - ring.lastUse);
            least = std::min(rest, least.value_or(rest));
        }
        return least;
    });
}

void UnlockedKeys::tell(std::unique_lock<std::mutex> lock, const Outcome& outcome)
{
    if (!outcome.unlocked && !outcome.locked && outcome.forgotten.empty())
        return;
    const auto alive = weak_from_this().lock(); // also when an observer ends the manager
    const auto self = telling_.insert(std::this_thread::get_id());
    lock.unlock();
    // An observer may throw; whoever waits for the end of this must not wait for ever.
    const std::shared_ptr<void> end(nullptr, [&](void*) {
        const std::lock_guard again(mutex_);
        telling_.erase(self);
        toldAll_.notify_all();
    });
    for (const std::string& password : outcome.forgotten)
        events_.didForget(password);
    if (outcome.locked)
        events_.didLock();
    if (outcome.unlocked)
        events_.didUnlock();
}

} // namespace tarn
