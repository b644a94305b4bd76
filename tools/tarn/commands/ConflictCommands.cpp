#include "tarnmodel/notes/ConflictGroups.h"
#include "tarnmodel/notes/NoteFilter.h"
#include "tools/tarn/arguments/NotesToChange.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/listing/NoteJSON.h"
#include "tools/tarn/listing/NoteList.h"

#include <memory>

namespace tarn {

namespace {

std::vector<ConflictGroup> allGroups(StoreSession& session)
{
    return conflictGroupsOfNotes(session.notes(predicateForNoteFilter(NoteFilter::Conflicted)));
}

void show(const Invocation& invocation, const std::vector<ConflictGroup>& groups)
{
    if (invocation.json) {
        JSON list = JSON::array();
        for (const ConflictGroup& group : groups)
            list.push_back({{"root", group.rootUUID}, {"notes", jsonOfNotes(group.versions).at("notes")}});
        writeJSON(invocation.output, {{"groups", std::move(list)}});
        return;
    }
    bool isFirst = true;
    for (const ConflictGroup& group : groups) {
        if (!isFirst)
            invocation.output.writeLine("");
        isFirst = false;
        for (const OVNote* note : group.versions)
            writeNoteLine(invocation.output, *note);
    }
}

ExitCode showConflicts(const Invocation& invocation, const std::optional<std::string>& argument)
{
    StoreSession session(invocation, StoreSession::Access::Read);
    std::vector<ConflictGroup> groups;
    std::string nothing = "no note is in conflict";
    if (!argument)
        groups = allGroups(session);
    else if (const OVNote& note = noteForArgument(*argument, session); const auto group = conflictGroupOfNote(note))
        groups.push_back(*group);
    else
        nothing = nameOfNote(note) + " is in no conflict";
    show(invocation, groups);
    return session.exitCodeOfSearch(!groups.empty(), nothing);
}

ConflictGroup resolved(OVNote& kept)
{
    const auto group = conflictGroupOfNote(kept);
    if (!group)
        throw CommandFailure(ExitCode::Failed, nameOfNote(kept) + " is in no conflict");
    keepOnlyVersion(kept);
    return *group;
}

ExitCode resolveConflict(const Invocation& invocation, const NotesToChange& argument)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    ConflictGroup group;
    session.write([&] { group = resolved(argument.one(session)); });
    show(invocation, {group});
    return ExitCode::Done;
}

} // namespace

void addConflictsCommand(CommandLine& commandLine)
{
    const auto note = std::make_shared<std::optional<std::string>>();
    const Command command
        = commandLine.addCommand({.name = "conflicts",
                                     .summary = "List notes of which several versions were kept",
                                     .explanation = "The versions of one note stand together, the latest first.",
                                     .examples = {"tarn conflicts", "tarn conflicts Groceries"}},
            [note](const Invocation& invocation) { return showConflicts(invocation, *note); });
    command.addArgument("NOTE", *note, "Only the versions of this note");
}

void addConflictCommand(CommandLine& commandLine)
{
    const Command group = commandLine.addGroup({.name = "conflict",
        .summary = "Resolve a conflict",
        .explanation = "",
        .examples = {"tarn conflict resolve 3F2504E0"}});
    const auto note = std::make_shared<NotesToChange>();
    const Command command = commandLine.addCommand(group,
        {.name = "resolve",
            .summary = "Keep one version of a note and move the others to the trash",
            .explanation = "",
            .examples = {"tarn conflict resolve 3F2504E0"}},
        [note](const Invocation& invocation) { return resolveConflict(invocation, *note); });
    note->addOneTo(command, "The version to keep: an identifier, or the beginning of one");
}

} // namespace tarn
