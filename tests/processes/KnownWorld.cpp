#include "tests/processes/KnownWorld.h"

#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"

#include <algorithm>

namespace tarn {

KnownWorld::KnownWorld(std::uint64_t seed)
    : random_(seed), clock_(dateWithMicrosecondsSince1970(1'700'000'000'000'000)),
      previousHost_(setHostUUIDProvider([](std::chrono::seconds) {
          return HostUUID{HostUUIDStatus::Known, *bytesOfUUIDString(deviceUUID)};
      }))
{
    world_.setClock([this] { return clock_ += std::chrono::milliseconds(1); });
    world_.setRandomBytes([this](std::span<std::byte> bytes) {
        std::generate(bytes.begin(), bytes.end(), [this] { return static_cast<std::byte>(random_() & 0xFFU); });
    });
    world_.setHostName("Known machine");
    world_.setLocaleIdentifier("en_US");
    world_.setTimeZoneIdentifier("UTC");
}

KnownWorld::~KnownWorld()
{
    setHostUUIDProvider(previousHost_);
}

} // namespace tarn
