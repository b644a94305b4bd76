#pragma once

#include "tools/tarn/StoreSession.h"

#include <cstddef>
#include <map>
#include <string>

namespace tarn {

/// Whether the title is one that a text can give a tag: another one has no parent and is found by nobody.
bool hasCanonicalTitle(const OVNoteTag& tag);
/// Whether the note carries every tag above each of its tags, which can be said of a protected note as well.
bool hasTagsAbove(const OVNote& note);

/// Mends tags that no text can name, as former versions or other programs left them: they get the name that texts give
/// them now, or become one with the tag that has it.
///
///     TagRepair repair(session);
///     const std::size_t mended = repair.run();
///     session.save();
class TagRepair {
public:
    explicit TagRepair(StoreSession& session) : session_(session) { }

    /// Returns how many tags were renamed, united with another, made, or deleted because no name is left of them.
    std::size_t run();

private:
    void mendTitles();
    void mend(OVNoteTag& tag);
    void unite(OVNoteTag& tag, OVNoteTag& other);
    void completeProtectedNotes();

    StoreSession& session_;
    std::map<std::string, OVNoteTag*> tags_; ///< those that are in order, by their keys
    std::size_t mended_ = 0;
};

} // namespace tarn
