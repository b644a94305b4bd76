#include "tools/tarn/EditorRun.h"

#include "platform/foundation/Environment.h"
#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/TextFile.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace tarn {

namespace {

/// Control-C belongs to the editor while it runs.
class KeyboardSignalsIgnored {
public:
    KeyboardSignalsIgnored() : interrupt_(std::signal(SIGINT, SIG_IGN)), quit_(std::signal(SIGQUIT, SIG_IGN)) { }
    ~KeyboardSignalsIgnored()
    {
        std::signal(SIGINT, interrupt_);
        std::signal(SIGQUIT, quit_);
    }
    KeyboardSignalsIgnored(const KeyboardSignalsIgnored&) = delete;
    KeyboardSignalsIgnored& operator=(const KeyboardSignalsIgnored&) = delete;

private:
    using Handler = void (*)(int);
    Handler interrupt_;
    Handler quit_;
};

/// Between fork and exec: nothing but what a child may do.
[[noreturn]] void becomeShell(const char* script, const char* file)
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGQUIT, SIG_DFL);
    ::execl("/bin/sh", "sh", "-c", script, "sh", file, static_cast<char*>(nullptr));
    ::_exit(127);
}

int statusOfShell(const std::string& script, const std::filesystem::path& file)
{
    const KeyboardSignalsIgnored ignored;
    const pid_t child = ::fork();
    if (child < 0)
        throw failureForSystemError("cannot start the editor", errno);
    if (child == 0)
        becomeShell(script.c_str(), file.c_str());
    int status = 0;
    while (::waitpid(child, &status, 0) < 0) {
        if (errno != EINTR)
            throw failureForSystemError("cannot wait for the editor", errno);
    }
    return status;
}

} // namespace

EditorRun::EditorRun(const std::string& text)
{
    std::string pattern = (Environment::current().temporaryDirectory() / "tarn-edit-XXXXXX").string();
    if (!::mkdtemp(pattern.data()))
        throw failureForSystemError("cannot make the folder " + pattern, errno);
    folder_ = pattern;
    file_ = folder_ / "note.md";
    std::ofstream stream(file_, std::ios::binary);
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
    stream.close();
    if (!stream)
        throw CommandFailure(ExitCode::InputOutput, "cannot write " + file_.string());
}

EditorRun::~EditorRun()
{
    std::error_code error;
    if (!isKept_)
        std::filesystem::remove_all(folder_, error);
}

void EditorRun::start(const std::string& editor)
{
    const int status = statusOfShell(editor + " \"$1\"", file_);
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0)
        return;
    throw CommandFailure(ExitCode::Failed, "the editor \"" + editor + "\" failed; nothing was saved");
}

std::string EditorRun::result()
{
    const int descriptor = ::open(file_.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        throw failureForSystemError("cannot read the edited text in " + file_.string(), errno);
    keepFile();
    std::string text;
    try {
        text = readDescriptor(descriptor, file_.string());
    } catch (...) {
        ::close(descriptor);
        throw;
    }
    ::close(descriptor);
    if (const std::size_t invalid = firstInvalidByte(text); invalid != std::string::npos)
        throw CommandFailure(ExitCode::InputOutput,
            "the edited text is not UTF-8 (byte " + std::to_string(invalid + 1) + "); nothing was saved, it is in "
                + file_.string());
    dropFile();
    return text;
}

} // namespace tarn
