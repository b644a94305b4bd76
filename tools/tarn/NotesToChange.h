#pragma once

#include "tools/tarn/CommandLine.h"
#include "tools/tarn/NoteArgument.h"

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

    /// Raises `CommandFailure` as `noteForArgument` does, and for a title that several notes share.
    OVNote& one(StoreSession& session) const;
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
