#include "tarnmodel/platform/foundation/system/Environment.h"

#include "tarnmodel/platform/foundation/system/EnvironmentInternal.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <mutex>
#include <utility>

namespace tarn {

struct Environment::State {
    std::mutex mutex;
    std::shared_ptr<const EnvironmentProviders> providers;
};

Environment::Environment() : state_(std::make_unique<State>())
{
    state_->providers = std::make_shared<const EnvironmentProviders>(systemEnvironmentProviders());
}

const Environment& Environment::current()
{
    // Never destroyed: other static objects may still ask while the process ends.
    static const auto* const environment = new Environment;
    return *environment;
}

std::shared_ptr<const EnvironmentProviders> Environment::providers() const
{
    const std::lock_guard lock(state_->mutex);
    return state_->providers;
}

void Environment::setProviders(std::shared_ptr<const EnvironmentProviders> providers) const
{
    const std::lock_guard lock(state_->mutex);
    state_->providers.swap(providers);
}

NSDate Environment::now() const
{
    return providers()->clock();
}

void Environment::fillWithRandomBytes(std::span<std::byte> bytes) const
{
    providers()->randomBytes(bytes);
}

std::optional<std::string> Environment::variable(std::string_view name) const
{
    return providers()->variable(name);
}

std::chrono::seconds Environment::localTimeOffset(NSDate date) const
{
    return providers()->localTimeOffset(date);
}

std::string Environment::localeIdentifier() const
{
    return providers()->localeIdentifier();
}

std::filesystem::path Environment::homeDirectory() const
{
    return providers()->homeDirectory();
}

std::filesystem::path Environment::temporaryDirectory() const
{
    return providers()->temporaryDirectory();
}

std::filesystem::path Environment::cacheDirectory() const
{
    return providers()->cacheDirectory();
}

std::optional<std::filesystem::path> Environment::runtimeDirectory() const
{
    return providers()->runtimeDirectory();
}

std::string Environment::hostName() const
{
    return validUTF8(providers()->hostName());
}

std::optional<MachineIdentifier> Environment::machineIdentifier() const
{
    return providers()->machineIdentifier();
}

std::optional<std::uintmax_t> Environment::availableSpace(const std::filesystem::path& folder) const
{
    return providers()->availableSpace(folder);
}

EnvironmentOverride::EnvironmentOverride() : previous_(Environment::current().providers()) { }

EnvironmentOverride::~EnvironmentOverride()
{
    Environment::current().setProviders(std::move(previous_));
    for (const auto& [name, value] : previousZoneVariables_)
        setZoneVariableOfProcess(name, value);
}

template <typename Change> void EnvironmentOverride::change(Change change)
{
    auto providers = std::make_shared<EnvironmentProviders>(*Environment::current().providers());
    change(*providers);
    Environment::current().setProviders(std::move(providers));
}

void EnvironmentOverride::setClock(std::function<NSDate()> clock)
{
    change([&](EnvironmentProviders& providers) { providers.clock = std::move(clock); });
}

void EnvironmentOverride::setNow(NSDate date)
{
    setClock([date] { return date; });
}

void EnvironmentOverride::setRandomBytes(std::function<void(std::span<std::byte>)> randomBytes)
{
    change([&](EnvironmentProviders& providers) { providers.randomBytes = std::move(randomBytes); });
}

void EnvironmentOverride::setVariable(std::string name, std::optional<std::string> value)
{
    if (name == "TZ" || name == "TZDIR") {
        previousZoneVariables_.try_emplace(name, systemEnvironmentProviders().variable(name));
        setZoneVariableOfProcess(name, value);
    }
    change([&](EnvironmentProviders& providers) {
        providers.variable = [name = std::move(name), value = std::move(value), others = providers.variable](
                                 std::string_view wanted) { return wanted == name ? value : others(wanted); };
    });
}

void EnvironmentOverride::setTimeZoneIdentifier(std::string identifier)
{
    setVariable("TZ", std::move(identifier));
}

void EnvironmentOverride::setLocaleIdentifier(std::string identifier)
{
    change([&](EnvironmentProviders& providers) {
        providers.localeIdentifier = [identifier = std::move(identifier)] { return identifier; };
    });
}

void EnvironmentOverride::setHomeDirectory(std::filesystem::path path)
{
    change(
        [&](EnvironmentProviders& providers) { providers.homeDirectory = [path = std::move(path)] { return path; }; });
}

void EnvironmentOverride::setTemporaryDirectory(std::filesystem::path path)
{
    change([&](EnvironmentProviders& providers) {
        providers.temporaryDirectory = [path = std::move(path)] { return path; };
    });
}

void EnvironmentOverride::setCacheDirectory(std::filesystem::path path)
{
    change(
        [&](EnvironmentProviders& providers) { providers.cacheDirectory = [path = std::move(path)] { return path; }; });
}

void EnvironmentOverride::setRuntimeDirectory(std::optional<std::filesystem::path> path)
{
    change([&](EnvironmentProviders& providers) {
        providers.runtimeDirectory = [path = std::move(path)] { return path; };
    });
}

void EnvironmentOverride::setHostName(std::string name)
{
    change([&](EnvironmentProviders& providers) { providers.hostName = [name = std::move(name)] { return name; }; });
}

void EnvironmentOverride::setMachineIdentifier(std::optional<MachineIdentifier> identifier)
{
    change([&](EnvironmentProviders& providers) { providers.machineIdentifier = [identifier] { return identifier; }; });
}

void EnvironmentOverride::setAvailableSpace(std::optional<std::uintmax_t> bytes)
{
    change([&](EnvironmentProviders& providers) {
        providers.availableSpace = [bytes](const std::filesystem::path&) { return bytes; };
    });
}

NSDate now()
{
    return Environment::current().now();
}

} // namespace tarn
