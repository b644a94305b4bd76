#include "tools/tarn/StoreLock.h"

#include "platform/foundation/Environment.h"
#include "tools/tarn/CommandFailure.h"

#include <algorithm>
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
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (::flock(descriptor_, LOCK_EX | LOCK_NB) != 0) {
        const int number = errno;
        if (number == EINTR)
            continue;
        if (number == EWOULDBLOCK && std::chrono::steady_clock::now() < deadline) {
            std::this_thread::sleep_for(kPause);
            continue;
        }
        ::close(descriptor_);
        if (number != EWOULDBLOCK)
            throw failureForSystemError("cannot lock the store with " + file.string(), number);
        throw CommandFailure(ExitCode::Locked,
            "the store is being written by another tarn (" + file.string() + "); try again when it is done");
    }
}

StoreLock::~StoreLock()
{
    ::close(descriptor_);
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
