#pragma once

#include "tools/tarn/arguments/NoteArgument.h"
#include "tools/tarn/commandline/CommandLine.h"

#include <string>
#include <vector>

namespace tarn {

/// The notes that a command changes, given as arguments, with the flag for titles that several notes share.
///
///     notes->addOneTo(command, "An identifier, the beginning of one, or a title");
///     OVNote& note = notes->one(session);
class NotesToChange {
public:
    /// Declares NOTE and --latest.
    void addOneTo(const Command& command, const std::string& description);
    /// Declares NOTE... and --latest.
    void addAllTo(const Command& command, const std::string& description);

    /// The same, where another option may name the notes.
    CommandOption addAnyTo(const Command& command, const std::string& description);
    bool areGiven() const { return !names_.empty(); }

    /// Raises `CommandFailure` as `noteForArgument` does, and for a title that several notes share.
    OVNote& one(StoreSession& session) const;
    /// The same; null when there is none.
    OVNote* find(StoreSession& session) const;
    /// The same, of several with one title the latest modified.
    OVNote* findLatest(StoreSession& session) const;
    /// The title of a note that is not there: the argument, or what a URL names. Raises `CommandFailure` for a URL that
    /// names none.
    std::string title() const;
    /// All of them, each once, before anything is done to any: one that is not found ends the command.
    std::vector<OVNote*> all(StoreSession& session) const;

private:
    void addFlagTo(const Command& command);
    OVNote& noteNamed(const std::string& argument, StoreSession& session) const;

    std::optional<std::string> name_;
    std::vector<std::string> names_;
    bool latest_ = false;
};

} // namespace tarn
