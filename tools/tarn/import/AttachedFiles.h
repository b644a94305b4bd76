#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tools/tarn/import/ImportResult.h"
#include "tools/tarn/import/TextComposer.h"

#include <optional>
#include <string>

namespace tarn {

/// Makes attachments of the files that the texts of an import link, and counts them.
class AttachedFiles {
public:
    /// `result` counts attachments and gets the failures. It must outlive this.
    explicit AttachedFiles(ImportResult& result) : result_(result) { }

    /// The text for this note, with links to the names that its files have as attachments. A file that two links name
    /// is attached once, and one that the note has already is not attached again.
    std::string attach(const ComposedNote& composed, OVNote& note);
    /// The same where all files are attached already; else none, and nothing is attached.
    std::optional<std::string> textIfAttached(const ComposedNote& composed, OVNote& note);
    /// Counts what would be attached.
    void count(const ComposedNote& composed);

private:
    std::optional<std::string> text(const ComposedNote& composed, OVNote& note, bool attaches);
    OVNoteFile* attachedFile(const LinkedFile& file, OVNote& note, bool isExported);

    ImportResult& result_;
};

} // namespace tarn
