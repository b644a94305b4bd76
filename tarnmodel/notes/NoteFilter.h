#pragma once

#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <cstdint>
#include <optional>

namespace tarn {

/// A choice of notes, as lists show and statistics count them.
enum class NoteFilter : std::uint8_t {
    All,
    Active,    ///< neither trashed nor archived
    Untrashed, ///< archived or not
    Trashed,   ///< archived or not
    Archived,  ///< and not trashed
    Pinned,    ///< trashed and archived ones included, as in all that follow
    ReadOnly,
    Encrypted,  ///< themselves, not only an attachment
    Conflicted, ///< versions of which another was kept
    Untagged,
    WithOpenToDos,
    WithSourceCode,
    // Of the active notes alone:
    ActivePinned,
    ActiveUnlinked, ///< no link leads from or to them
};

/// Finds the notes of the filter; none for all notes.
std::optional<NSPredicate> predicateForNoteFilter(NoteFilter filter);

} // namespace tarn
