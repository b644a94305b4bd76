#include "tarnmodel/notes/NoteFilter.h"

#include <string_view>

namespace tarn {

namespace {

std::string_view formatOf(NoteFilter filter)
{
    switch (filter) {
    case NoteFilter::All:
        break;
    case NoteFilter::Active:
        return "trashed == NO AND archived == NO";
    case NoteFilter::Untrashed:
        return "trashed == NO";
    case NoteFilter::Trashed:
        return "trashed == YES";
    case NoteFilter::Archived:
        return "archived == YES AND trashed == NO";
    case NoteFilter::Pinned:
        return "pinned == YES";
    case NoteFilter::ReadOnly:
        return "locked == YES";
    case NoteFilter::Encrypted:
        return "encrypted == YES";
    case NoteFilter::Conflicted:
        return "conflictUniqueIdentifier != nil";
    case NoteFilter::Untagged:
        return "tags.@count == 0";
    case NoteFilter::WithOpenToDos:
        return "todoIncompleted > 0";
    case NoteFilter::WithSourceCode:
        return "hasSourceCode == YES";
    case NoteFilter::ActivePinned:
        return "pinned == YES AND trashed == NO AND archived == NO";
    case NoteFilter::ActiveUnlinked:
        return "linkingTo.@count == 0 AND linkedBy.@count == 0 AND trashed == NO AND archived == NO";
    }
    return {};
}

} // namespace

std::optional<NSPredicate> predicateForNoteFilter(NoteFilter filter)
{
    const std::string_view format = formatOf(filter);
    return format.empty() ? std::nullopt : std::optional(NSPredicate::predicateWithFormat(format));
}

} // namespace tarn
