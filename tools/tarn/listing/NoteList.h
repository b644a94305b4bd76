#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tools/tarn/commandline/Output.h"

#include <string>
#include <string_view>

namespace tarn {

/// One line for a note: beginning of its identifier, date of its last change, marks, title, and where there is room its
/// subtitle. Cut to the terminal's width.
///
/// Marks: `*` pinned, `x` trashed, `a` archived, `r` read-only, `e` encrypted, `!` in conflict.
void writeNoteLine(Output& output, const OVNote& note);
/// The same line, without its end.
std::string noteLine(const Output& output, const OVNote& note);

/// A note as messages name it: its title in quotes and the beginning of its identifier.
std::string nameOfNote(const OVNote& note);

/// "2025-03-04 10:15" in the zone of the environment.
std::string displayDate(NSDate date);

} // namespace tarn
