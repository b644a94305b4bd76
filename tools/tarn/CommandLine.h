#pragma once

#include "tools/tarn/ExitCode.h"
#include "tools/tarn/Output.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What a command is run with, besides its own options.
struct Invocation {
    std::optional<std::string> storeOption; ///< the value of --store
    bool json = false;
    Output& output;
};

/// A command as people see it in `--help`.
struct CommandDescription {
    std::string name;
    std::string summary;     ///< one line
    std::string explanation; ///< what the summary has no room for; may be empty
    std::vector<std::string> examples;
};

/// The program's arguments: global options, commands, what each takes.
///
///     CommandLine commandLine(output);
///     addImportCommand(commandLine);
///     return commandLine.run(arguments);
class CommandLine {
public:
    using Action = std::function<ExitCode(const Invocation&)>;

    explicit CommandLine(Output& output);

    /// Adds a command; its options and arguments go onto what is returned, which this owns. The action runs when the
    /// command was named and all its arguments are right.
    CLI::App& addCommand(const CommandDescription& description, Action action);
    /// Adds a command that is only the first word of others.
    CLI::App& addGroup(const CommandDescription& description);
    /// Adds a command to a group.
    CLI::App& addCommand(CLI::App& group, const CommandDescription& description, Action action);
    /// An argument that may be given several times: files, notes, words. Taken as written.
    static CLI::Option* addArguments(
        CLI::App& command, const std::string& name, std::vector<std::string>& values, const std::string& description);
    /// An option that may be given several times, each time with one value.
    static CLI::Option* addOptionList(
        CLI::App& command, const std::string& name, std::vector<std::string>& values, const std::string& description);
    /// The same as `addArguments` for one that is given at most once.
    static CLI::Option* addArgument(
        CLI::App& command, const std::string& name, std::optional<std::string>& value, const std::string& description);

    /// Runs the command that the arguments (without the program's name) name. What goes wrong is told in one line on
    /// standard error.
    ExitCode run(const std::vector<std::string>& arguments);

private:
    ExitCode parseAndRun(const std::vector<std::string>& arguments);

    Invocation invocation_;
    std::string store_;
    CLI::App application_;
    Action action_;
};

/// One line on standard error: "tarn: " and the message, control characters made visible.
void tellOnStandardError(std::string_view message);

} // namespace tarn
