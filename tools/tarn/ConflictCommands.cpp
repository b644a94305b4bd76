#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Commands.h"
#include "tools/tarn/NoteJSON.h"
#include "tools/tarn/NoteList.h"
#include "tools/tarn/NotesToChange.h"

#include <algorithm>
#include <memory>
#include <unordered_set>

namespace tarn {

namespace {

/// Versions of one note, the latest stamped first.
struct ConflictGroup {
    std::string root;
    std::vector<OVNote*> notes;
};

ConflictGroup groupOf(const OVNote& note)
{
    return {note.conflictedRootUUID(), note.conflictedNotes()};
}

/// When its latest member was stamped, as text that sorts by time.
std::string latestStampOf(const ConflictGroup& group)
{
    const std::string member
        = group.notes.empty() ? std::string() : group.notes.front()->conflictUniqueIdentifier().value_or("");
    return member.substr(std::min(member.size(), group.root.size()));
}

std::vector<ConflictGroup> allGroups(StoreSession& session)
{
    std::vector<ConflictGroup> groups;
    std::unordered_set<std::string> roots;
    for (const OVNote* note : session.notes(NSPredicate::predicateWithFormat("conflictUniqueIdentifier != nil"))) {
        if (roots.insert(note->conflictedRootUUID()).second)
            groups.push_back(groupOf(*note));
    }
    std::ranges::sort(groups, std::ranges::greater(), latestStampOf);
    return groups;
}

void show(const Invocation& invocation, const std::vector<ConflictGroup>& groups)
{
    if (invocation.json) {
        JSON list = JSON::array();
        for (const ConflictGroup& group : groups)
            list.push_back({{"root", group.root}, {"notes", jsonOfNotes(group.notes).at("notes")}});
        writeJSON(invocation.output, {{"groups", std::move(list)}});
        return;
    }
    bool isFirst = true;
    for (const ConflictGroup& group : groups) {
        if (!isFirst)
            invocation.output.writeLine("");
        isFirst = false;
        for (const OVNote* note : group.notes)
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
    else if (const OVNote& note = noteForArgument(*argument, session); note.hasConflictedNotes())
        groups.push_back(groupOf(note));
    else
        nothing = nameOfNote(note) + " is in no conflict";
    show(invocation, groups);
    return session.exitCodeOfSearch(!groups.empty(), nothing);
}

ConflictGroup resolved(OVNote& kept)
{
    if (!kept.hasConflictedNotes())
        throw CommandFailure(ExitCode::Failed, nameOfNote(kept) + " is in no conflict");
    ConflictGroup group = groupOf(kept);
    for (OVNote* note : group.notes) {
        if (note != &kept)
            note->trash();
    }
    // Where it was the only one left, nobody's leaving has ended the conflict.
    if (kept.hasConflictedNotes())
        kept.unmarkAsConflicted();
    return group;
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
