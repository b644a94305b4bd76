#pragma once

#include <optional>
#include <string>

namespace tarn {

/// Who this device is: the key of its counter in vector clocks, and its name for people. Any thread.
class OVDeviceUUID {
public:
    OVDeviceUUID() = delete;

    /// The machine's identifier as 36 characters, upper case; asked anew on every call (see `setHostUUIDProvider`).
    /// None, and a log message, when the machine does not answer within 5 seconds or cannot hand it over. After any
    /// other failure the identifier of all zeros.
    static std::optional<std::string> deviceUUID();
    /// The name that people gave this machine.
    static std::string deviceName();
};

} // namespace tarn
