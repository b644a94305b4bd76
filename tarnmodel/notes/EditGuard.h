#pragma once

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/model/OVNote.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Keeps edits of texts from being stopped half-way: asks before the first change whether all that they will come to
/// can be read. What is locked raises "Invalid accessor" then, and nothing has changed.
///
/// A text is compared with the names of its attachments, so a locked attachment stops it. A changed title is followed
/// by the notes that link to it, and on along their titles, so a locked attachment of one of these stops it as well;
/// protected notes are left out of that. Costs nothing where no encryption manager serves the context.
class EditGuard {
public:
    EditGuard() = delete;

    /// What an operation on many notes makes of a text.
    using Rewriting = std::function<CVKAST(const std::string&)>;

    /// The note is to get a text of this title.
    static void requireEditable(const OVNote& note, std::optional<std::string_view> newTitle);
    /// The texts of all these notes are to be rewritten. Reads each of them once, which raises what the store raises;
    /// a protected note without its manager counts as locked: its stored text reads as none.
    static void requireRewritable(const std::vector<OVNote*>& notes, const Rewriting& rewriting);
    /// The attachments that the notes use are to be read.
    static void requireReadableAttachments(const std::vector<OVNote*>& notes);

    /// Whether the name of an attachment cannot be read now: it is locked, or no manager is there.
    static bool isUnreadable(const OVNoteFile& file);
};

} // namespace tarn
