#pragma once

#include "tools/tarn/CommandLine.h"
#include "tools/tarn/NoteArgument.h"

#include <string_view>
#include <vector>

namespace tarn {

/// The note that an argument names, for a command that changes its text. Raises `CommandFailure` when there is none,
/// when it is protected, trashed, archived or read-only.
OVNote& editableNoteForArgument(std::string_view argument, StoreSession& session);

/// Raises `CommandFailure` when one of the notes is protected, so that its text cannot be read.
void requireUnlocked(const std::vector<OVNote*>& notes);

/// Prints a note that was made or changed: a line, or with --json the record.
void writeNote(const Invocation& invocation, const OVNote& note);

} // namespace tarn
