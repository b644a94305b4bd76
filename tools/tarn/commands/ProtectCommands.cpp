#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tools/tarn/arguments/NotesToChange.h"
#include "tools/tarn/arguments/PasswordArgument.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/editor/EditableNote.h"
#include "tools/tarn/import/Importer.h"
#include "tools/tarn/listing/NoteJSON.h"
#include "tools/tarn/listing/NoteList.h"
#include "tools/tarn/session/ProtectedStore.h"

#include <memory>

namespace tarn {

namespace {

struct ProtectArguments {
    NotesToChange notes;
    std::optional<std::string> password;
    std::size_t memory = 0;
};

void writeNotes(const Invocation& invocation, const std::vector<OVNote*>& notes)
{
    if (invocation.json) {
        writeJSON(invocation.output, jsonOfNotes(notes));
        return;
    }
    for (const OVNote* note : notes)
        writeNoteLine(invocation.output, *note);
}

/// The password that notes are to be protected with, unlocked: the one that was named, else the only one there is. None
/// where a first one is to be made.
OVPassword* passwordToProtectWith(StoreSession& session, const ProtectArguments& arguments)
{
    Protection& protection = session.protection();
    if (!arguments.password && !protection.hasPasswords())
        return nullptr;
    OVPassword& password = arguments.password ? passwordForArgument(*arguments.password, session)
                                              : onlyPassword(session, "say which one with --password");
    protection.unlock(password);
    return &password;
}

ExitCode protectNotes(const Invocation& invocation, const ProtectArguments& arguments)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    arguments.notes.all(session); // before somebody thinks of a password for a note that is not there
    OVPassword* password = passwordToProtectWith(session, arguments);
    const auto first = password ? std::nullopt : std::optional(session.protection().newPassword());
    if (first)
        session.protection().setCost(costOfMemory(arguments.memory));
    std::vector<OVNote*> notes;
    session.write([&] {
        notes = arguments.notes.all(session);
        if (first)
            password = &addPassword(session, *first, std::nullopt);
        for (OVNote* note : notes)
            if (NSError error; !session.protection().manager().addEncryptionToObject(*note, *password, &error))
                throw failureForEncryptionError("cannot protect " + nameOfNote(*note), error);
    });
    if (first && !invocation.json)
        tellOnStandardError("this is the first password of the store: who forgets it has lost what it protects");
    writeNotes(invocation, notes);
    Importer(&session, true, {}, {}).forgetProtectedNotes();
    clearAwayClearText(session);
    return ExitCode::Done;
}

ExitCode unprotectNotes(const Invocation& invocation, const NotesToChange& arguments)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    session.unlock([&] { return arguments.all(session); });
    std::vector<OVNote*> notes;
    session.write([&] {
        notes = arguments.all(session);
        requireUnlocked(notes);
        for (OVNote* note : notes)
            if (NSError error; !session.protection().manager().removeEncryptionFromObject(*note, &error))
                throw failureForEncryptionError("cannot take the protection off " + nameOfNote(*note), error);
    });
    writeNotes(invocation, notes);
    return ExitCode::Done;
}

} // namespace

void addProtectCommands(CommandLine& commandLine)
{
    const auto arguments = std::make_shared<ProtectArguments>();
    const Command protect = commandLine.addCommand(
        {.name = "protect",
            .summary = "Protect notes, with their attachments, by a password",
            .explanation
            = "Texts, and names and bytes of attachments, are encrypted. Titles, tags, the titles of links, "
              "dates and counts\nstay readable. The first password of a store is made here; 'tarn password' "
              "makes more and changes them.",
            .examples = {"tarn protect Diary", "tarn protect --password-file secret.txt 'Tax 2019' 3F2504E0"}},
        [arguments](const Invocation& invocation) { return protectNotes(invocation, *arguments); });
    protect.addOption("--password", arguments->password, "Of several passwords this one").called("ID");
    protect.addCount("--memory", arguments->memory, kMemoryDescription).called("MIB");
    arguments->notes.addAllTo(protect, "Identifiers, beginnings of them, or titles");

    const auto notes = std::make_shared<NotesToChange>();
    const Command unprotect
        = commandLine.addCommand({.name = "unprotect",
                                     .summary = "Take the protection off notes",
                                     .explanation = "Texts and attachments are stored readable again.",
                                     .examples = {"tarn unprotect Diary"}},
            [notes](const Invocation& invocation) { return unprotectNotes(invocation, *notes); });
    notes->addAllTo(unprotect, "Identifiers, beginnings of them, or titles");
}

} // namespace tarn
