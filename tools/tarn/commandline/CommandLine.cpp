#include "tools/tarn/commandline/CommandLine.h"

#include "tools/tarn/arguments/PasswordSource.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/MemoryShortage.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace tarn {

namespace {

std::string footerOf(const CommandDescription& description)
{
    std::string footer;
    if (!description.explanation.empty())
        footer += description.explanation + "\n\n";
    footer += description.examples.size() == 1 ? "Example:" : "Examples:";
    for (const std::string& example : description.examples)
        footer += "\n  " + example;
    return footer + "\n\nOptions of every command: --store DIR, --json, --password-file FILE (see 'tarn --help').";
}

/// The command that needs another one behind it and got none; null when that is not what went wrong.
const CLI::App* groupWithoutCommand(const CLI::App& application)
{
    const CLI::App* group = &application;
    while (!group->get_subcommands().empty())
        group = group->get_subcommands().front();
    return group->get_require_subcommand_min() > 0 ? group : nullptr;
}

/// CLI11 only says that a subcommand is required, whatever was written in the place of one.
std::string commandProblemOf(const CLI::App& group, const std::vector<std::string>& remaining)
{
    const std::string name = group.get_parent() ? "tarn " + group.get_name() : "tarn";
    const std::string advice = "; see '" + name + " --help'";
    if (remaining.empty())
        return (group.get_parent() ? "a command is missing behind \"" + group.get_name() + "\""
                                   : "a command is missing")
            + advice;
    return "there is no command or option \"" + unshieldedArgument(remaining.front()) + "\"" + advice;
}

/// The command that was named, as people write it: "tarn", "tarn list", "tarn tag add".
std::string nameOfCommand(const CLI::App& application)
{
    std::string name = "tarn";
    const CLI::App* command = &application;
    while (!command->get_subcommands().empty()) {
        command = command->get_subcommands().front();
        name += " " + command->get_name();
    }
    return name;
}

/// What CLI11 says of an option, in our words; it begins with the option's name.
std::string problemOfOption(const CLI::ParseError& error)
{
    std::string text = singleLine(error.what());
    const std::string name = text.substr(0, text.find_first_of(": "));
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error)) {
        if (text == CLI::ArgumentMismatch::FlagOverride(name).what())
            return "--" + name + " takes no value";
        return name + (text.ends_with("missing") ? " needs a value" : " is given more than once");
    }
    if (dynamic_cast<const CLI::ExcludesError*>(&error))
        return name + " and " + text.substr(text.rfind(' ') + 1) + " do not go together";
    return text;
}

void writeOnStandardError(std::string_view beginning, std::string_view message)
{
    try {
        const std::string line = std::string(beginning) + displayText(message) + "\n";
        std::fwrite(line.data(), 1, line.size(), stderr);
    } catch (const std::bad_alloc&) { // a failure without a word would be worse than one in plain bytes
        tellOfMemoryShortage();
    }
}

/// What is wrong with the arguments, and what to do.
std::string problemOf(
    const CLI::ParseError& error, const CLI::App& application, const std::vector<std::string>& arguments)
{
    const bool isMissing = dynamic_cast<const CLI::RequiredError*>(&error);
    const bool isExtra = dynamic_cast<const CLI::ExtrasError*>(&error);
    std::vector<std::string> remaining = application.remaining(true);
    if (const CLI::App* group = groupWithoutCommand(application); group && isMissing)
        return commandProblemOf(*group, remaining);
    std::erase(remaining, "--");
    const std::string extra = remaining.empty() ? std::string() : unshieldedArgument(remaining.front());
    const auto dashes = std::ranges::find(arguments, "--");
    const bool isBehindDashes = std::find(dashes, arguments.end(), extra) != arguments.end();
    const std::string advice = "; see '" + nameOfCommand(application) + " --help'";
    // A query such as "-#work" is taken for an option, and then there is no query.
    if (extra.starts_with('-') && !isBehindDashes && (isMissing || isExtra))
        return "there is no option \"" + extra + "\"; what begins with \"-\" and is no option goes after \"--\""
            + advice;
    return (isExtra ? "\"" + extra + "\" is one argument too many" : problemOfOption(error)) + advice;
}

} // namespace

