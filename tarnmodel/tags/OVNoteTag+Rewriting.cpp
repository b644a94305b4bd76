#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/notes/EditGuard.h"

namespace tarn {

// A text's new tags and links are derived while it is rewritten, and a title that changes rewrites other notes; so the
// notes are a copy of their set, and each text is rewritten as it is when its turn comes.

void OVNoteTag::addTagToNotes(const std::vector<OVNote*>& notes, bool bottom)
{
    std::vector<OVNote*> untagged;
    for (OVNote* note : notes) {
        if (!note->tagsSet().containsObject(*this))
            untagged.push_back(note);
    }
    const std::string name = title().value_or("");
    const auto withTag = [&](const std::string& text) {
        return bottom ? CVKHashtag::addTagNameToTheBottomOfString(name, text)
                      : CVKHashtag::addTagNameToTheTopOfString(name, text);
    };
    const auto held = EditGuard::holdUnlocked(managedObjectContext());
    EditGuard::requireRewritable(untagged, withTag);
    for (OVNote* note : untagged) {
        // The same note may have been named twice.
        if (!note->isDeleted() && !note->tagsSet().containsObject(*this))
            note->updateNoteWithAST(withTag(note->text().value_or("")), false);
    }
}

void OVNoteTag::deleteTag()
{
    deleteTagInNotes(notesSet().allObjects());
}

void OVNoteTag::deleteTagInNotes(const std::vector<OVNote*>& notes)
{
    const std::string name = title().value_or("");
    const auto withoutTag = [&](const std::string& text) { return CVKHashtag::removeTagName(name, text); };
    const auto held = EditGuard::holdUnlocked(managedObjectContext());
    EditGuard::requireRewritable(notes, withoutTag);
    for (OVNote* note : std::vector<OVNote*>(notes)) {
        if (!note->isDeleted())
            note->updateNoteWithAST(withoutTag(note->text().value_or("")), false);
    }
}

} // namespace tarn
