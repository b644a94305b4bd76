#pragma once

#include "tarnmodel/model/OVNote.h"

#include <string>
#include <unordered_map>
#include <unordered_set>

namespace tarn {

/// Tags by folded title: what notes that are edited together find their tags with. The records are borrowed from the
/// context that the notes live in, and have to outlive it.
class OVNote::TagsCache : public std::unordered_map<std::string, OVNoteTag*> {
    using unordered_map::unordered_map;
};

/// Notes by folded title, or by folded identifier where they have none. Borrowed likewise.
class OVNote::NotesCache : public std::unordered_map<std::string, OVNote*> {
    using unordered_map::unordered_map;
};

/// Notes that a walk along links came to.
class OVNote::VisitedNotes : public std::unordered_set<const OVNote*> {
    using unordered_set::unordered_set;
};

} // namespace tarn
