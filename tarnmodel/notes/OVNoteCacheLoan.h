#pragma once

#include "tarnmodel/model/OVNote.h"

namespace tarn {

/// Lends a note the caches of an operation on many notes for a scope, and takes them back however the scope is left.
/// The note must outlive the loan, and the caches too.
///
///     OVNoteCacheLoan loan(*note, tags, notes);
///     note->updateNoteWithAST(document, false);
class OVNoteCacheLoan {
public:
    OVNoteCacheLoan(OVNote& note, OVNote::TagsCache& tagsCache, OVNote::NotesCache& notesCache)
        : note_(&note), previousTagsCache_(note.tagsCache()), previousNotesCache_(note.notesCache())
    {
        note.setTagsCache(&tagsCache);
        note.setNotesCache(&notesCache);
    }
    ~OVNoteCacheLoan()
    {
        note_->setTagsCache(previousTagsCache_);
        note_->setNotesCache(previousNotesCache_);
    }
    OVNoteCacheLoan(const OVNoteCacheLoan&) = delete;
    OVNoteCacheLoan& operator=(const OVNoteCacheLoan&) = delete;

private:
    OVNote* note_;
    OVNote::TagsCache* previousTagsCache_;
    OVNote::NotesCache* previousNotesCache_;
};

} // namespace tarn
