#include "tools/tarn/commandline/Output.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/DisplayText.h"

#include <array>
#include <cerrno>
#include <sys/ioctl.h>
#include <unistd.h>

namespace tarn {

namespace {

constexpr std::size_t kBufferSize = 1U << 16;
constexpr std::array<std::string_view, 6> kStyleCodes{"", "\x1b[1m", "\x1b[2m", "\x1b[1;33m", "\x1b[32m", "\x1b[31m"};

bool wantsColours(bool terminal)
{
    // https://no-color.org: any value but the empty one switches colours off.
    const Environment& environment = Environment::current();
    return terminal && environment.variable("NO_COLOR").value_or("").empty()
        && environment.variable("TERM").value_or("dumb") != "dumb";
}

std::optional<std::size_t> widthOfTerminal(int descriptor)
{
    winsize size{};
    if (::ioctl(descriptor, TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return 80;
    return size.ws_col;
}

} // namespace

Output::Output(int descriptor)
    : descriptor_(descriptor), terminal_(::isatty(descriptor) == 1), colours_(wantsColours(terminal_))
{
    if (terminal_)
        width_ = widthOfTerminal(descriptor);
}

Output::~Output()
{
    try {
        flush();
    } catch (const std::exception&) {
        // Whoever cares has called flush.
    }
}

void Output::write(std::string_view text)
{
    if (buffer_.size() + text.size() > kBufferSize)
        flush();
    if (text.size() > kBufferSize)
        writeAll(text);
    else
        buffer_ += text;
}

void Output::writeLine(std::string_view text)
{
    write(text);
    write("\n");
}

void Output::flush()
{
    // Emptied first: what could not be written once is not tried again by the destructor.
    std::string pending;
    pending.swap(buffer_);
    writeAll(pending);
}

std::string Output::shown(std::string_view text) const
{
    return terminal_ ? displayText(text) : std::string(text);
}

void Output::writeAll(std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = ::write(descriptor_, text.data(), text.size());
        if (written >= 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
            continue;
        }
        if (errno == EINTR)
            continue;
        if (errno == EPIPE)
            throw OutputClosed();
        throw failureForSystemError("cannot write to standard output", errno);
    }
}

std::string Output::styled(std::string_view text, TextStyle style) const
{
    if (!colours_ || style == TextStyle::Plain || text.empty())
        return std::string(text);
    std::string result(kStyleCodes[static_cast<std::size_t>(style)]);
    result += text;
    result += "\x1b[0m";
    return result;
}

} // namespace tarn
