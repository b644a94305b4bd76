#include "tests/tarn/TarnProcess.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarn::test {

namespace {

constexpr uid_t kNobody = 65534;

void closeDescriptor(int& descriptor)
{
    if (descriptor >= 0)
        ::close(descriptor);
    descriptor = -1;
}

/// Appends what is there; false at the end.
bool readSome(int descriptor, std::string& text, std::size_t limit)
{
    std::array<char, 65536> buffer{};
    const ssize_t count = ::read(descriptor, buffer.data(), std::min(buffer.size(), limit));
    if (count > 0)
        text.append(buffer.data(), static_cast<std::size_t>(count));
    return count > 0 || (count < 0 && errno == EINTR);
}

/// Both ends of a terminal, in the order of a pipe: the program's, ours.
std::array<int, 2> openTerminal()
{
    const int ours = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (ours < 0 || ::grantpt(ours) != 0 || ::unlockpt(ours) != 0)
        throw std::runtime_error("no terminal");
    std::array<char, 128> name{};
    if (::ptsname_r(ours, name.data(), name.size()) != 0)
        throw std::runtime_error("no terminal");
    return {::open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC), ours};
}

} // namespace

TarnProcess::TarnProcess(std::vector<std::string> arguments) : arguments_(std::move(arguments))
{
    variables_["TZ"] = "UTC";
    variables_["LC_ALL"] = "C.UTF-8";
    arguments_.insert(arguments_.begin(), TARN_PROGRAM);
}

TarnProcess::~TarnProcess()
{
    closeDescriptor(inputPipe_);
    closeDescriptor(outputPipe_);
    closeDescriptor(errorPipe_);
    if (pid_ > 0) {
        ::kill(pid_, SIGKILL);
        ::waitpid(pid_, nullptr, 0);
    }
}

void TarnProcess::runInChild(int input, int output, int errors) const
{
    ::dup2(input, STDIN_FILENO);
    ::dup2(outputFile_.empty() ? output : ::open(outputFile_.c_str(), O_WRONLY | O_CREAT, 0600), STDOUT_FILENO);
    ::dup2(errors, STDERR_FILENO);
    if (closed_) {
        for (int descriptor = 0; descriptor <= STDERR_FILENO; ++descriptor)
            ::close(descriptor);
    }
    ::signal(SIGPIPE, SIG_DFL);
    std::vector<std::string> assignments;
    for (const auto& [name, value] : variables_)
        assignments.push_back(name + "=" + value);
    std::vector<char*> environment;
    for (std::string& assignment : assignments)
        environment.push_back(assignment.data());
    environment.push_back(nullptr);
    std::vector<std::string> arguments = arguments_;
    std::vector<char*> values;
    for (std::string& argument : arguments)
        values.push_back(argument.data());
    values.push_back(nullptr);
    ::alarm(seconds_);
    const rlimit limit{addressSpace_, addressSpace_};
    if (addressSpace_ > 0 && ::setrlimit(RLIMIT_AS, &limit) != 0)
        ::_exit(126);
    // Without this the limit would end the program by a signal.
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit fileLimit{largestFile_, largestFile_};
    if (largestFile_ > 0 && ::setrlimit(RLIMIT_FSIZE, &fileLimit) != 0)
        ::_exit(126);
    if (!startFolder_.empty() && ::chdir(startFolder_.c_str()) != 0)
        ::_exit(126);
    if (ordinaryUser_ && ::geteuid() == 0 && (::setgid(kNobody) != 0 || ::setuid(kNobody) != 0))
        ::_exit(126);
    ::execve(values[0], values.data(), environment.data());
    ::_exit(127);
}

void TarnProcess::startOnTerminal()
{
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (terminal < 0 || ::grantpt(terminal) != 0 || ::unlockpt(terminal) != 0)
        throw std::runtime_error("no terminal");
    const std::string name = ::ptsname(terminal);
    pid_ = ::fork();
    if (pid_ == 0) {
        ::setsid(); // the first terminal that it opens is its own then
        const int other = ::open(name.c_str(), O_RDWR);
        runInChild(other, other, other);
    }
    if (pid_ < 0)
        throw std::runtime_error("no process");
    outputPipe_ = terminal;
    inputPipe_ = ::fcntl(terminal, F_DUPFD_CLOEXEC, 0);
}

