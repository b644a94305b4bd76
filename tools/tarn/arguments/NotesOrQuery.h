#pragma once

#include "tools/tarn/arguments/NotesToChange.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// The notes that a command is to change, whichever way they were named.
class ChosenNotes {
public:
    using Find = std::function<std::vector<OVNote*>(StoreSession&)>;

    explicit ChosenNotes(Find find = {}) : find_(std::move(find)) { }

    /// Nothing was found, or nobody wants it done: there is nothing to open the store for.
    bool areNone() const { return !find_; }
    /// Raises `CommandFailure` for a note that is not there.
    std::vector<OVNote*> all(StoreSession& session) const { return find_(session); }

private:
    Find find_;
};

/// The notes that a command changes, given as arguments or by a search. Those of a search are counted and asked for.
///
///     notes->addTo(command, "active");
///     const ChosenNotes chosen = notes->choose(invocation, "pin");
///     session.write([&] { for (OVNote* note : chosen.all(session)) note->pin(); });
class NotesOrQuery {
public:
    /// The question about these notes; whether the answer was yes.
    using Ask = std::function<bool(const std::vector<OVNote*>&)>;

    /// Declares NOTE..., --latest, --query, --yes, and --all unless the search looks into archive or trash anyway.
    /// `filter`: the notes among which a search finds, as `tarn list --filter` calls them.
    void addTo(const Command& command, std::string filter);

    /// Asks what has to be asked, while the store is nobody's. Raises `CommandFailure` (usage) when there are neither
    /// notes nor a search, and when there is nobody to ask. `name`: of the command, for the question.
    ChosenNotes choose(const Invocation& invocation, const std::string& name) const;
    /// The same with a question of the command's own, which is also asked about notes given as arguments.
    ChosenNotes chooseAsking(const Invocation& invocation, const Ask& ask) const;

private:
    ChosenNotes chosen(const Invocation& invocation, const Ask& ask, bool asksAboutArguments) const;
    std::optional<NSPredicate> predicate() const;

    NotesToChange notes_;
    std::optional<std::string> query_;
    std::string filter_;
    bool all_ = false;
    bool confirmed_ = false;
};

/// Shows the first of the notes on standard error, for a question about them.
void showNotesToAskAbout(const std::vector<OVNote*>& notes);

} // namespace tarn
