#include "tools/tarn/arguments/PasswordArgument.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/Confirmation.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commandline/Progress.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/listing/NoteList.h"

#include <algorithm>
#include <array>
#include <memory>
#include <span>

namespace tarn {

namespace {

struct PasswordArguments {
    std::optional<std::string> identifier;
    std::optional<std::string> hint;
    std::optional<std::string> newPasswordFile;
    std::size_t memory = 0;
    bool confirmed = false;
};

constexpr std::size_t kRecordsAtATime = 50;

// Telling of passwords ------------------------------------------------------------------------------------------------

JSON jsonOfPassword(const OVPassword& password)
{
    const std::string hint = OVEncryptionCoreManager::hint(password);
    const auto date = password.creationDate();
    return {{"uniqueIdentifier", password.uniqueIdentifier().value_or("")},
        {"hint", hint.empty() ? JSON(nullptr) : JSON(hint)},
        {"creationDate", date ? JSON(iso8601String(*date)) : JSON(nullptr)},
        {"creationDevice", password.creationDevice() ? JSON(*password.creationDevice()) : JSON(nullptr)},
        {"notes", password.notesSet().count()}, {"files", password.filesSet().count()}};
}

void writePasswords(const Invocation& invocation, const std::vector<OVPassword*>& passwords)
{
    if (invocation.json) {
        JSON list = JSON::array();
        for (const OVPassword* password : passwords)
            list.push_back(jsonOfPassword(*password));
        writeJSON(invocation.output, {{"passwords", list}});
        return;
    }
    for (const OVPassword* password : passwords) {
        const auto date = password->creationDate();
        const std::string hint = OVEncryptionCoreManager::hint(*password);
        invocation.output.writeLine(password->uniqueIdentifier().value_or("").substr(0, 8) + "  "
            + (date ? displayDate(*date) : std::string(16, ' ')) + "  "
            + displayText(password->creationDevice().value_or("")) + "  "
            + numbered(password->notesSet().count(), "note") + ", " + numbered(password->filesSet().count(), "file")
            + (hint.empty() ? "" : "  " + invocation.output.styled("hint: " + displayText(hint), TextStyle::Faint)));
    }
}

ExitCode listPasswords(const Invocation& invocation)
{
    StoreSession session(invocation, StoreSession::Access::Read);
    const std::vector<OVPassword*> passwords = session.protection().passwords();
    writePasswords(invocation, passwords);
    return session.exitCodeOfSearch(!passwords.empty(), "there are no passwords; 'tarn password add' makes one");
}

// Making and changing -------------------------------------------------------------------------------------------------

ExitCode addOne(const Invocation& invocation, const PasswordArguments& arguments)
{
    const OVKeyDerivationCost cost = costOfMemory(arguments.memory);
    const ClearPassword clear = invocation.passwords->newPassword(); // the store is nobody's while somebody thinks
    StoreSession session(invocation, StoreSession::Access::Write);
    session.protection().setCost(cost);
    OVPassword* password = nullptr;
    session.write([&] { password = &addPassword(session, clear, arguments.hint); });
    writePasswords(invocation, {password});
    return ExitCode::Done;
}

OVPassword& passwordNamed(const PasswordArguments& arguments, StoreSession& session)
{
    return arguments.identifier ? passwordForArgument(*arguments.identifier, session)
                                : onlyPassword(session, "name one by its ID");
}

/// Calls `work` with the clear password that a record has now.
void withClearPassword(
    StoreSession& session, OVPassword& password, const std::function<bool(const ClearPassword&, NSError*)>& work)
{
    const auto isDone = [&](const ClearPassword& clear) {
        NSError error;
        if (work(clear, &error))
            return true;
        if (error.domain() == TarnEncryptionErrorDomain && error.code() == OVEncryptionErrorWrongPassword)
            return false;
        throw failureForEncryptionError(nameOfPassword(password), error);
    };
    const std::string question = "For " + nameOfPassword(password);
    if (!session.protection().source().tryPasswords(password.uniqueIdentifier().value_or(""), question, isDone))
        throw CommandFailure(ExitCode::Locked,
            nameOfPassword(password) + " is not known; name a file with --password-file whose first line is it");
}

ExitCode changeOne(const Invocation& invocation, const PasswordArguments& arguments)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    Protection& protection = session.protection();
    OVPassword& password = passwordNamed(arguments, session);
    protection.setCost(costOfMemory(arguments.memory));
    // The right one is asked for before a new one is thought of.
    protection.unlock(password);
    if (!arguments.newPasswordFile && !isSomebodyAtTheTerminal())
        throw CommandFailure(ExitCode::Usage, "there is no new password; name its file with --new-password-file");
    const ClearPassword clear = arguments.newPasswordFile
        ? passwordOfOption("--new-password-file", *arguments.newPasswordFile)
        : protection.typedNewPassword(); // the file of --password-file has the old one
    withClearPassword(session, password, [&](const ClearPassword& old, NSError* error) {
        return protection.manager().changePassword(password, old.text(), clear.text(), error);
    });
    if (arguments.hint)
        session.write([&] { OVEncryptionCoreManager::setHint(*arguments.hint, password); });
    writePasswords(invocation, {&password});
    return ExitCode::Done;
}

/// Brings records to the newest key of their password, some at a time; what is done stays done.
void reencryptAll(StoreSession& session, std::span<OVEncryptableObject* const> waiting)
{
    OVEncryptionCoreManager& manager = session.protection().manager();
    Progress progress("encrypting anew", waiting.size());
    for (std::size_t begin = 0; begin < waiting.size(); begin += kRecordsAtATime) {
        Interruption::endIfRequested("interrupted; 'tarn password rotate' goes on where it stopped");
        const std::size_t end = std::min(begin + kRecordsAtATime, waiting.size());
        session.write([&] {
            for (std::size_t index = begin; index < end; ++index)
                if (NSError error; !manager.reencrypt(*waiting[index], &error))
                    throw failureForEncryptionError("cannot encrypt a record anew", error);
        });
        for (std::size_t index = begin; index < end; ++index)
            progress.advance();
    }
}

ExitCode rotateOne(const Invocation& invocation, const PasswordArguments& arguments)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    Protection& protection = session.protection();
    OVPassword& password = passwordNamed(arguments, session);
    protection.unlock(password);
    const OVObjectsByKey objects = protection.manager().objectsByKey(password);
    // One that was interrupted is brought to its end, and no further key made.
    const bool isGoingOn = !objects.underFormerKeys.empty();
    if (!isGoingOn)
        withClearPassword(session, password, [&](const ClearPassword& clear, NSError* error) {
            return protection.manager().rotateMasterKey(password, clear.text(), error);
        });
    const std::vector<OVEncryptableObject*>& waiting = isGoingOn ? objects.underFormerKeys : objects.underNewestKey;
    const Interruption interruption;
    reencryptAll(session, waiting);
    if (!invocation.json)
        invocation.output.writeLine("encrypted " + numbered(waiting.size(), "record") + " anew");
    writePasswords(invocation, {&password});
    return ExitCode::Done;
}

