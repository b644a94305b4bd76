#include "tools/tarn/NotesToChange.h"

#include <algorithm>

namespace tarn {

void NotesToChange::addOneTo(const Command& command, const std::string& description)
{
    command.addArgument("NOTE", name_, description).required();
    addFlagTo(command);
}

void NotesToChange::addAllTo(const Command& command, const std::string& description)
{
    command.addArguments("NOTE", names_, description).required();
    addFlagTo(command);
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
