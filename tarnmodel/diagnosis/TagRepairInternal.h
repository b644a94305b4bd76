#pragma once

#include <cstddef>
#include <map>
#include <string>

namespace tarn {

class NSManagedObjectContext;
class OVNote;
class OVNoteTag;

/// Whether the title is one that a text can give a tag: another one has no parent and is found by nobody.
bool hasUsableTitle(const OVNoteTag& tag);
/// Whether the note carries every tag above each of its tags, which can be said of a protected note as well.
bool hasParentTags(const OVNote& note);

/// Mends tags that no text can name, as former versions or other programs left them: they get the name that texts give
/// them now, or become one with the tag that has it. Changes records and saves nothing; raises `DiagnosisFailure`.
class TagRepair {
public:
    explicit TagRepair(NSManagedObjectContext& context) : context_(context) { }

    /// Returns how many tags were renamed, united with another, or deleted because no name is left of them, and how
    /// many protected notes were given tags.
    std::size_t run();

private:
    void mendTitles();
    void mend(OVNoteTag& tag);
    void unite(OVNoteTag& tag, OVNoteTag& other);
    void completeProtectedNotes();

    NSManagedObjectContext& context_;
    std::map<std::string, OVNoteTag*> tags_; ///< those that are in order, by their keys
    std::size_t mended_ = 0;
};

} // namespace tarn
