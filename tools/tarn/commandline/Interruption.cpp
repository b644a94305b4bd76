#include "tools/tarn/commandline/Interruption.h"

#include "tools/tarn/commandline/CommandFailure.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>

namespace tarn {

namespace {

constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP};

// What a handler of signals may touch.
std::atomic<int> firstSignal{0};
std::atomic<std::time_t> firstSecond{0};
std::atomic<bool> keyboardIsOfAnother{false};
std::array<int, 2> wakeUp{-1, -1};

std::array<struct sigaction, kSignals.size()> formerActions{};
int nesting = 0; ///< how many are there; the outermost takes the signals over

std::time_t secondsSinceStart() noexcept
{
    timespec time{};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec;
}

void endBy(int number) noexcept
{
    ::signal(number, SIG_DFL);
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, number);
    ::sigprocmask(SIG_UNBLOCK, &signals, nullptr);
    ::raise(number);
}

void noteSignal(int number, siginfo_t* information, void*)
{
    const int error = errno;
    const bool isFromTerminal = number == SIGINT && information && information->si_code == SI_KERNEL;
    if (isFromTerminal && keyboardIsOfAnother)
        return;
    int none = 0;
    if (firstSignal.compare_exchange_strong(none, number)) {
        firstSecond = secondsSinceStart();
        if (::write(wakeUp[1], "", 1) < 0) { } // nobody waits
    } else if (secondsSinceStart() > firstSecond + 1) {
        endBy(number);
    }
    errno = error;
}

} // namespace

Interruption::Interruption()
{
    if (nesting > 0) {
        ++nesting;
        return;
    }
    if (wakeUp[0] < 0 && ::pipe2(wakeUp.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        throw failureForSystemError("cannot watch for signals", errno);
    struct sigaction action { };
    action.sa_sigaction = noteSignal;
    action.sa_flags = SA_SIGINFO;
    sigemptyset(&action.sa_mask);
    for (std::size_t index = 0; index < kSignals.size(); ++index) {
        ::sigaction(kSignals[index], nullptr, &formerActions[index]);
        if (formerActions[index].sa_handler != SIG_IGN)
            ::sigaction(kSignals[index], &action, nullptr);
    }
    ++nesting;
}

Interruption::~Interruption()
{
    if (--nesting > 0)
        return;
    for (std::size_t index = 0; index < kSignals.size(); ++index)
        ::sigaction(kSignals[index], &formerActions[index], nullptr);
}

bool Interruption::requested() noexcept
{
    return signal() != 0;
}

void Interruption::endIfRequested(const std::string& message)
{
    if (requested())
        throw CommandFailure(ExitCode::Interrupted, message);
}

int Interruption::signal() noexcept
{
    return firstSignal;
}

int Interruption::endProgram() noexcept
{
    const int number = signal();
    endBy(number);
    return static_cast<int>(ExitCode::Interrupted) + number;
}

int Interruption::descriptor() noexcept
{
    return wakeUp[0];
}

void Interruption::setKeyboardIsOfAnother(bool isOfAnother) noexcept
{
    keyboardIsOfAnother = isOfAnother;
}

} // namespace tarn
