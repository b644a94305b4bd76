#include "tarnmodel/sync/OVDeviceUUID.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/sync/HostUUID.h"

namespace tarn {

std::optional<std::string> OVDeviceUUID::deviceUUID()
{
    const HostUUID host = hostUUID(std::chrono::seconds(5));
    switch (host.status) {
    case HostUUIDStatus::TimedOut:
        logMessage("Failed to get system UUID: timeout expired");
        return std::nullopt;
    case HostUUIDStatus::BadAddress:
        logMessage("Failed to get system UUID: unknown error");
        return std::nullopt;
    case HostUUIDStatus::Failed:
        // Kept: clocks that were written after such a failure hold the identifier of all zeros.
        return uuidString(std::array<std::byte, 16>{});
    case HostUUIDStatus::Known:
        break;
    }
    return uuidString(host.bytes);
}

std::string OVDeviceUUID::deviceName()
{
    return Environment::current().hostName();
}

} // namespace tarn
