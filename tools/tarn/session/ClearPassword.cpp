#include "tools/tarn/session/ClearPassword.h"

#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/Interruption.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <span>
#include <termios.h>
#include <unistd.h>
#include <utility>

namespace tarn {

namespace {

/// More than the longest password, so that a longer one is refused and not cut.
constexpr std::size_t kMostBytes = 4096;

/// Bytes that are wiped when they go.
struct WipedBuffer {
    std::array<char, kMostBytes> bytes{};
    std::size_t size = 0;

    WipedBuffer() = default;
    ~WipedBuffer() { ::explicit_bzero(bytes.data(), bytes.size()); }
    WipedBuffer(const WipedBuffer&) = delete;
    WipedBuffer& operator=(const WipedBuffer&) = delete;

    bool isFull() const { return size == bytes.size(); }
    bool hasLine() const { return std::memchr(bytes.data(), '\n', size) != nullptr; }
    std::string_view line() const
    {
        std::string_view text(bytes.data(), size);
        text = text.substr(0, text.find('\n'));
        return text.ends_with('\r') ? text.substr(0, text.size() - 1) : text;
    }
};

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) { }
    ~Descriptor()
    {
        if (number_ >= 0)
            ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int number() const noexcept { return number_; }

private:
    int number_;
};

/// A terminal that shows nothing of what is typed, while it lives.
class SilentTerminal {
public:
    explicit SilentTerminal(int descriptor) : descriptor_(descriptor)
    {
        if (::tcgetattr(descriptor_, &before_) != 0)
            throw failureForSystemError("cannot ask for a password", errno);
        termios silent = before_;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        silent.c_lflag |= ECHONL;
        ::tcsetattr(descriptor_, TCSADRAIN, &silent);
    }
    ~SilentTerminal() { ::tcsetattr(descriptor_, TCSADRAIN, &before_); }
    SilentTerminal(const SilentTerminal&) = delete;
    SilentTerminal& operator=(const SilentTerminal&) = delete;

private:
    int descriptor_;
    termios before_{};
};

/// Reads to the end of the first line. Returns the number of the error, 0 for none.
int readLine(int descriptor, WipedBuffer& buffer)
{
    while (!buffer.hasLine() && !buffer.isFull()) {
        const ssize_t count = ::read(descriptor, buffer.bytes.data() + buffer.size, buffer.bytes.size() - buffer.size);
        if (count < 0 && errno == EINTR && !Interruption::requested())
            continue;
        if (count < 0)
            return errno;
        if (count == 0)
            break;
        buffer.size += static_cast<std::size_t>(count);
    }
    return 0;
}

ClearPassword passwordOfLine(const WipedBuffer& buffer, const std::string& source)
{
    if (buffer.isFull() && !buffer.hasLine())
        throw CommandFailure(ExitCode::Usage, "the first line of " + source + " is too long for a password");
    return ClearPassword(buffer.line());
}

} // namespace

ClearPassword::~ClearPassword()
{
    ::explicit_bzero(text_.data(), text_.size());
}

ClearPassword::ClearPassword(ClearPassword&& other) noexcept : text_(other.text_)
{
    ::explicit_bzero(other.text_.data(), other.text_.size());
    other.text_.clear();
}

ClearPassword& ClearPassword::operator=(ClearPassword&& other) noexcept
{
    text_.swap(other.text_);
    return *this;
}

ClearPassword passwordInFile(const std::filesystem::path& file)
{
    const Descriptor descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
    if (descriptor.number() < 0)
        throw failureForSystemError("cannot read the password in " + file.string(), errno);
    WipedBuffer buffer;
    if (const int failure = readLine(descriptor.number(), buffer))
        throw failureForSystemError("cannot read the password in " + file.string(), failure);
    ClearPassword password = passwordOfLine(buffer, file.string());
    if (password.text().empty())
        throw CommandFailure(ExitCode::Usage, "the first line of " + file.string() + " is empty; there is no password");
    return password;
}

bool isSomebodyAtTheTerminal()
{
    return ::isatty(STDIN_FILENO) == 1 && ::isatty(STDERR_FILENO) == 1;
}

std::optional<ClearPassword> passwordFromTerminal(const std::string& question)
{
    const Interruption interruption;
    const SilentTerminal terminal(STDIN_FILENO);
    std::fprintf(stderr, "%s: ", question.c_str());
    std::fflush(stderr);
    WipedBuffer buffer;
    const int failure = readLine(STDIN_FILENO, buffer);
    if (Interruption::requested())
        throw CommandFailure(ExitCode::Interrupted, "interrupted; nothing was changed");
    if (failure != 0)
        throw failureForSystemError("cannot read the password", failure);
    ClearPassword password = passwordOfLine(buffer, "the answer");
    if (password.text().empty())
        return std::nullopt;
    return password;
}

ClearPassword newPasswordFromTerminal()
{
    while (true) {
        auto first = passwordFromTerminal("New password");
        if (!first)
            throw CommandFailure(ExitCode::Locked, "no password was given; nothing was changed");
        const auto second = passwordFromTerminal("The same again");
        if (second && second->text() == first->text())
            return std::move(*first);
        std::fputs("These are not the same.\n", stderr);
    }
}

} // namespace tarn
