#include "tarnmodel/notes/ConflictGroups.h"

#include "tarnmodel/model/OVNote.h"

#include <algorithm>
#include <functional>
#include <unordered_set>

namespace tarn {

namespace {

/// When its latest member was stamped, as text that sorts by time.
std::string latestStampOf(const ConflictGroup& group)
{
    const std::string member
        = group.versions.empty() ? std::string() : group.versions.front()->conflictUniqueIdentifier().value_or("");
    return member.substr(std::min(member.size(), group.rootUUID.size()));
}

} // namespace

std::optional<ConflictGroup> conflictGroupOfNote(const OVNote& note)
{
    if (!note.hasConflictedNotes())
        return std::nullopt;
    return ConflictGroup{note.conflictedRootUUID(), note.conflictedNotes()};
}

std::vector<ConflictGroup> conflictGroupsOfNotes(std::span<OVNote* const> notes)
{
    std::vector<ConflictGroup> groups;
    std::unordered_set<std::string> roots;
    for (const OVNote* note : notes) {
        if (!note->hasConflictedNotes() || !roots.insert(note->conflictedRootUUID()).second)
            continue;
        if (auto group = conflictGroupOfNote(*note))
            groups.push_back(std::move(*group));
    }
    std::ranges::stable_sort(groups, std::ranges::greater(), latestStampOf);
    return groups;
}

void keepOnlyVersion(OVNote& note)
{
    const auto group = conflictGroupOfNote(note);
    if (!group)
        return;
    for (OVNote* version : group->versions) {
        if (version != &note)
            version->trash();
    }
    // Where it was the only one left, nobody's leaving has ended the conflict.
    if (note.hasConflictedNotes())
        note.unmarkAsConflicted();
}

} // namespace tarn
