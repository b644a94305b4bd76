#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tarn {

class OVNote;

/// Versions of one note that are kept side by side; see the conflicted copies of `OVNote`.
struct ConflictGroup {
    std::string rootUUID;          ///< the identifier of the note that the group is rooted at
    std::vector<OVNote*> versions; ///< the latest stamped first
};

/// The group that the note belongs to; none when it is in no conflict. A failed fetch is logged and gives no versions.
std::optional<ConflictGroup> conflictGroupOfNote(const OVNote& note);
/// The groups that notes belong to, each once; the one that was stamped last comes first. Fetches fail likewise.
std::vector<ConflictGroup> conflictGroupsOfNotes(std::span<OVNote* const> notes);
/// Ends the conflict of a note by keeping it: the other versions go to the trash. Nothing happens where there is none.
void keepOnlyVersion(OVNote& note);

} // namespace tarn
