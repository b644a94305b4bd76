#include "tools/tarn/arguments/NotesToChange.h"

#include "tools/tarn/arguments/NoteURL.h"
#include "tools/tarn/commandline/CommandFailure.h"

#include <algorithm>

namespace tarn {

void NotesToChange::addOneTo(const Command& command, const std::string& description)
{
    command.addArgument("NOTE", name_, description).required();
    addFlagTo(command);
}

void NotesToChange::addAllTo(const Command& command, const std::string& description)
{
    addAnyTo(command, description).required();
}

CommandOption NotesToChange::addAnyTo(const Command& command, const std::string& description)
{
    const CommandOption notes = command.addArguments("NOTE", names_, description);
    addFlagTo(command);
    return notes;
}

void NotesToChange::addFlagTo(const Command& command)
{
    command.addFlag("--latest", latest_, "Of several notes with one title take the latest modified");
}

OVNote& NotesToChange::noteNamed(const std::string& argument, StoreSession& session) const
{
    return noteForArgument(argument, session, latest_ ? SharedTitle::LatestToChange : SharedTitle::Refused);
}

OVNote& NotesToChange::one(StoreSession& session) const
{
    return noteNamed(name_.value_or(""), session);
}

OVNote* NotesToChange::find(StoreSession& session) const
{
    return findNoteForArgument(
        name_.value_or(""), session, latest_ ? SharedTitle::LatestToChange : SharedTitle::Refused);
}

OVNote* NotesToChange::findLatest(StoreSession& session) const
{
    return findNoteForArgument(name_.value_or(""), session, SharedTitle::LatestToChange);
}

std::string NotesToChange::title() const
{
    const std::string argument = name_.value_or("");
    const auto url = noteURLFromText(argument);
    if (url && url->title.empty())
        throw CommandFailure(
            ExitCode::Failed, "there is no note \"" + argument + "\", and the URL has no title for one");
    return url ? url->title : argument;
}

std::vector<OVNote*> NotesToChange::all(StoreSession& session) const
{
    std::vector<OVNote*> notes;
    for (const std::string& name : names_) {
        OVNote& note = noteNamed(name, session);
        if (std::ranges::find(notes, &note) == notes.end())
            notes.push_back(&note);
    }
    return notes;
}

} // namespace tarn
