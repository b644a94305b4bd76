#include "corvel/CVKAST.h"
#include "corvel/CVKHashtag.h"
#include "model/OVNote.h"
#include "model/OVNoteTag.h"
#include "tags/ReadableNotesInternal.h"

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
    requireReadableTexts(untagged);
    const std::string name = title().value_or("");
    for (OVNote* note : untagged) {
        // The same note may have been named twice.
        if (note->isDeleted() || note->tagsSet().containsObject(*this))
            continue;
        const std::string text = note->text().value_or("");
        note->updateNoteWithAST(bottom ? CVKHashtag::addTagNameToTheBottomOfString(name, text)
                                       : CVKHashtag::addTagNameToTheTopOfString(name, text),
            false);
    }
}

void OVNoteTag::deleteTag()
{
    deleteTagInNotes(notesSet().allObjects());
}

void OVNoteTag::deleteTagInNotes(const std::vector<OVNote*>& notes)
{
    requireReadableTexts(notes);
    const std::string name = title().value_or("");
    for (OVNote* note : std::vector<OVNote*>(notes)) {
        if (!note->isDeleted())
            note->updateNoteWithAST(CVKHashtag::removeTagName(name, note->text().value_or("")), false);
    }
}

} // namespace tarn
