#include "tools/tarn/editor/EditorProcess.h"

#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/Interruption.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarn {

namespace {

/// How long an editor that was told to end may take to put its things in order.
constexpr std::chrono::milliseconds kTimeToEnd{2'000};

/// Control-C and Control-\ belong to the editor while it runs.
class KeyboardLent {
public:
    KeyboardLent() : quit_(std::signal(SIGQUIT, SIG_IGN)) { Interruption::setKeyboardIsOfAnother(true); }
    ~KeyboardLent()
    {
        Interruption::setKeyboardIsOfAnother(false);
        std::signal(SIGQUIT, quit_);
    }
    KeyboardLent(const KeyboardLent&) = delete;
    KeyboardLent& operator=(const KeyboardLent&) = delete;
    /// In the child: signals that are handled become those of the system by themselves, ignored ones do not.
    void restoreInChild() const { std::signal(SIGQUIT, quit_); }

private:
    void (*quit_)(int);
};

/// A shell that runs the editor.
class EditorProcess {
public:
    EditorProcess(const std::string& script, const std::filesystem::path& file, const KeyboardLent& keyboard)
        : process_(::fork())
    {
        if (process_ < 0)
            throw failureForSystemError("cannot start the editor", errno);
        if (process_ == 0) {
            // Between fork and exec: nothing but what a child may do.
            keyboard.restoreInChild();
            ::execl("/bin/sh", "sh", "-c", script.c_str(), "sh", file.c_str(), static_cast<char*>(nullptr));
            ::_exit(127);
        }
        end_ = static_cast<int>(::syscall(SYS_pidfd_open, process_, 0));
    }
    ~EditorProcess()
    {
        if (end_ >= 0)
            ::close(end_);
    }
    EditorProcess(const EditorProcess&) = delete;
    EditorProcess& operator=(const EditorProcess&) = delete;

    /// Waits for its end, for a signal that `hearsSignals`, or for this long (negative: for ever). Whether it has
    /// ended.
    bool wait(bool hearsSignals, std::chrono::milliseconds limit)
    {
        const auto start = std::chrono::steady_clock::now();
        while (!hasEnded()) {
            if (hearsSignals && Interruption::requested())
                return false;
            if (limit.count() >= 0 && std::chrono::steady_clock::now() - start >= limit)
                return false;
            std::array<pollfd, 2> events{
                pollfd{end_, POLLIN, 0}, pollfd{hearsSignals ? Interruption::descriptor() : -1, POLLIN, 0}};
            // A system without such descriptors is asked ten times a second.
            ::poll(events.data(), events.size(), end_ < 0 || limit.count() >= 0 ? 100 : -1);
        }
        return true;
    }
    void passOn(int signal) const { ::kill(process_, signal); }
    int status() const noexcept { return status_; }

private:
    bool hasEnded()
    {
        const pid_t ended = ::waitpid(process_, &status_, WNOHANG);
        if (ended < 0 && errno != EINTR)
            throw failureForSystemError("cannot wait for the editor", errno);
        return ended == process_;
    }

    pid_t process_;
    int end_ = -1; ///< readable once it has ended
    int status_ = 0;
};

/// What the shell runs, with the file as its first argument. A command that is nothing but words takes the place of the
/// shell, so that a signal reaches the editor.
std::string scriptFor(const std::string& editor)
{
    const bool isPlain = editor.find_first_of(";&|<>()$`\\=*?[]{}!#~\n") == std::string::npos;
    return (isPlain ? "exec " : "") + editor + " \"$1\"";
}

std::string endingOf(int status)
{
    return WIFSIGNALED(status) ? "was ended by signal " + std::to_string(WTERMSIG(status))
                               : "failed (exit code " + std::to_string(WEXITSTATUS(status)) + ")";
}

} // namespace

void runEditor(const std::string& editor, const std::filesystem::path& file)
{
    const KeyboardLent keyboard;
    EditorProcess process(scriptFor(editor), file, keyboard);
    if (!process.wait(true, std::chrono::milliseconds(-1))) {
        process.passOn(Interruption::signal());
        const bool hasEnded = process.wait(false, kTimeToEnd);
        throw CommandFailure(ExitCode::Interrupted,
            std::string("interrupted; nothing was saved") + (hasEnded ? "" : ", and the editor is still open"));
    }
    if (const int status = process.status(); !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        throw CommandFailure(
            ExitCode::Failed, "the editor \"" + editor + "\" " + endingOf(status) + "; nothing was saved");
}

} // namespace tarn
