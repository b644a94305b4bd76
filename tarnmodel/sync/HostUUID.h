#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>

namespace tarn {

/// How asking the host for its identifier went.
enum class HostUUIDStatus : std::uint8_t {
    Known,
    TimedOut,   ///< the host did not answer in time
    BadAddress, ///< the host could not hand the answer over
    Failed,     ///< any other failure
};

/// Sixteen bytes that stay the same for a machine and differ between machines; all zero unless the status is `Known`.
struct HostUUID {
    HostUUIDStatus status = HostUUIDStatus::Failed; ///< whether `bytes` can be used
    std::array<std::byte, 16> bytes{};              ///< of the identifier, in its order
};

/// Answers within the given time.
using HostUUIDProvider = std::function<HostUUID(std::chrono::seconds limit)>;

/// The identifier of this machine, by the provider that is set. Any thread.
///
/// The default derives it from the operating system's machine identifier by a one-way function, so that nobody can
/// compute the one from the other. Where the system has none, a random identifier is made once and kept in the folder
/// "tarnmodel" of the user's state folder ($XDG_STATE_HOME, else ~/.local/state); `Failed` when that is not possible.
HostUUID hostUUID(std::chrono::seconds limit);

/// Replaces the provider and returns the one before (empty for the default). An empty one restores the default.
HostUUIDProvider setHostUUIDProvider(HostUUIDProvider provider);

} // namespace tarn
