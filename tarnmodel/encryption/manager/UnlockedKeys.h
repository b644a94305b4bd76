#pragma once

#include "tarnmodel/encryption/keys/PasswordBlob.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace tarn {

/// The master keys of the passwords that are unlocked, by the identifiers of their records; until they are locked, or
/// were not used for as long as the limit. Any thread. Shared, since holds may outlive who gave them.
class UnlockedKeys : public std::enable_shared_from_this<UnlockedKeys> {
public:
    /// What follows from a change; called on the thread that brought it about, which may be any.
    struct Events {
        std::function<void()> didUnlock;
        std::function<void()> didLock;
        /// Nobody holds this password any more.
        std::function<void(const std::string& password)> didForget;
    };

    /// A limit of 0 is none.
    UnlockedKeys(std::chrono::seconds timeLimit, Events events);

    void unlock(const std::string& password, KeyRing ring);
    void lock(std::string_view password);
    void lockAll();
    /// Locks everything, holds or not. Nobody is told of anything any more once this returns.
    void close();

    // Each of these is a use, from which the time limit counts anew.
    /// The key of this name; none while it is locked, or unknown.
    std::optional<MasterKey> key(const MasterKeyIdentifier& identifier);
    /// Whose key that is.
    std::optional<std::string> passwordOf(const MasterKeyIdentifier& identifier);

    /// Keeps what is unlocked for the calling thread while the token lives.
    std::shared_ptr<void> hold();
    /// Locks what is due, and says how long it is until there may be more of that; none when nothing is unlocked, or
    /// when there is no limit.
    std::optional<std::chrono::microseconds> lockWhatIsDue();

private:
    using Token = std::uint64_t;
    struct Ring {
        std::string password;
        KeyRing keys;
        NSDate lastUse;
    };
    /// Locked, but not for those who held it then.
    struct HeldRing {
        Ring ring;
        std::set<Token> holders;
    };
    struct Outcome {
        bool unlocked = false;
        bool locked = false;
        std::vector<std::string> forgotten;
    };

    template <typename Find> auto use(const Find& find);
    template <typename Matches> Ring* ringWhere(const Matches& matches);
    bool isDue(const Ring& ring, NSDate now) const;
    void expire(NSDate now, Outcome& outcome);
    void lockRing(Ring ring, Outcome& outcome);
    void release(Token token);
    void tell(std::unique_lock<std::mutex> lock, const Outcome& outcome);

    const std::chrono::microseconds timeLimit_;
    const Events events_;
    std::mutex mutex_;
    std::vector<Ring> open_;
    std::vector<HeldRing> held_;
    std::map<Token, std::thread::id> holders_;
    Token lastToken_ = 0;
    std::multiset<std::thread::id> telling_; ///< threads that are in `events_`
    std::condition_variable toldAll_;
    bool isClosed_ = false;
};

} // namespace tarn
