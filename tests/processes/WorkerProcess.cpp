#include "tests/processes/Worker.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace tarn {

WorkerProcess::WorkerProcess(const std::vector<std::string>& arguments, const std::vector<std::string>& injections)
{
    std::array<int, 2> pipe{};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    pipe_ = pipe[0];
    std::vector<std::string> all{"test_processes", "worker"};
    const char* program = "/proc/self/exe";
    if (!injections.empty()) {
        program = "strace";
        all = {"strace", "-f", "-qq", "-o", "/dev/null"};
        for (const std::string& injection : injections)
            all.insert(all.end(), {"-e", injection});
        all.insert(all.end(), {std::filesystem::read_symlink("/proc/self/exe"), "worker"});
    }
    all.insert(all.end(), arguments.begin(), arguments.end());
    std::vector<char*> values;
    for (std::string& argument : all)
        values.push_back(argument.data());
    values.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipe[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, pipe[1], STDERR_FILENO);
    const int result = ::posix_spawnp(&pid_, program, &actions, nullptr, values.data(), ::environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(pipe[1]);
    if (result != 0)
        throw std::runtime_error("no process");
}

bool WorkerProcess::canBeTraced()
{
    static const bool isPossible = WorkerProcess({"none"}, {"trace=none"}).finish().output == "no such part\n";
    return isPossible;
}

WorkerProcess::WorkerProcess(WorkerProcess&& other) noexcept
    : pid_(std::exchange(other.pid_, -1)), pipe_(std::exchange(other.pipe_, -1))
{ }

WorkerProcess::~WorkerProcess()
{
    if (pipe_ >= 0)
        ::close(pipe_);
    if (pid_ > 0) {
        ::kill(pid_, SIGKILL);
        ::waitpid(pid_, nullptr, 0);
    }
}

WorkerResult WorkerProcess::finish()
{
    WorkerResult result;
    std::array<char, 4096> buffer{};
    for (ssize_t count = 1; count > 0 || (count < 0 && errno == EINTR);) {
        count = ::read(pipe_, buffer.data(), buffer.size());
        if (count > 0)
            result.output.append(buffer.data(), static_cast<std::size_t>(count));
    }
    int status = 0;
    while (::waitpid(pid_, &status, 0) < 0 && errno == EINTR) { }
    pid_ = -1;
    if (WIFEXITED(status))
        result.exitCode = WEXITSTATUS(status);
    else
        result.signal = WTERMSIG(status);
    return result;
}

} // namespace tarn
