#pragma once

#include <atomic>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace tarn::test {

/// How a run of the program ended.
struct TarnResult {
    int exitCode = -1; ///< -1 when a signal ended it
    int signal = 0;
    std::string output;
    std::string errors;
};

/// A run of the built program, fed and read by pipes.
///
/// Its environment holds what is given here, a zone of UTC, and nothing of the tester's own.
class TarnProcess {
public:
    explicit TarnProcess(std::vector<std::string> arguments);
    /// Kills and reaps a program that still runs.
    ~TarnProcess();
    TarnProcess(const TarnProcess&) = delete;
    TarnProcess& operator=(const TarnProcess&) = delete;

    void setVariable(const std::string& name, const std::string& value) { variables_[name] = value; }
    void setInput(std::string input) { input_ = std::move(input); }
    /// Standard input is a terminal, at which the input is typed.
    void useTerminalInput() { terminal_ = true; }
    /// Starts it without standard input, output and error.
    void closeStandardStreams() { closed_ = true; }
    /// So many bytes of memory may be mapped, and it is ended by a signal when it runs for so many seconds.
    void setLimits(std::size_t addressSpace, unsigned seconds)
    {
        addressSpace_ = addressSpace;
        seconds_ = seconds;
    }
    /// No file of it may grow beyond so many bytes: a write is refused, as on a disk that is full.
    void setLargestFile(std::size_t bytes) { largestFile_ = bytes; }
    /// Starts it in this folder.
    void setFolder(const std::filesystem::path& folder) { startFolder_ = folder; }
    /// Starts it as a user that may not write everything, should the tester be the superuser.
    void runAsOrdinaryUser() { ordinaryUser_ = true; }
    /// Starts it on a terminal of its own: what is fed is typed, and what it prints, errors as well, is its output.
    void useTerminal() { onTerminal_ = true; }
    /// The same, and each line of the input is typed when it was asked for: after ": " at the end of the output.
    void useTerminalAnsweringQuestions() { onTerminal_ = answersQuestions_ = true; }
    /// Standard output goes to this file instead.
    void setOutputFile(const std::filesystem::path& file) { outputFile_ = file; }

    void start();
    /// Feeds the input, reads to the end, waits. Starts the program when that was not done.
    TarnResult finish();
    /// Reads this much of the output, then closes the pipe; waits.
    TarnResult finishAfterReading(std::size_t bytes);
    pid_t pid() const noexcept { return pid_; }
    /// Sends a signal; nothing when it is not running. Any thread.
    void sendSignal(int signal) const;
    bool isRunning() const;

private:
    [[noreturn]] void runInChild(int input, int output, int errors) const;
    void startOnTerminal();
    std::size_t feedableBytes(std::size_t fed, const std::string& output);
    void waitForEnd(TarnResult& result);

    std::vector<std::string> arguments_;
    std::map<std::string, std::string> variables_;
    std::string input_;
    std::filesystem::path outputFile_;
    std::filesystem::path startFolder_; ///< empty: the tester's
    std::size_t addressSpace_ = 0;      ///< 0: no limit
    std::size_t largestFile_ = 0;       ///< 0: no limit
    unsigned seconds_ = 0;              ///< 0: no limit
    bool closed_ = false;
    bool terminal_ = false;
    bool onTerminal_ = false;
    bool answersQuestions_ = false;
    bool ordinaryUser_ = false;
    std::atomic<pid_t> pid_ = -1;
    std::size_t questionAt_ = 0; ///< where the output ended that was answered last
    int inputPipe_ = -1;
    int outputPipe_ = -1;
    int errorPipe_ = -1;
};

} // namespace tarn::test