void tellOnStandardError(std::string_view message)
{
    writeOnStandardError("tarn: ", message);
}

CommandLine::CommandLine(Output& output)
    : invocation_{.storeOption = std::nullopt,
        .passwordOption = std::nullopt,
        .json = false,
        .output = output,
        .passwords = nullptr},
      application_(std::make_unique<CLI::App>("Notes in Markdown: import, write, list and search them.", "tarn"))
{
    application_->set_version_flag("--version", "tarn " TARN_VERSION, "Print the version and end");
    application_->set_help_flag("--help,-h", "Print this help and end");
    application_
        ->add_option(
            "--store", store_, "The folder of the store (default: $TARN_STORE, else tarn in the XDG data folder)")
        ->option_text("DIR");
    application_
        ->add_option("--password-file", passwordFile_,
            "A file whose first line is the password of protected notes (default: $TARN_PASSWORD_FILE, else the "
            "terminal is asked)")
        ->option_text("FILE");
    application_->add_flag("--json", invocation_.json, "Print one JSON document")->disable_flag_override();
    application_->require_subcommand(1);
    application_->fallthrough();
    application_->get_formatter()->column_width(34);
    application_->footer(
        "Examples:\n"
        "  tarn import ~/Documents/notes\n"
        "  tarn new '# Groceries'\n"
        "  tarn search '#home garden'\n"
        "  tarn COMMAND --help\n\n"
        "NOTE is an identifier, the first 8 or more characters of one, a title, or the URL of a note. Where several\n"
        "notes have the title, commands that read take the latest modified; those that write take none, or it with\n"
        "--latest.\n"
        "Exit codes: 0 done, 1 nothing found or failed, 2 usage, 3 locked, 4 needs migration, 5 corrupt,\n"
        "6 input or output.");
}

CommandLine::~CommandLine() = default;

Command CommandLine::addCommand(const CommandDescription& description, Action action)
{
    return addCommand(Command(*application_), description, std::move(action));
}

Command CommandLine::addCommand(Command group, const CommandDescription& description, Action action)
{
    CLI::App& command = *group.application().add_subcommand(description.name, description.summary);
    command.footer(footerOf(description));
    command.callback([this, action = std::move(action)] { action_ = action; });
    return Command(command);
}

Command CommandLine::addGroup(const CommandDescription& description)
{
    CLI::App& group = *application_->add_subcommand(description.name, description.summary);
    group.footer(footerOf(description));
    group.require_subcommand(1);
    return Command(group);
}

ExitCode CommandLine::run(const std::vector<std::string>& arguments)
{
    try {
        const ExitCode code = parseAndRun(arguments);
        invocation_.output.flush();
        return code;
    } catch (const OutputClosed&) {
        return ExitCode::InputOutput;
    } catch (const std::exception&) {
        const CommandFailure failure = failureOfCurrentException();
        tellOnStandardError(failure.what());
        for (const std::string& choice : failure.choices())
            writeOnStandardError("  ", choice);
        return failure.code();
    }
}

ExitCode CommandLine::parseAndRun(const std::vector<std::string>& arguments)
{
    std::vector<std::string> reversed;
    std::ranges::transform(arguments, std::back_inserter(reversed), shieldedArgument);
    std::ranges::reverse(reversed);
    try {
        application_->parse(std::move(reversed));
    } catch (const CLI::CallForHelp&) {
        invocation_.output.write(application_->help());
        return ExitCode::Done;
    } catch (const CLI::CallForVersion& version) {
        invocation_.output.writeLine(version.what());
        return ExitCode::Done;
    } catch (const CLI::ParseError& error) {
        throw CommandFailure(ExitCode::Usage, problemOf(error, *application_, arguments));
    }
    if (application_->count("--store") > 0)
        invocation_.storeOption = unshieldedArgument(store_);
    if (application_->count("--password-file") > 0)
        invocation_.passwordOption = unshieldedArgument(passwordFile_);
    invocation_.passwords = std::make_shared<PasswordSource>(invocation_);
    return action_(invocation_);
}

} // namespace tarn
