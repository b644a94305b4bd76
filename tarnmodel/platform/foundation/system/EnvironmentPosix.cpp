// This and LocalTimePosix.cpp are the only places that ask a POSIX system; another system gets files like these.

#include "tarnmodel/platform/foundation/system/EnvironmentInternal.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <system_error>
#include <vector>

namespace tarn {

namespace {

constexpr std::size_t kLargestSystemFile = 64 * 1024;

/// Empty when there is no such file. Read with every edit of a note, so without a stream and its buffers.
std::string readSystemFile(const char* path)
{
    const int file = ::open(path, O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return {};
    std::string text;
    std::array<char, 512> piece;
    while (text.size() < kLargestSystemFile) {
        const ssize_t count = ::read(file, piece.data(), piece.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        text.append(piece.data(), static_cast<std::size_t>(count));
    }
    ::close(file);
    return text;
}

NSDate systemTime()
{
    return dateWithSystemTime(
        std::chrono::time_point_cast<std::chrono::microseconds>(std::chrono::system_clock::now()));
}

void fillFromSystem(std::span<std::byte> bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::getrandom(bytes.data(), bytes.size(), 0);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) // weak bytes would be worse than none
            throw NSException(NSInternalInconsistencyException, "The system gives no random bytes.");
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
}

std::optional<std::string> processVariable(std::string_view name)
{
    const char* const value = std::getenv(std::string(name).c_str());
    return value ? std::optional(std::string(value)) : std::nullopt;
}

std::string systemLocale()
{
    for (const std::string_view variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const auto name = Environment::current().variable(variable);
        if (name && !name->empty())
            return localeIdentifierFromSystemName(*name);
    }
    return localeIdentifierFromSystemName("");
}

std::filesystem::path homeFromUserDatabase()
{
    std::vector<char> buffer(16 * 1024);
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found && found->pw_dir)
        return found->pw_dir;
    return "/";
}

std::filesystem::path systemHome()
{
    const auto variable = Environment::current().variable("HOME");
    return variable && !variable->empty() ? std::filesystem::path(*variable) : homeFromUserDatabase();
}

std::filesystem::path systemTemporaryFolder()
{
    const auto variable = Environment::current().variable("TMPDIR");
    return variable && !variable->empty() ? *variable : "/tmp";
}

std::filesystem::path systemCacheFolder()
{
    const std::filesystem::path folder = Environment::current().variable("XDG_CACHE_HOME").value_or("");
    return folder.is_absolute() ? folder : Environment::current().homeDirectory() / ".cache";
}

std::optional<std::filesystem::path> systemRuntimeFolder()
{
    std::filesystem::path folder = Environment::current().variable("XDG_RUNTIME_DIR").value_or("");
    struct stat status { };
    if (!folder.is_absolute() || ::stat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)
        || status.st_uid != ::getuid())
        return std::nullopt;
    return folder;
}

std::string systemHostName()
{
    if (auto name = valueInAssignments(readSystemFile("/etc/machine-info"), "PRETTY_HOSTNAME"))
        return *name;
    std::array<char, 257> name{};
    if (::gethostname(name.data(), name.size() - 1) != 0 || name[0] == '\0')
        return "localhost";
    return name.data();
}

std::optional<MachineIdentifier> systemMachineIdentifier()
{
    const auto read = [] { return machineIdentifierFromText(readSystemFile("/etc/machine-id")); };
    // A machine keeps it, and every changed note asks; only the first start of a system may still have none.
    static const std::optional<MachineIdentifier> identifier = read();
    return identifier ? identifier : read();
}

std::optional<std::uintmax_t> systemAvailableSpace(const std::filesystem::path& folder)
{
    std::error_code failure;
    const std::filesystem::space_info space = std::filesystem::space(folder, failure);
    return failure ? std::nullopt : std::optional(space.available);
}

} // namespace

EnvironmentProviders systemEnvironmentProviders()
{
    return {.clock = systemTime,
        .randomBytes = fillFromSystem,
        .variable = processVariable,
        .localTimeOffset = systemLocalTimeOffset,
        .localeIdentifier = systemLocale,
        .homeDirectory = systemHome,
        .temporaryDirectory = systemTemporaryFolder,
        .cacheDirectory = systemCacheFolder,
        .runtimeDirectory = systemRuntimeFolder,
        .hostName = systemHostName,
        .machineIdentifier = systemMachineIdentifier,
        .availableSpace = systemAvailableSpace};
}

} // namespace tarn
