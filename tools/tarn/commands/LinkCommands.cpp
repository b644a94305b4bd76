#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/notes/NoteFilter.h"
#include "tools/tarn/arguments/NoteArgument.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/listing/NoteJSON.h"
#include "tools/tarn/listing/NoteList.h"

#include <algorithm>
#include <memory>

namespace tarn {

namespace {

using Links = std::vector<OVNoteBackLink*>;
using LinkEnd = OVNote* (OVNoteBackLink::*)() const;

std::string identifierOf(const OVNote* note)
{
    return note ? note->uniqueIdentifier().value_or("") : std::string();
}

JSON jsonOf(const Links& links, LinkEnd end)
{
    JSON list = JSON::array();
    for (const OVNoteBackLink* link : links) {
        JSON json{{"title", link->title().value_or("")}, {"location", link->locationValue()}};
        if (const OVNote* note = (link->*end)())
            json["note"] = identifierOf(note);
        list.push_back(std::move(json));
    }
    return {{"links", std::move(list)}};
}

/// A line for a link: the beginning of the note's identifier at its end, where it stands, its title.
void writeLink(Output& output, const OVNoteBackLink& link, LinkEnd end)
{
    constexpr std::size_t identifierColumns = 8;
    constexpr std::size_t locationColumns = 6;
    const OVNote* note = (link.*end)();
    std::string location = std::to_string(link.locationValue());
    location.insert(0, locationColumns - std::min(locationColumns, location.size()), ' ');
    output.writeLine(output.styled(textPaddedToWidth(
                                       displayText(identifierOf(note).substr(0, identifierColumns)), identifierColumns),
                         TextStyle::Faint)
        + "  " + location + "  "
        + output.styled(displayText(link.title().value_or("")), note ? TextStyle::Strong : TextStyle::Plain));
}

void show(const Invocation& invocation, const Links& links, LinkEnd end)
{
    if (invocation.json) {
        writeJSON(invocation.output, jsonOf(links, end));
    } else {
        for (const OVNoteBackLink* link : links)
            writeLink(invocation.output, *link, end);
    }
}

void show(const Invocation& invocation, const std::vector<OVNote*>& notes)
{
    if (invocation.json) {
        writeJSON(invocation.output, jsonOfNotes(notes));
    } else {
        for (const OVNote* note : notes)
            writeNoteLine(invocation.output, *note);
    }
}

ExitCode showLinks(const Invocation& invocation, const std::string& argument)
{
    StoreSession session(invocation, StoreSession::Access::Read);
    const OVNote& note = noteForArgument(argument, session);
    Links links = note.linkingToSet().allObjects();
    std::ranges::sort(links, {}, &OVNoteBackLink::locationValue);
    show(invocation, links, &OVNoteBackLink::linkingTo);
    return session.exitCodeOfSearch(!links.empty(), "there is no link in " + nameOfNote(note));
}

ExitCode showBacklinks(const Invocation& invocation, const std::string& argument)
{
    StoreSession session(invocation, StoreSession::Access::Read);
    const OVNote& note = noteForArgument(argument, session);
    const auto notes = session.notes(NSPredicate::predicateWithFormat("ANY linkingTo.linkingTo == %@", &note));
    show(invocation, notes);
    return session.exitCodeOfSearch(!notes.empty(), "no note links to " + nameOfNote(note));
}

ExitCode showUnresolved(const Invocation& invocation)
{
    StoreSession session(invocation, StoreSession::Access::Read);
    Links links = session.links(NSPredicate::predicateWithFormat("linkingTo == nil"));
    std::ranges::stable_sort(links, [](const OVNoteBackLink* left, const OVNoteBackLink* right) {
        const std::string leftNote = identifierOf(left->linkedBy());
        const std::string rightNote = identifierOf(right->linkedBy());
        return leftNote != rightNote ? leftNote < rightNote : left->locationValue() < right->locationValue();
    });
    show(invocation, links, &OVNoteBackLink::linkedBy);
    return session.exitCodeOfSearch(!links.empty(), "every link leads to a note");
}

ExitCode showOrphans(const Invocation& invocation)
{
    StoreSession session(invocation, StoreSession::Access::Read);
    const auto notes = session.notes(predicateForNoteFilter(NoteFilter::ActiveUnlinked));
    show(invocation, notes);
    return session.exitCodeOfSearch(!notes.empty(), "there is no active note without links");
}

void addLinkCommandOfNote(CommandLine& commandLine, const CommandDescription& description,
    ExitCode (*run)(const Invocation&, const std::string&))
{
    const auto note = std::make_shared<std::optional<std::string>>();
    const Command command = commandLine.addCommand(
        description, [note, run](const Invocation& invocation) { return run(invocation, **note); });
    command.addArgument("NOTE", *note, "An identifier, the beginning of one, or a title").required();
}

} // namespace

void addLinkCommands(CommandLine& commandLine)
{
    addLinkCommandOfNote(commandLine,
        {.name = "links",
            .summary = "Show the links to other notes that a note holds",
            .explanation = "A line holds the beginning of the other note's identifier (nothing where there is no such "
                           "note), where the\nlink stands in UTF-16 units, and the title that it names.",
            .examples = {"tarn links Home"}},
        showLinks);
    addLinkCommandOfNote(commandLine,
        {.name = "backlinks",
            .summary = "List the notes that link to a note",
            .explanation = "",
            .examples = {"tarn backlinks Groceries"}},
        showBacklinks);
    commandLine.addCommand(
        {.name = "unresolved",
            .summary = "Show links that lead to no note",
            .explanation = "A line holds the beginning of the identifier of the note that the link "
                           "stands in, where it stands in\nUTF-16 units, and the title that it names.",
            .examples = {"tarn unresolved"}},
        showUnresolved);
    commandLine.addCommand({.name = "orphans",
                               .summary = "List notes without any link from or to others",
                               .explanation = "Trashed and archived notes are left out.",
                               .examples = {"tarn orphans"}},
        showOrphans);
}

} // namespace tarn
