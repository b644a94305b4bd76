#include "tarnmodel/sync/HostUUID.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <sodium/core.h>
#include <sodium/crypto_auth_hmacsha256.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

namespace tarn {

namespace {

using UUIDBytes = std::array<std::byte, 16>;

// Names this library to the derivation; another one makes every machine a new device.
constexpr std::array<unsigned char, 16> applicationIdentifier{
    0x5A, 0x0E, 0x93, 0xC4, 0x71, 0x2B, 0x4F, 0x86, 0xA9, 0x3D, 0x18, 0xE7, 0x60, 0xCB, 0x52, 0xF4};

constexpr std::string_view stateFolderName = "tarnmodel";
constexpr std::string_view identifierFileName = "device-identifier";

/// Version 4 and the variant of RFC 4122.
void setUUIDBits(UUIDBytes& bytes)
{
    bytes[6] = (bytes[6] & std::byte{0x0F}) | std::byte{0x40};
    bytes[8] = (bytes[8] & std::byte{0x3F}) | std::byte{0x80};
}

UUIDBytes uuidDerivedFromMachineIdentifier(const MachineIdentifier& machine)
{
    std::array<unsigned char, crypto_auth_hmacsha256_BYTES> digest{};
    crypto_auth_hmacsha256_state state;
    crypto_auth_hmacsha256_init(&state, reinterpret_cast<const unsigned char*>(machine.data()), machine.size());
    crypto_auth_hmacsha256_update(&state, applicationIdentifier.data(), applicationIdentifier.size());
    crypto_auth_hmacsha256_final(&state, digest.data());

    UUIDBytes bytes{};
    std::transform(digest.begin(), digest.begin() + bytes.size(), bytes.begin(),
        [](unsigned char value) { return std::byte{value}; });
    setUUIDBits(bytes);
    return bytes;
}

std::filesystem::path identifierFile()
{
    const Environment& environment = Environment::current();
    // A relative state folder would depend on the working directory; the base directory rules ignore one.
    std::filesystem::path folder(environment.variable("XDG_STATE_HOME").value_or(""));
    if (!folder.is_absolute())
        folder = environment.homeDirectory() / ".local" / "state";
    return folder / stateFolderName / identifierFileName;
}

std::optional<UUIDBytes> storedIdentifier(const std::filesystem::path& file)
{
    std::ifstream stream(file);
    std::string line;
    std::getline(stream, line);
    return bytesOfUUIDString(line);
}

bool writeIdentifier(const std::filesystem::path& file)
{
    UUIDBytes bytes{};
    Environment::current().fillWithRandomBytes(bytes);
    setUUIDBits(bytes);
    std::ofstream stream(file);
    stream << uuidString(bytes) << '\n';
    stream.close();
    return stream.good();
}

/// Makes the identifier under a name of its own and links it into place, so that of several processes that start
/// at once one wins and all read the same.
std::optional<UUIDBytes> makeStoredIdentifier(const std::filesystem::path& file)
{
    std::error_code error;
    std::filesystem::create_directories(file.parent_path(), error);
    const std::filesystem::path draft = file.string() + '.' + newUUIDString();
    if (!writeIdentifier(draft)) {
        std::filesystem::remove(draft, error);
        return std::nullopt;
    }
    std::filesystem::create_hard_link(draft, file, error);
    // Something unreadable is in the way, or the file system has no links.
    if (error && !storedIdentifier(file))
        std::filesystem::rename(draft, file, error);
    std::filesystem::remove(draft, error);
    return storedIdentifier(file);
}

HostUUID defaultHostUUID()
{
    if (const auto machine = Environment::current().machineIdentifier(); machine && sodium_init() >= 0)
        return {HostUUIDStatus::Known, uuidDerivedFromMachineIdentifier(*machine)};
    const std::filesystem::path file = identifierFile();
    auto identifier = storedIdentifier(file);
    if (!identifier)
        identifier = makeStoredIdentifier(file);
    return identifier ? HostUUID{HostUUIDStatus::Known, *identifier} : HostUUID{};
}

struct CurrentProvider {
    std::mutex mutex;
    HostUUIDProvider provider;
};

CurrentProvider& currentProvider()
{
    static CurrentProvider current;
    return current;
}

} // namespace

HostUUID hostUUID(std::chrono::seconds limit)
{
    HostUUIDProvider provider;
    {
        const std::scoped_lock lock(currentProvider().mutex);
        provider = currentProvider().provider;
    }
    return provider ? provider(limit) : defaultHostUUID();
}

HostUUIDProvider setHostUUIDProvider(HostUUIDProvider provider)
{
    const std::scoped_lock lock(currentProvider().mutex);
    return std::exchange(currentProvider().provider, std::move(provider));
}

} // namespace tarn
