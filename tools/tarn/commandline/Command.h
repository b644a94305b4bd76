#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}

namespace tarn {

/// An option or argument that was just declared, for saying more of it. A handle: the command owns what it stands for.
class CommandOption {
public:
    explicit CommandOption(CLI::Option& option) : option_(&option) { }

    CommandOption required() const;
    /// What `--help` calls its value.
    CommandOption called(const std::string& valueName) const;
    /// Refuses every value but these.
    CommandOption oneOf(std::vector<std::string> values) const;
    CommandOption excludes(std::initializer_list<CommandOption> others) const;

private:
    CLI::Option* option_;
};

/// A command, for declaring what it takes. A handle: the command line owns the command. Each value goes into a variable
/// of the caller's, which lives as long as the command line; texts are taken as written. A variable keeps its value
/// where the option is not given.
class Command {
public:
    explicit Command(CLI::App& command) : command_(&command) { }

    CommandOption addFlag(const std::string& name, bool& value, const std::string& description) const;
    CommandOption addOption(
        const std::string& name, std::optional<std::string>& value, const std::string& description) const;
    /// An option whose value is a number from 1.
    CommandOption addCount(const std::string& name, std::size_t& value, const std::string& description) const;
    /// An option with or without a value: empty where it is given without one.
    CommandOption addFlagWithValue(
        const std::string& name, std::optional<std::string>& value, const std::string& description) const;
    /// An option that may be given several times, each time with one value.
    CommandOption addOptionList(
        const std::string& name, std::vector<std::string>& values, const std::string& description) const;
    CommandOption addArgument(
        const std::string& name, std::optional<std::string>& value, const std::string& description) const;
    /// An argument that may be given several times: files, notes, words.
    CommandOption addArguments(
        const std::string& name, std::vector<std::string>& values, const std::string& description) const;

    /// For adding commands behind this one.
    CLI::App& application() const { return *command_; }

private:
    CLI::App* command_;
};

/// CLI11 takes "[a,b]" for a list, "{}" for an empty one and "++" for the end of a command. A file may have such a name
/// and a query such a word, so those arguments travel behind a shield.
std::string shieldedArgument(const std::string& argument);
std::string unshieldedArgument(const std::string& argument);

} // namespace tarn
