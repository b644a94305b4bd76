#pragma once

#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/session/StoreSession.h"

#include <vector>

namespace tarn {

/// Raises `CommandFailure` when the text of the note is not to be changed: it is protected, trashed, archived or
/// read-only.
void requireEditable(const OVNote& note);

/// Raises `CommandFailure` when the note, or one of them, is protected, so that its text cannot be read.
void requireUnlocked(const OVNote& note);
void requireUnlocked(const std::vector<OVNote*>& notes);

/// Prints a note that was made or changed: a line, or with --json the record.
void writeNote(const Invocation& invocation, const OVNote& note);

} // namespace tarn
