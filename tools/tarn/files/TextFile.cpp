#include "tools/tarn/files/TextFile.h"

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/commandline/CommandFailure.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace tarn {

namespace {

constexpr std::string_view kUTF8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUTF16LittleMark = "\xFF\xFE";
constexpr std::string_view kUTF16BigMark = "\xFE\xFF";

class FileDescriptor {
public:
    explicit FileDescriptor(int descriptor) noexcept : descriptor_(descriptor) { }
    ~FileDescriptor()
    {
        if (descriptor_ >= 0)
            ::close(descriptor_);
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    int get() const noexcept { return descriptor_; }

private:
    int descriptor_;
};

TextFileError cannotRead(int number)
{
    return {TextFileError::Kind::CannotRead, std::generic_category().message(number)};
}

NSDate dateOf(const struct statx_timestamp& stamp) noexcept
{
    constexpr std::int64_t kMicroseconds = 1'000'000;
    return dateWithMicrosecondsSince1970(stamp.tv_sec * kMicroseconds + stamp.tv_nsec / 1000);
}

/// Dates and size of a regular file.
struct statx statusOf(int descriptor)
{
    struct statx status { };
    if (::statx(descriptor, "", AT_EMPTY_PATH, STATX_BASIC_STATS | STATX_BTIME, &status) != 0)
        throw cannotRead(errno);
    if (!S_ISREG(status.stx_mode))
        throw TextFileError(TextFileError::Kind::CannotRead, "not a regular file");
    if (status.stx_size > OVNote::maximumTextLength)
        throw tooLongForANote();
    return status;
}

/// Reads up to one byte more than the longest text.
std::string readToEnd(int descriptor, std::size_t expected)
{
    std::string bytes;
    std::size_t used = 0;
    bytes.resize(expected + 1);
    for (;;) {
        const ssize_t count = ::read(descriptor, bytes.data() + used, bytes.size() - used);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw cannotRead(errno);
        used += static_cast<std::size_t>(count);
        if (count == 0 || used > OVNote::maximumTextLength)
            break;
        if (used == bytes.size())
            bytes.resize(bytes.size() * 2);
    }
    bytes.resize(used);
    return bytes;
}

bool hasUnpairedSurrogate(std::u16string_view units) noexcept
{
    for (std::size_t index = 0; index < units.size(); ++index) {
        const bool high = units[index] >= 0xD800 && units[index] <= 0xDBFF;
        const bool low = units[index] >= 0xDC00 && units[index] <= 0xDFFF;
        if (low)
            return true;
        if (!high)
            continue;
        ++index;
        if (index == units.size() || units[index] < 0xDC00 || units[index] > 0xDFFF)
            return true;
    }
    return false;
}

std::string textFromUTF16(std::string_view bytes, bool bigEndian)
{
    std::u16string units;
    units.reserve(bytes.size() / 2);
    const auto byteAt = [bytes](std::size_t index) { return static_cast<unsigned char>(bytes[index]); };
    for (std::size_t index = 0; index + 1 < bytes.size(); index += 2) {
        const unsigned high = byteAt(bigEndian ? index : index + 1);
        const unsigned low = byteAt(bigEndian ? index + 1 : index);
        units += static_cast<char16_t>(high << 8U | low);
    }
    if (bytes.size() % 2 != 0 || hasUnpairedSurrogate(units))
        throw TextFileError(TextFileError::Kind::NoText, "ill-formed UTF-16; save it as UTF-8");
    return utf8FromUTF16(units);
}

} // namespace

TextFileError tooLongForANote()
{
    return {TextFileError::Kind::NoText,
        "larger than " + std::to_string(OVNote::maximumTextLength >> 20U) + " MiB, the longest text of a note"};
}

std::size_t firstInvalidByte(std::string_view text) noexcept
{
    if (isValidUTF8(text))
        return std::string_view::npos;
    for (std::size_t offset = 0; offset < text.size();) {
        const DecodedCodePoint next = decodeCodePoint(text, offset);
        if (!next.valid)
            return offset;
        offset += next.length;
    }
    return std::string_view::npos;
}

std::string textFromFileContents(std::string_view bytes)
{
    if (bytes.starts_with(kUTF16LittleMark) || bytes.starts_with(kUTF16BigMark))
        return textFromUTF16(bytes.substr(2), bytes.starts_with(kUTF16BigMark));
    if (bytes.starts_with(kUTF8Mark))
        bytes.remove_prefix(kUTF8Mark.size());
    const std::size_t invalid = firstInvalidByte(bytes);
    if (invalid != std::string_view::npos)
        throw TextFileError(
            TextFileError::Kind::NoText, "not UTF-8 (byte " + std::to_string(invalid + 1) + "); save it as UTF-8");
    return std::string(bytes);
}

TextFile readTextFile(const std::filesystem::path& path)
{
    // O_NONBLOCK: a pipe that nobody writes to must not stop an import.
    const FileDescriptor descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (descriptor.get() < 0)
        throw cannotRead(errno);
    const struct statx status = statusOf(descriptor.get());
    const std::string bytes = readToEnd(descriptor.get(), status.stx_size);
    if (bytes.size() > OVNote::maximumTextLength)
        throw tooLongForANote();

    TextFile file;
    file.text = textFromFileContents(bytes);
    file.modificationDate = dateOf(status.stx_mtime);
    // A copied file keeps its modification date and is born today: the earlier of the two is nearer to the truth.
    const bool knowsBirth = (status.stx_mask & STATX_BTIME) != 0 && status.stx_btime.tv_sec > 0;
    file.creationDate = knowsBirth ? std::min(dateOf(status.stx_btime), file.modificationDate) : file.modificationDate;
    return file;
}

std::string readDescriptor(int descriptor, std::string_view name)
{
    constexpr std::size_t kFirstBuffer = 1U << 16;
    try {
        std::string bytes = readToEnd(descriptor, kFirstBuffer);
        if (bytes.size() > OVNote::maximumTextLength)
            throw tooLongForANote();
        return bytes;
    } catch (const TextFileError& error) {
        throw CommandFailure(ExitCode::InputOutput, std::string(name) + ": " + error.what());
    }
}

} // namespace tarn
