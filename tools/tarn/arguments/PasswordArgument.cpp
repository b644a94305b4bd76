#include "tools/tarn/arguments/PasswordArgument.h"

#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/listing/NoteList.h"

#include <algorithm>

namespace tarn {

namespace {

/// Identifiers are of capitals.
std::string inCapitals(std::string text)
{
    std::ranges::transform(
        text, text.begin(), [](char byte) { return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 32) : byte; });
    return text;
}

constexpr std::size_t kMostMebibytes = 1024;

/// A line of a list of passwords to choose from.
std::string choiceOf(const OVPassword& password)
{
    const std::string hint = OVEncryptionCoreManager::hint(password);
    return password.uniqueIdentifier().value_or("") + (hint.empty() ? "" : "  " + hint);
}

CommandFailure failureOfChoice(ExitCode code, const std::string& message, const std::vector<OVPassword*>& passwords)
{
    std::vector<std::string> choices;
    for (const OVPassword* password : passwords)
        choices.push_back(choiceOf(*password));
    return {code, message, choices};
}

} // namespace

OVPassword& passwordForArgument(const std::string& argument, StoreSession& session)
{
    if (argument.empty())
        throw CommandFailure(ExitCode::Usage, "ID is empty; 'tarn passwords' lists the passwords");
    const std::string beginning = inCapitals(argument);
    std::vector<OVPassword*> fitting = session.protection().passwords();
    std::erase_if(fitting, [&beginning](const OVPassword* password) {
        return !password->uniqueIdentifier().value_or("").starts_with(beginning);
    });
    if (fitting.empty())
        throw CommandFailure(
            ExitCode::Failed, "there is no password \"" + argument + "\"; 'tarn passwords' lists them");
    if (fitting.size() > 1)
        throw failureOfChoice(
            ExitCode::Usage, "several passwords begin with \"" + argument + "\"; write more of the one", fitting);
    return *fitting.front();
}

OVPassword& onlyPassword(StoreSession& session, const std::string& advice)
{
    const std::vector<OVPassword*> passwords = session.protection().passwords();
    if (passwords.empty())
        throw CommandFailure(ExitCode::Failed, "the store has no password; 'tarn password add' makes one");
    if (passwords.size() > 1)
        throw failureOfChoice(ExitCode::Usage, "there are several passwords; " + advice, passwords);
    return *passwords.front();
}

OVPassword& addPassword(StoreSession& session, const ClearPassword& clear, const std::optional<std::string>& hint)
{
    OVPassword* password = OVPassword::insertInManagedObjectContext(session.context());
    NSError error;
    if (!session.protection().manager().setPassword(*password, clear.text(), hint, &error))
        throw failureForEncryptionError("the password cannot be used", error);
    return *password;
}

OVKeyDerivationCost costOfMemory(std::size_t mebibytes)
{
    OVKeyDerivationCost cost;
    if (mebibytes > kMostMebibytes)
        throw CommandFailure(ExitCode::Usage, "--memory takes at most 1024 MiB");
    if (mebibytes > 0)
        cost.memoryInKibibytes = static_cast<std::uint32_t>(mebibytes << 10U);
    return cost;
}

} // namespace tarn
