#include "tools/tarn/arguments/NoteArgument.h"

#include "tarnmodel/notes/NotePredicates.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tools/tarn/arguments/NoteURL.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/listing/NoteList.h"

#include <algorithm>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace tarn {

namespace {

constexpr std::size_t kShownMatches = 8;

CommandFailure ambiguousBeginning(std::string_view argument, const std::vector<OVNote*>& matches)
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
    const auto predicate = predicateForBeginningOfUUID(argument);
    if (!predicate)
        return nullptr;
    const std::vector<OVNote*> matches = session.notes(predicate);
    const auto isOther
        = [&matches](const OVNote* note) { return note->uniqueIdentifier() != matches.front()->uniqueIdentifier(); };
    if (std::ranges::any_of(matches, isOther))
        throw ambiguousBeginning(argument, matches);
    return matches.empty() ? nullptr : matches.front();
}

/// "3F2504E0-4F89-11D3-9A0C-0305E82C3301  2025-03-04 10:15  Groceries  pears and plums"
std::string lineOf(const OVNote& note)
{
    const auto date = note.modificationDate();
    std::string line = note.uniqueIdentifier().value_or("") + "  " + (date ? displayDate(*date) : std::string(16, ' '))
        + "  " + note.title().value_or("");
    if (const std::string subtitle = note.subtitle().value_or(""); !subtitle.empty())
        line += "  " + subtitle;
    return line;
}

std::string numberOfNotesCalled(std::size_t count, std::string_view title)
{
    return std::to_string(count) + " notes are called \"" + std::string(title) + "\"";
}

CommandFailure ambiguousTitle(std::string_view title, std::size_t count, std::span<OVNote* const> latest)
{
    std::vector<std::string> choices;
    for (const OVNote* note : latest.first(std::min(latest.size(), kShownMatches)))
        choices.push_back(lineOf(*note));
    if (count > choices.size())
        choices.push_back("and " + std::to_string(count - choices.size()) + " more");
    return {ExitCode::Usage,
        numberOfNotesCalled(count, title) + "; name one by its identifier, or take the latest modified with --latest",
        std::move(choices)};
}

OVNote* noteWithTitle(std::string_view title, StoreSession& session, SharedTitle sharedTitle)
{
    for (const char* format : {"title ==[cd] %@ AND trashed == NO", "title ==[cd] %@"}) {
        const auto predicate = NSPredicate::predicateWithFormat(format, title);
        const std::vector<OVNote*> latest = session.latestNotes(predicate, kShownMatches);
        if (latest.empty())
            continue;
        OVNote& note = *latest.front();
        if (latest.size() == 1 || sharedTitle == SharedTitle::LatestToChange)
            return &note;
        const std::size_t count = session.countNotes(predicate);
        if (sharedTitle == SharedTitle::Refused)
            throw ambiguousTitle(title, count, latest);
        tellOnStandardError(numberOfNotesCalled(count, title) + "; this is the latest modified, " + nameOfNote(note));
        return &note;
    }
    return nullptr;
}

/// The identifier is what lasts; the title counts where there is none.
OVNote* noteOfURL(const NoteURL& url, StoreSession& session, SharedTitle sharedTitle)
{
    if (!url.identifier.empty()) {
        OVNote* note = noteWithIdentifier(url.identifier, session);
        return note ? note : noteWithIdentifierBeginning(url.identifier, session);
    }
    return fold(url.title).empty() ? nullptr : noteWithTitle(url.title, session, sharedTitle);
}

} // namespace

OVNote* noteWithIdentifier(std::string_view identifier, StoreSession& session)
{
    const auto matches = session.notes(NSPredicate::predicateWithFormat("uniqueIdentifier == %@", identifier), 1);
    return matches.empty() ? nullptr : matches.front();
}

OVNote* findNoteForArgument(std::string_view argument, StoreSession& session, SharedTitle sharedTitle)
{
    // A script with an unset variable means no note; a note without a title would be found by it.
    if (fold(argument).empty())
        throw CommandFailure(ExitCode::Failed, "NOTE is empty; give an identifier, the beginning of one, or a title");
    if (const auto url = noteURLFromText(argument))
        return noteOfURL(*url, session, sharedTitle);
    if (OVNote* note = noteWithIdentifierBeginning(argument, session))
        return note;
    return noteWithTitle(argument, session, sharedTitle);
}

OVNote& noteForArgument(std::string_view argument, StoreSession& session, SharedTitle sharedTitle)
{
    if (OVNote* note = findNoteForArgument(argument, session, sharedTitle))
        return *note;
    throw CommandFailure(ExitCode::Failed,
        "there is no note \"" + std::string(argument) + "\"; 'tarn list --filter all' shows identifiers and titles");
}

} // namespace tarn
