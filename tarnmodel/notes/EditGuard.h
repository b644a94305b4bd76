#pragma once

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/model/OVNote.h"

#include <functional>
#include <memory>
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
/// protected notes are left out of that. Costs nothing where no encryption manager serves the context. A note that is
/// protected counts as locked without one: a clear text must not be put beside its encrypted one.
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
    /// The texts of these notes, and the attachments that they use, are to be read. Raises also where they are
    /// protected without a manager.
    static void requireReadable(const std::vector<OVNote*>& notes);
    /// A file is to be attached to the note, which raises likewise: it is protected as the note is.
    static void requireAttachable(const OVNote& note);

    /// Keeps what is unlocked readable for the calling thread until the token goes: what could be read before the first
    /// change of an operation can be read at its last. Null without a manager.
    static std::shared_ptr<void> holdUnlocked(const NSManagedObjectContext& context);

    /// Whether the name of an attachment cannot be read now: it is locked, or no manager is there.
    static bool isUnreadable(const OVNoteFile& file);
};

} // namespace tarn
