#pragma once

#include "tools/tarn/commandline/Command.h"
#include "tools/tarn/commandline/ExitCode.h"
#include "tools/tarn/commandline/Output.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class PasswordSource;

/// What a command is run with, besides its own options.
struct Invocation {
    std::optional<std::string> storeOption;    ///< the value of --store
    std::optional<std::string> passwordOption; ///< the value of --password-file
    bool json = false;
    Output& output;
    std::shared_ptr<PasswordSource> passwords; ///< what the command was given and asked for
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
    ~CommandLine();
    CommandLine(const CommandLine&) = delete;
    CommandLine& operator=(const CommandLine&) = delete;

    /// Adds a command. The action runs when the command was named and all its arguments are right.
    Command addCommand(const CommandDescription& description, Action action);
    /// Adds a command that is only the first word of others.
    Command addGroup(const CommandDescription& description);
    /// Adds a command to a group.
    Command addCommand(Command group, const CommandDescription& description, Action action);

    /// Runs the command that the arguments (without the program's name) name. What goes wrong is told in one line on
    /// standard error.
    ExitCode run(const std::vector<std::string>& arguments);

private:
    ExitCode parseAndRun(const std::vector<std::string>& arguments);

    Invocation invocation_;
    std::string store_;
    std::string passwordFile_;
    std::unique_ptr<CLI::App> application_;
    Action action_;
};

/// One line on standard error: "tarn: " and the message, control characters made visible.
void tellOnStandardError(std::string_view message);

} // namespace tarn