void TarnProcess::start()
{
    if (onTerminal_) {
        startOnTerminal();
        return;
    }
    std::array<std::array<int, 2>, 3> pipes{};
    for (auto& pipe : pipes) {
        if (::pipe2(pipe.data(), O_CLOEXEC) != 0)
            throw std::runtime_error("no pipe");
    }
    if (terminal_) {
        ::close(pipes[0][0]);
        ::close(pipes[0][1]);
        pipes[0] = openTerminal();
    }
    pid_ = ::fork();
    if (pid_ == 0)
        runInChild(pipes[0][0], pipes[1][1], pipes[2][1]);
    if (pid_ < 0)
        throw std::runtime_error("no process");
    ::close(pipes[0][0]);
    ::close(pipes[1][1]);
    ::close(pipes[2][1]);
    inputPipe_ = pipes[0][1];
    outputPipe_ = pipes[1][0];
    errorPipe_ = pipes[2][0];
    ::fcntl(inputPipe_, F_SETFL, O_NONBLOCK);
    ::signal(SIGPIPE, SIG_IGN); // a program that does not read its input
}

/// Up to where the input may be fed.
std::size_t TarnProcess::feedableBytes(std::size_t fed, const std::string& output)
{
    if (!answersQuestions_)
        return input_.size();
    if (output.size() == questionAt_ || !output.ends_with(": "))
        return fed;
    questionAt_ = output.size();
    return std::min(input_.find('\n', fed), input_.size() - 1) + 1;
}

TarnResult TarnProcess::finish()
{
    if (pid_ < 0)
        start();
    TarnResult result;
    std::size_t fed = 0;
    std::size_t feedable = 0;
    while (outputPipe_ >= 0 || errorPipe_ >= 0) {
        const bool isFed = fed == input_.size();
        if (fed == feedable && !isFed)
            feedable = feedableBytes(fed, result.output);
        if (isFed && !terminal_) // who closes a terminal takes back what was typed
            closeDescriptor(inputPipe_);
        std::array<pollfd, 3> waiting{pollfd{fed == feedable ? -1 : inputPipe_, POLLOUT, 0},
            pollfd{outputPipe_, POLLIN, 0}, pollfd{errorPipe_, POLLIN, 0}};
        if (::poll(waiting.data(), waiting.size(), -1) < 0)
            continue;
        if (waiting[0].revents != 0) {
            const ssize_t count = ::write(inputPipe_, input_.data() + fed, feedable - fed);
            if (count > 0)
                fed += static_cast<std::size_t>(count);
            else if (errno != EAGAIN && errno != EINTR)
                closeDescriptor(inputPipe_);
        }
        if (waiting[1].revents != 0 && !readSome(outputPipe_, result.output, std::string::npos))
            closeDescriptor(outputPipe_);
        if (waiting[2].revents != 0 && !readSome(errorPipe_, result.errors, std::string::npos))
            closeDescriptor(errorPipe_);
    }
    closeDescriptor(inputPipe_);
    waitForEnd(result);
    return result;
}

TarnResult TarnProcess::finishAfterReading(std::size_t bytes)
{
    if (pid_ < 0)
        start();
    closeDescriptor(inputPipe_);
    TarnResult result;
    while (result.output.size() < bytes && readSome(outputPipe_, result.output, bytes - result.output.size())) { }
    closeDescriptor(outputPipe_);
    while (readSome(errorPipe_, result.errors, std::string::npos)) { }
    closeDescriptor(errorPipe_);
    waitForEnd(result);
    return result;
}

void TarnProcess::sendSignal(int signal) const
{
    // A number that is not positive means many processes.
    if (const pid_t process = pid_; process > 0)
        ::kill(process, signal);
}

bool TarnProcess::isRunning() const
{
    siginfo_t information{};
    return pid_ > 0 && ::waitid(P_PID, static_cast<id_t>(pid_), &information, WEXITED | WNOHANG | WNOWAIT) == 0
        && information.si_pid == 0;
}

void TarnProcess::waitForEnd(TarnResult& result)
{
    int status = 0;
    while (::waitpid(pid_, &status, 0) < 0 && errno == EINTR) { }
    pid_ = -1;
    if (WIFEXITED(status))
        result.exitCode = WEXITSTATUS(status);
    else
        result.signal = WTERMSIG(status);
}

} // namespace tarn::test
