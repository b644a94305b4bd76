#pragma once

#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tarn {

/// The sixteen bytes by which an installation of an operating system knows itself.
using MachineIdentifier = std::array<std::byte, 16>;

/// What answers the questions of `Environment`; every member is set.
struct EnvironmentProviders {
    std::function<NSDate()> clock;                                          ///< `Environment::now`
    std::function<void(std::span<std::byte>)> randomBytes;                  ///< `Environment::fillWithRandomBytes`
    std::function<std::optional<std::string>(std::string_view)> variable;   ///< `Environment::variable`
    std::function<std::chrono::seconds(NSDate)> localTimeOffset;            ///< `Environment::localTimeOffset`
    std::function<std::string()> localeIdentifier;                          ///< `Environment::localeIdentifier`
    std::function<std::filesystem::path()> homeDirectory;                   ///< `Environment::homeDirectory`
    std::function<std::filesystem::path()> temporaryDirectory;              ///< `Environment::temporaryDirectory`
    std::function<std::filesystem::path()> cacheDirectory;                  ///< `Environment::cacheDirectory`
    std::function<std::optional<std::filesystem::path>()> runtimeDirectory; ///< `Environment::runtimeDirectory`
    std::function<std::string()> hostName;                                  ///< `Environment::hostName`
    std::function<std::optional<MachineIdentifier>()> machineIdentifier;    ///< `Environment::machineIdentifier`
    std::function<std::optional<std::uintmax_t>(const std::filesystem::path&)>
        availableSpace; ///< `Environment::availableSpace`
};

/// The world around the library: the only place that asks the clock, the random source and the process environment.
///
/// Any thread. Tests replace single answers by an `EnvironmentOverride`.
///
///     std::string locale = Environment::current().localeIdentifier();
class Environment {
public:
    /// The one of this process.
    static const Environment& current();

    /// The present, in microseconds.
    NSDate now() const;
    /// Fills `bytes` with random bytes fit for keys.
    void fillWithRandomBytes(std::span<std::byte> bytes) const;
    /// An environment variable; none when it is not set.
    std::optional<std::string> variable(std::string_view name) const;
    /// How far local time was ahead of UTC at that moment, by the rules of the system: what TZ says in any of its
    /// forms, else the system's setting. A zone that the system does not know is UTC, and the log says so once.
    std::chrono::seconds localTimeOffset(NSDate date) const;
    /// Language, script and country ("de_DE", "sr_Latn_RS"): the first of LC_ALL, LC_TIME and LANG that is not empty.
    /// "en_US_POSIX" for C, POSIX and nothing.
    std::string localeIdentifier() const;
    /// HOME, else what the user database says, else the root folder.
    std::filesystem::path homeDirectory() const;
    /// TMPDIR, else the system's folder for temporary files: every program may write there.
    std::filesystem::path temporaryDirectory() const;
    /// Where a user's applications keep what can be made again: XDG_CACHE_HOME, else ".cache" in the home folder. By
    /// the rules of XDG a relative folder counts as none. It need not be there.
    std::filesystem::path cacheDirectory() const;
    /// Where a user's programs keep what must not outlive the session, on no disk where the system is set up so:
    /// XDG_RUNTIME_DIR when that is a folder of this user's, by an absolute path; none otherwise.
    std::optional<std::filesystem::path> runtimeDirectory() const;
    /// The name that people gave this machine, else its network name; "localhost" when it has none. Valid UTF-8.
    std::string hostName() const;
    /// None when the system has no identifier or a malformed one.
    std::optional<MachineIdentifier> machineIdentifier() const;
    /// How many bytes this user can still write in a folder; none when the system does not say.
    std::optional<std::uintmax_t> availableSpace(const std::filesystem::path& folder) const;

private:
    friend class EnvironmentOverride;
    Environment();
    std::shared_ptr<const EnvironmentProviders> providers() const;
    void setProviders(std::shared_ptr<const EnvironmentProviders> providers) const;

    struct State;
    std::unique_ptr<State> state_;
};

/// Replaces answers of `Environment::current()` for a scope; what is not set stays as it was.
///
/// Overrides nest like scopes: the last one made goes first. Meant for tests.
///
///     EnvironmentOverride world;
///     world.setClock([] { return dateWithMicrosecondsSince1970(0); });
class EnvironmentOverride {
public:
    EnvironmentOverride();
    ~EnvironmentOverride();
    EnvironmentOverride(const EnvironmentOverride&) = delete;
    EnvironmentOverride& operator=(const EnvironmentOverride&) = delete;

    /// What `Environment::now` answers; called by any thread.
    void setClock(std::function<NSDate()> clock);
    /// A clock that stands still.
    void setNow(NSDate date);
    /// What fills random bytes; called by any thread.
    void setRandomBytes(std::function<void(std::span<std::byte>)> randomBytes);
    /// Sets one variable, or hides it when `value` is none. TZ and TZDIR, which the system itself reads, are set for
    /// the whole process: not while another thread may look at a variable.
    void setVariable(std::string name, std::optional<std::string> value);
    /// What TZ is to say: a name ("Europe/Berlin"), a file, or rules ("CET-1CEST,M3.5.0,M10.5.0/3").
    void setTimeZoneIdentifier(std::string identifier);
    /// What the question of this name answers.
    void setLocaleIdentifier(std::string identifier);
    void setHomeDirectory(std::filesystem::path path);
    void setTemporaryDirectory(std::filesystem::path path);
    void setCacheDirectory(std::filesystem::path path);
    void setRuntimeDirectory(std::optional<std::filesystem::path> path);
    void setHostName(std::string name);
    void setMachineIdentifier(std::optional<MachineIdentifier> identifier);
    /// In every folder.
    void setAvailableSpace(std::optional<std::uintmax_t> bytes);

private:
    template <typename Change> void change(Change change);

    std::shared_ptr<const EnvironmentProviders> previous_;
    std::map<std::string, std::optional<std::string>> previousZoneVariables_; ///< of the process
};

} // namespace tarn
