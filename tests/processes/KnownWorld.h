#pragma once

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/sync/HostUUID.h"

#include <cstdint>
#include <random>
#include <string_view>

namespace tarn {

/// A world in which the same things happen in every process: a clock that moves by a millisecond whenever it is asked,
/// random bytes from a seed, one device. Two runs of the same work make the same store, to the last value.
class KnownWorld {
public:
    explicit KnownWorld(std::uint64_t seed);
    ~KnownWorld();
    KnownWorld(const KnownWorld&) = delete;
    KnownWorld& operator=(const KnownWorld&) = delete;

    static constexpr std::string_view deviceUUID = "01020304-0506-4708-890A-0B0C0D0E0F10";

private:
    std::mt19937_64 random_;
    NSDate clock_;
    HostUUIDProvider previousHost_;
    EnvironmentOverride world_;
};

} // namespace tarn
