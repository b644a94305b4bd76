#include "tools/tarn/NoteArgument.h"

#include "platform/foundation/Folding.h"
#include "tools/tarn/CommandFailure.h"

#include <algorithm>

namespace tarn {

namespace {

constexpr std::size_t kShortestPrefix = 8;
constexpr std::size_t kIdentifierLength = 36;
constexpr std::size_t kShownMatches = 8;

/// The argument in upper case when it could be (the beginning of) an identifier, else "".
std::string identifierBeginningOf(std::string_view argument)
{
    if (argument.size() < kShortestPrefix || argument.size() > kIdentifierLength)
        return {};
    std::string result;
    for (const char character : argument) {
        if (character >= 'a' && character <= 'f')
            result += static_cast<char>(character - 'a' + 'A');
        else if ((character >= '0' && character <= '9') || (character >= 'A' && character <= 'F') || character == '-')
            result += character;
        else
            return {};
    }
    return result;
}

CommandFailure ambiguous(std::string_view argument, const std::vector<OVNote*>& matches)
{
    std::string message = "several notes begin with " + std::string(argument) + ":";
    for (std::size_t index = 0; index < std::min(matches.size(), kShownMatches); ++index) {
        const OVNote& note = *matches[index];
        message += (index == 0 ? " " : ", ") + note.uniqueIdentifier().value_or("") + " \"" + note.title().value_or("")
            + "\"";
    }
    if (matches.size() > kShownMatches)
        message += ", and " + std::to_string(matches.size() - kShownMatches) + " more";
    return {ExitCode::Failed, message + "; write more of the identifier"};
}

OVNote* noteWithIdentifierBeginning(std::string_view argument, StoreSession& session)
{
    const std::string beginning = identifierBeginningOf(argument);
    if (beginning.empty())
        return nullptr;
    const auto predicate = beginning.size() == kIdentifierLength
        ? NSPredicate::predicateWithFormat("uniqueIdentifier == %@", beginning)
        : NSPredicate::predicateWithFormat("uniqueIdentifier BEGINSWITH %@", beginning);
    const std::vector<OVNote*> matches = session.notes(predicate);
    if (matches.size() > 1 && beginning.size() < kIdentifierLength)
        throw ambiguous(argument, matches);
    return matches.empty() ? nullptr : matches.front();
}

OVNote* noteWithTitle(std::string_view title, StoreSession& session)
{
    auto matches = session.notes(NSPredicate::predicateWithFormat("title ==[cd] %@ AND trashed == NO", title), 1);
    if (matches.empty())
        matches = session.notes(NSPredicate::predicateWithFormat("title ==[cd] %@", title), 1);
    return matches.empty() ? nullptr : matches.front();
}

} // namespace

OVNote& noteForArgument(std::string_view argument, StoreSession& session)
{
    // A script with an unset variable means no note; a note without a title would be found by it.
    if (fold(argument).empty())
        throw CommandFailure(ExitCode::Failed, "NOTE is empty; give an identifier, the beginning of one, or a title");
    if (OVNote* note = noteWithIdentifierBeginning(argument, session))
        return *note;
    if (OVNote* note = noteWithTitle(argument, session))
        return *note;
    throw CommandFailure(ExitCode::Failed,
        "there is no note \"" + std::string(argument) + "\"; 'tarn list --filter all' shows identifiers and titles");
}

std::vector<OVNote*> notesForArguments(const std::vector<std::string>& arguments, StoreSession& session)
{
    std::vector<OVNote*> notes;
    for (const std::string& argument : arguments) {
        OVNote& note = noteForArgument(argument, session);
        if (std::ranges::find(notes, &note) == notes.end())
            notes.push_back(&note);
    }
    return notes;
}

} // namespace tarn
