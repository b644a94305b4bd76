#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tools/tarn/export/ExportPlan.h"

#include <map>
#include <string>

namespace tarn {

/// What stands around the text of a note in its file, and where the links of the text lead there.
class ExportedText {
public:
    /// `plan` must outlive this. `linksToFiles`: links to notes lead to their files.
    ExportedText(const ExportPlan& plan, bool linksToFiles) : plan_(plan), linksToFiles_(linksToFiles) { }

    /// The whole file: front matter, and the text with `places` before what its links say of attachments.
    /// `places`: by attachment, from the folder of the file, with a slash at the end. The note is not locked.
    std::string ofNote(const OVNote& note, const std::string& text, const PlannedNote& planned,
        const std::map<const OVNoteFile*, std::string>& places) const;

private:
    class Links;

    const ExportPlan& plan_;
    bool linksToFiles_;
};

} // namespace tarn
