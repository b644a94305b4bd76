#include "tarnmodel/files/thumbnails/ThumbStamp.h"

#include "tarnmodel/files/thumbnails/SHA1.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <fmt/format.h>

#include <cstddef>
#include <sys/stat.h>
#include <utility>

namespace tarn {

namespace {

constexpr std::string_view kSum = " sha1 ";
constexpr std::string_view kLook = " look ";
constexpr std::size_t kDigitsOfSum = 40;
constexpr std::int64_t kSlowestClock = 3;
constexpr int kMostReadings = 3;
constexpr std::int64_t kMicroseconds = 1'000'000;

FileTime fileTime(const timespec& time)
{
    return {time.tv_sec, time.tv_nsec};
}

std::string textOfState(const SourceState& state)
{
    return fmt::format("size {} modified {}.{:09} changed {}.{:09} inode {}", state.size, state.modified.seconds,
        state.modified.nanoseconds, state.changed.seconds, state.changed.nanoseconds, state.inode);
}

} // namespace

std::optional<SourceState> stateOfSource(const std::filesystem::path& file)
{
    struct stat status { };
    if (::stat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return SourceState{status.st_size, fileTime(status.st_mtim), fileTime(status.st_ctim), status.st_ino};
}

bool isSettled(const SourceState& state, NSDate moment)
{
    const std::int64_t seconds = microsecondsSince1970(moment) / kMicroseconds;
    return state.modified.seconds < seconds - kSlowestClock && state.changed.seconds < seconds - kSlowestClock;
}

std::optional<ThumbStamp> ThumbStamp::stampOfSource(
    const std::filesystem::path& file, const SourceState& state, NSDate moment)
{
    if (isSettled(state, moment))
        return ThumbStamp{textOfState(state), {}};
    std::optional<std::string> sum = sha1OfFile(file);
    if (!sum)
        return std::nullopt;
    return ThumbStamp{textOfState(state), std::move(*sum)};
}

std::optional<ThumbStamp> ThumbStamp::stampFromText(std::string_view text)
{
    if (!text.starts_with("size "))
        return std::nullopt;
    ThumbStamp stamp;
    if (const std::size_t sum = text.find(kSum); sum != std::string_view::npos) {
        stamp.sha1 = text.substr(sum + kSum.size());
        if (stamp.sha1.size() != kDigitsOfSum)
            return std::nullopt;
        text = text.substr(0, sum);
    }
    if (const std::size_t look = text.find(kLook); look != std::string_view::npos) {
        stamp.look = text.substr(look + kLook.size());
        text = text.substr(0, look);
    }
    stamp.state = text;
    return stamp;
}

std::string ThumbStamp::text() const
{
    const std::string made = look.empty() ? state : fmt::format("{}{}{}", state, kLook, look);
    return sha1.empty() ? made : fmt::format("{}{}{}", made, kSum, sha1);
}

bool ThumbStamp::isOf(const SourceState& source) const
{
    return state == textOfState(source);
}

std::optional<SeenStamp> readInOneState(
    const std::filesystem::path& file, const std::function<bool()>& read, NSError* error)
{
    for (int reading = 0; reading < kMostReadings; ++reading) {
        const NSDate seen = now();
        const auto state = stateOfSource(file);
        auto stamp = state ? ThumbStamp::stampOfSource(file, *state, seen) : std::nullopt;
        if (!stamp) {
            assignError(error, NSError("Tarn Model", 0, fmt::format("\"{}\" cannot be read.", file.string())));
            return std::nullopt;
        }
        const bool isRead = read();
        if (stateOfSource(file) == state)
            return isRead ? std::optional(SeenStamp{std::move(*stamp), seen}) : std::nullopt;
    }
    assignError(error, NSError("Tarn Model", 0, fmt::format("\"{}\" changes while it is read.", file.string())));
    return std::nullopt;
}

} // namespace tarn
