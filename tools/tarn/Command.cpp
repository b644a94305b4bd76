#include "tools/tarn/Command.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <CLI/Validators.hpp>

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarn {

namespace {

constexpr char kShield = '\x01';

} // namespace

std::string shieldedArgument(const std::string& argument)
{
    const bool special = argument.starts_with('[') || argument.starts_with('{') || argument == "++" || argument.empty()
        || argument.front() == kShield;
    return special ? kShield + argument : argument;
}

std::string unshieldedArgument(const std::string& argument)
{
    return argument.starts_with(kShield) ? argument.substr(1) : argument;
}

CommandOption CommandOption::required() const
{
    option_->required();
    return *this;
}

CommandOption CommandOption::called(const std::string& valueName) const
{
    option_->option_text(valueName);
    return *this;
}

CommandOption CommandOption::oneOf(std::vector<std::string> values) const
{
    option_->check(CLI::IsMember(std::move(values)));
    return *this;
}

CommandOption CommandOption::excludes(std::initializer_list<CommandOption> others) const
{
    for (const CommandOption& other : others)
        option_->excludes(other.option_);
    return *this;
}

CommandOption Command::addFlag(const std::string& name, bool& value, const std::string& description) const
{
    return CommandOption(*command_->add_flag(name, value, description));
}

CommandOption Command::addOption(
    const std::string& name, std::optional<std::string>& value, const std::string& description) const
{
    const auto take = [&value](const CLI::results_t& results) {
        value = unshieldedArgument(results.at(0));
        return true;
    };
    return CommandOption(*command_->add_option(name, take, description)->type_size(1)->expected(1)->option_text(" "));
}

CommandOption Command::addCount(const std::string& name, std::size_t& value, const std::string& description) const
{
    return CommandOption(*command_->add_option(name, value, description)->check(CLI::PositiveNumber)->option_text("N"));
}

CommandOption Command::addOptionList(
    const std::string& name, std::vector<std::string>& values, const std::string& description) const
{
    const auto take = [&values](const CLI::results_t& results) {
        values.clear();
        std::ranges::transform(results, std::back_inserter(values), unshieldedArgument);
        return true;
    };
    return CommandOption(*command_->add_option(name, take, description)
                              ->type_size(1)
                              ->expected(1)
                              ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll));
}

CommandOption Command::addArgument(
    const std::string& name, std::optional<std::string>& value, const std::string& description) const
{
    return addOption(name, value, description);
}

CommandOption Command::addArguments(
    const std::string& name, std::vector<std::string>& values, const std::string& description) const
{
    addOptionList(name, values, description);
    CLI::Option* option = command_->get_option(name);
    option->expected(1, CLI::detail::expected_max_vector_size)->allow_extra_args()->option_text(" ");
    return CommandOption(*option);
}

} // namespace tarn
