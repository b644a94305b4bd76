#include "tools/tarn/commandline/Command.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <CLI/Validators.hpp>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

constexpr char kShield = '\x01';

/// Decimal digits alone; a number that is too large for the machine is the largest that is not.
std::optional<std::size_t> countFromText(const std::string& text)
{
    std::size_t count = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, count);
    if (stop != end || error == std::errc::invalid_argument)
        return std::nullopt;
    if (error == std::errc::result_out_of_range)
        return std::numeric_limits<std::size_t>::max();
    return count > 0 ? std::optional(count) : std::nullopt;
}

std::string problemOfCount(const std::string& text)
{
    return countFromText(text) ? std::string() : "\"" + unshieldedArgument(text) + "\" is no whole number from 1";
}

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
    option_->check([values = std::move(values)](const std::string& text) {
        if (std::ranges::find(values, unshieldedArgument(text)) != values.end())
            return std::string();
        return "\"" + unshieldedArgument(text) + "\" is none of " + CLI::detail::join(values, ", ");
    });
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
    return CommandOption(*command_->add_flag(name, value, description)->disable_flag_override());
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

CommandOption Command::addFlagWithValue(
    const std::string& name, std::optional<std::string>& value, const std::string& description) const
{
    const auto take = [&value](const CLI::results_t& results) {
        value = results.empty() ? std::string() : unshieldedArgument(results.at(0));
        return true;
    };
    return CommandOption(
        *command_->add_option(name, take, description)->type_size(0, 1)->expected(0, 1)->option_text(" "));
}

CommandOption Command::addCount(const std::string& name, std::size_t& value, const std::string& description) const
{
    // CLI11's own conversion takes "0x10" and "010" for other numbers than people do.
    const auto take = [&value](const CLI::results_t& results) {
        value = countFromText(results.at(0)).value_or(0);
        return true;
    };
    CLI::Option* option = command_->add_option(name, take, description)->type_size(1)->expected(1)->option_text("N");
    return CommandOption(*option->check(problemOfCount));
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
