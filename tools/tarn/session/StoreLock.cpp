#include "tools/tarn/session/StoreLock.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/Interruption.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

namespace tarn {

namespace {

constexpr std::chrono::milliseconds kPause{10};
constexpr std::chrono::milliseconds kDefaultLimit{60'000};

} // namespace

StoreLock::StoreLock(const std::filesystem::path& file, std::chrono::milliseconds limit)
    : descriptor_(::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
{
    if (descriptor_ < 0)
        throw failureForSystemError("cannot lock the store with " + file.string(), errno);
    try {
        wait(file, limit);
    } catch (...) {
        ::close(descriptor_);
        throw;
    }
    // For those who wait. A disk that is full takes nothing from the lock.
    const std::string number = std::to_string(::getpid()) + "\n";
    if (::ftruncate(descriptor_, 0) != 0 || ::pwrite(descriptor_, number.data(), number.size(), 0) < 0) { }
}

StoreLock::~StoreLock()
{
    if (::ftruncate(descriptor_, 0) != 0) { }
    ::close(descriptor_);
}

void StoreLock::wait(const std::filesystem::path& file, std::chrono::milliseconds limit) const
{
    const auto start = std::chrono::steady_clock::now();
    bool told = false;
    while (::flock(descriptor_, LOCK_EX | LOCK_NB) != 0) {
        const int number = errno;
        if (number != EINTR && number != EWOULDBLOCK)
            throw failureForSystemError("cannot lock the store with " + file.string(), number);
        const auto waited = std::chrono::steady_clock::now() - start;
        Interruption::endIfRequested("interrupted while " + holder() + " was writing the store; nothing was saved");
        if (waited >= limit)
            throw CommandFailure(ExitCode::Locked,
                "the store is being written by " + holder() + ", says " + file.string()
                    + "; try again when it is done");
        if (!told && waited >= kSilentWait) {
            tellOnStandardError("waiting for " + holder() + ", which is writing the store");
            told = true;
        }
        std::this_thread::sleep_for(kPause);
    }
}

std::string StoreLock::holder() const
{
    std::array<char, 16> text{};
    const ssize_t count = ::pread(descriptor_, text.data(), text.size(), 0);
    long number = 0;
    if (count > 0)
        std::from_chars(text.data(), text.data() + count, number);
    return number > 0 ? "another tarn (process " + std::to_string(number) + ")" : "another tarn";
}

std::chrono::milliseconds StoreLock::limitOfEnvironment()
{
    const std::string text = Environment::current().variable("TARN_LOCK_WAIT").value_or("");
    unsigned seconds = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    if (text.empty() || error != std::errc() || end != text.data() + text.size())
        return kDefaultLimit;
    return std::chrono::seconds(std::min(seconds, 86'400U));
}

} // namespace tarn
