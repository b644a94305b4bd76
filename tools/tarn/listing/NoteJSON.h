#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tools/tarn/commandline/JSON.h"

#include <functional>
#include <span>

namespace tarn {

/// The record as scripts read it: attribute names as keys, dates in ISO 8601, the clock as "(device:count, ...)"; what
/// a note does not have is null, but a conflict's identifier is only there when there is one.
JSON jsonOfNote(const OVNote& note);
/// The same with the key `text`; null for a locked text.
JSON jsonOfNoteWithText(const OVNote& note);
/// `{"notes": [...]}`
JSON jsonOfNotes(std::span<OVNote* const> notes);

/// Writes `{"count": ..., "notes": [...]}` and more keys behind, note by note: a long list never stands in memory
/// whole. A note is what `jsonOf` makes of it.
void writeNoteList(Output& output, std::size_t count, std::span<OVNote* const> notes, const JSON& moreKeys,
    const std::function<JSON(const OVNote&)>& jsonOf = jsonOfNote);

} // namespace tarn
