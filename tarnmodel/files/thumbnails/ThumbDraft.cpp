#include "tarnmodel/files/thumbnails/ThumbDraft.h"

#include "tarnmodel/files/thumbnails/ImageComment.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tarn {

namespace {

constexpr std::int64_t kMicrosecondsOfASecond = 1'000'000;
constexpr std::int64_t kNanosecondsOfAMicrosecond = 1'000;

std::error_code systemError()
{
    return {errno, std::generic_category()};
}

/// The times of a thumbnail's file: that of reading stays, that of writing says when its picture was seen.
std::array<timespec, 2> timesFor(NSDate seen)
{
    const std::int64_t microseconds = microsecondsSince1970(seen);
    std::int64_t seconds = microseconds / kMicrosecondsOfASecond;
    std::int64_t rest = microseconds % kMicrosecondsOfASecond;
    if (rest < 0) {
        rest += kMicrosecondsOfASecond;
        --seconds;
    }
    return {timespec{0, UTIME_OMIT}, timespec{seconds, rest * kNanosecondsOfAMicrosecond}};
}

NSDate dateOf(const timespec& time)
{
    return dateWithMicrosecondsSince1970(
        time.tv_sec * kMicrosecondsOfASecond + time.tv_nsec / kNanosecondsOfAMicrosecond);
}

/// At most `most` bytes from the beginning of a file.
std::optional<std::string> bytesFromStart(int descriptor, std::size_t most)
{
    std::string bytes(most, '\0');
    std::size_t size = 0;
    while (size < most) {
        const ssize_t read = ::pread(descriptor, bytes.data() + size, most - size, static_cast<off_t>(size));
        if (read < 0 && errno == EINTR)
            continue;
        if (read < 0)
            return std::nullopt;
        if (read == 0)
            break;
        size += static_cast<std::size_t>(read);
    }
    bytes.resize(size);
    return bytes;
}

bool writeAtStart(int descriptor, std::string_view bytes)
{
    for (std::size_t size = 0; size < bytes.size();) {
        const ssize_t written
            = ::pwrite(descriptor, bytes.data() + size, bytes.size() - size, static_cast<off_t>(size));
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0)
            size += static_cast<std::size_t>(written);
    }
    return true;
}

} // namespace

ThumbDraft::ThumbDraft(const std::filesystem::path& folder, std::string_view name)
    : path_(folder / (nameBeginning(name) + '.' + newUUIDString())),
      descriptor_(::open(path_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR))
{ }

ThumbDraft::~ThumbDraft()
{
    if (!isThere())
        return;
    ::unlink(path_.c_str());
    ::close(descriptor_);
}

std::string ThumbDraft::nameBeginning(std::string_view thumbNameBeginning)
{
    return '.' + std::string(thumbNameBeginning);
}

std::error_code ThumbDraft::publish(const SeenStamp& source, const std::filesystem::path& destination)
{
    // The path of a draft that was deleted may name a file that the encoder made anew.
    struct stat status { };
    if (::fstat(descriptor_, &status) != 0)
        return systemError();
    if (status.st_nlink == 0)
        return std::make_error_code(std::errc::operation_canceled);
    if (const std::error_code failure = writeWithStamp(static_cast<std::size_t>(status.st_size), source))
        return failure;
    return ::rename(path_.c_str(), destination.c_str()) == 0 ? std::error_code() : systemError();
}

std::error_code ThumbDraft::writeWithStamp(std::size_t size, const SeenStamp& source) const
{
    const auto image = bytesFromStart(descriptor_, size);
    if (!image)
        return systemError();
    const auto stamped = imageWithComment(*image, source.stamp.text());
    if (!stamped)
        return std::make_error_code(std::errc::bad_message);
    const std::array<timespec, 2> times = timesFor(source.seen);
    if (!writeAtStart(descriptor_, *stamped) || ::futimens(descriptor_, times.data()) != 0 || ::fsync(descriptor_) != 0)
        return systemError();
    return {};
}

std::optional<SeenStamp> publishedStamp(const std::filesystem::path& thumb)
{
    const int descriptor = ::open(thumb.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return std::nullopt;
    struct stat status { };
    std::optional<std::string> beginning;
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))
        beginning = bytesFromStart(descriptor, ImageCommentReach);
    ::close(descriptor);
    const auto comment = beginning ? commentOfImage(*beginning) : std::nullopt;
    auto stamp = comment ? ThumbStamp::stampFromText(*comment) : std::nullopt;
    if (!stamp)
        return std::nullopt;
    return SeenStamp{std::move(*stamp), dateOf(status.st_mtim)};
}

void noteSourceSeen(const std::filesystem::path& thumb, NSDate seen)
{
    NSFileManager::setModificationDate(seen, thumb);
}

} // namespace tarn