/// The store is nobody's while somebody thinks.
bool confirmsDeletionOfPassword(const Invocation& invocation, const PasswordArguments& arguments)
{
    StoreSession session(invocation, StoreSession::Access::Read);
    return confirmedOnTerminal(
        "Delete " + nameOfPassword(passwordNamed(arguments, session)) + "?", "password delete asks before it deletes");
}

ExitCode deleteOne(const Invocation& invocation, const PasswordArguments& arguments)
{
    if (!arguments.confirmed && !confirmsDeletionOfPassword(invocation, arguments)) {
        tellOnStandardError("nothing was deleted");
        return ExitCode::Failed;
    }
    StoreSession session(invocation, StoreSession::Access::Write);
    std::string name;
    session.write([&] {
        OVPassword& password = passwordNamed(arguments, session);
        name = nameOfPassword(password);
        const std::size_t notes = password.notesSet().count();
        const std::size_t files = password.filesSet().count();
        if (notes + files > 0)
            throw CommandFailure(ExitCode::Failed,
                name + " protects " + numbered(notes, "note") + " and " + numbered(files, "file")
                    + "; take their protection off with 'tarn unprotect' first");
        session.context().deleteObject(password);
    });
    if (invocation.json)
        writePasswords(invocation, session.protection().passwords());
    else
        invocation.output.writeLine("deleted " + name);
    return ExitCode::Done;
}

// Declaring -----------------------------------------------------------------------------------------------------------

using PasswordAction = ExitCode (*)(const Invocation&, const PasswordArguments&);

struct PasswordCommand {
    const char* name;
    const char* summary;
    const char* explanation;
    const char* example;
    PasswordAction run;
};

constexpr std::array kPasswordCommands{
    PasswordCommand{"add", "Make a password", "It comes from --password-file, else it is typed twice.",
        "tarn password add --hint 'the usual one'", addOne},
    PasswordCommand{"change", "Give a password another word",
        "Nothing is encrypted anew: whoever has a copy of the store from before, and knows the old password, reads on "
        "what that\ncopy holds, and what is protected later under the same keys; 'rotate' makes new ones.",
        "tarn password change 3F2504E0 --new-password-file new.txt", changeOne},
    PasswordCommand{"rotate", "Encrypt all that a password protects with new keys",
        "The password stays the same. What was done stays done when it is interrupted; the next call goes on.",
        "tarn password rotate 3F2504E0", rotateOne},
    PasswordCommand{"delete", "Delete a password that protects nothing",
        "Asks before it does. Backups that hold what it protected cannot be read without it.",
        "tarn password delete 3F2504E0", deleteOne},
};

void addOptions(const Command& command, PasswordArguments& arguments, const PasswordCommand& password)
{
    if (password.run != addOne)
        command.addArgument("ID", arguments.identifier,
            "The identifier of a password, or the beginning of one; the only one where there is no other");
    if (password.run == addOne || password.run == changeOne) {
        command.addOption("--hint", arguments.hint, "What reminds of it; everybody can read it").called("TEXT");
        command.addCount("--memory", arguments.memory, kMemoryDescription).called("MIB");
    }
    if (password.run == changeOne)
        command.addOption("--new-password-file", arguments.newPasswordFile, "A file whose first line is the new one")
            .called("FILE");
    if (password.run == deleteOne)
        command.addFlag("--yes", arguments.confirmed, "Do not ask");
}

} // namespace

void addPasswordsCommand(CommandLine& commandLine)
{
    commandLine.addCommand({.name = "passwords",
                               .summary = "List the passwords, and how much each protects",
                               .explanation = "",
                               .examples = {"tarn passwords"}},
        listPasswords);
}

void addPasswordCommands(CommandLine& commandLine)
{
    const Command group = commandLine.addGroup({.name = "password",
        .summary = "Add, change, rotate and delete passwords",
        .explanation = "A forgotten password cannot be brought back, nor can what it protects.",
        .examples = {"tarn password add", "tarn password change", "tarn password rotate --help"}});
    for (const PasswordCommand& password : kPasswordCommands) {
        const auto arguments = std::make_shared<PasswordArguments>();
        const Command command = commandLine.addCommand(group,
            {.name = password.name,
                .summary = password.summary,
                .explanation = password.explanation,
                .examples = {password.example}},
            [arguments, &password](const Invocation& invocation) { return password.run(invocation, *arguments); });
        addOptions(command, *arguments, password);
    }
}

} // namespace tarn
