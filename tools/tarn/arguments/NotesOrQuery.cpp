#include "tools/tarn/arguments/NotesOrQuery.h"

#include "tools/tarn/arguments/NoteFilter.h"
#include "tools/tarn/arguments/QueryArgument.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/Confirmation.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/listing/NoteList.h"
#include "tools/tarn/listing/SearchHints.h"

#include <algorithm>
#include <cstdio>

namespace tarn {

namespace {

constexpr std::size_t kNotesShown = 10;

std::vector<OVNote*> notesWithIdentifiers(const std::vector<std::string>& identifiers, StoreSession& session)
{
    std::vector<OVNote*> notes;
    for (const std::string& identifier : identifiers) {
        OVNote* note = noteWithIdentifier(identifier, session);
        if (!note)
            throw CommandFailure(
                ExitCode::Failed, "the note " + identifier + " is gone meanwhile; nothing was changed");
        notes.push_back(note);
    }
    return notes;
}

std::vector<std::string> identifiersOf(const std::vector<OVNote*>& notes)
{
    std::vector<std::string> identifiers;
    for (const OVNote* note : notes)
        identifiers.push_back(note->uniqueIdentifier().value_or(""));
    return identifiers;
}

} // namespace

void showNotesToAskAbout(const std::vector<OVNote*>& notes)
{
    const std::size_t shown = std::min(notes.size(), kNotesShown);
    for (std::size_t index = 0; index < shown; ++index)
        std::fprintf(stderr, "  %s\n", displayText(nameOfNote(*notes[index])).c_str());
    if (shown < notes.size())
        std::fprintf(stderr, "  and %zu more\n", notes.size() - shown);
}

void NotesOrQuery::addTo(const Command& command, std::string filter)
{
    filter_ = std::move(filter);
    const CommandOption notes = notes_.addAnyTo(command, "Identifiers, beginnings of them, titles, or tarn:// URLs");
    const CommandOption query
        = command.addOption("--query", query_, "All notes that this search finds; tells how many, and asks")
              .called("QUERY");
    query.excludes({notes});
    if (filter_ == "active")
        command.addFlag("--all", all_, "With --query: look into archive and trash as well");
    command.addFlag("--yes", confirmed_, "Do not ask");
}

ChosenNotes NotesOrQuery::choose(const Invocation& invocation, const std::string& name) const
{
    const auto ask = [&](const std::vector<OVNote*>& notes) {
        showNotesToAskAbout(notes);
        return confirmedOnTerminal(name + " is to change " + numbered(notes.size(), "note") + "; go on?",
            name + " asks before it changes what a search finds");
    };
    return chosen(invocation, ask, false);
}

ChosenNotes NotesOrQuery::chooseAsking(const Invocation& invocation, const Ask& ask) const
{
    return chosen(invocation, ask, true);
}

std::optional<NSPredicate> NotesOrQuery::predicate() const
{
    return conjunction(QueryArgument{.words = {*query_}}.predicate(), predicateOfFilter(all_ ? "all" : filter_));
}

ChosenNotes NotesOrQuery::chosen(const Invocation& invocation, const Ask& ask, bool asksAboutArguments) const
{
    if (all_ && !query_)
        throw CommandFailure(ExitCode::Usage, "--all needs --query");
    if (!query_ && !notes_.areGiven())
        throw CommandFailure(ExitCode::Usage, "NOTE is required; name notes, or let --query find them");
    const auto wanted = query_ ? predicate() : std::nullopt;
    const auto find
        = [this, wanted](StoreSession& session) { return query_ ? session.notes(wanted) : notes_.all(session); };
    if (!query_ && (confirmed_ || !asksAboutArguments))
        return ChosenNotes(find);

    StoreSession session(invocation, StoreSession::Access::Read);
    const std::vector<OVNote*> notes = find(session);
    if (query_)
        tellHints(hintsForSearch(*query_));
    if (session.exitCodeOfSearch(!notes.empty(), "nothing found; nothing was changed") != ExitCode::Done)
        return ChosenNotes();
    if (confirmed_) {
        // Found again where it is changed: by then there may be others.
        tellOnStandardError("--query finds " + numbered(notes.size(), "note"));
        return ChosenNotes(find);
    }
    if (!ask(notes)) {
        tellOnStandardError("nothing was changed");
        return ChosenNotes();
    }
    return ChosenNotes(
        [identifiers = identifiersOf(notes)](StoreSession& later) { return notesWithIdentifiers(identifiers, later); });
}

} // namespace tarn
