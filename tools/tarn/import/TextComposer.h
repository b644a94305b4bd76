#pragma once

#include "tarnmodel/platform/foundation/values/NSDate.h"
#include "tools/tarn/import/ImportPlan.h"
#include "tools/tarn/import/links/LinkRewriting.h"
#include "tools/tarn/import/links/LinkedFiles.h"
#include "tools/tarn/import/reading/SourceText.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// What the note of a file is to be.
struct ComposedNote {
    std::string bytes; ///< a hash of those that it was made of
    std::string text;
    NSDate creationDate;
    NSDate modificationDate;
    bool isPinned = false;
    bool isArchived = false;
    std::optional<ExportedIdentity> exported;
    std::vector<RewrittenLink> links;        ///< of the file, and what became of them
    std::map<std::string, LinkedFile> files; ///< that become its attachments, by the destinations of its links
};

/// Makes the texts of notes, one at a time, of files that were planned.
class TextComposer {
public:
    /// `plan` must outlive this. `tags`: for every note, at the bottom. `found`: all that texts may link.
    TextComposer(ImportPlan& plan, const ImportRules& rules, std::vector<std::string> tags, const MarkdownFiles& found);

    /// Of the file of this number. Raises `TextFileError` for one that cannot be read, or whose text is too long.
    ComposedNote compose(std::size_t number);

    /// What a destination of a link means in the text of a file.
    LinkedFile fileForLink(std::size_t number, const std::string& destination);

private:
    class Links;

    std::map<std::string, LinkedFile> filesToAttach(std::size_t number, const std::string& text);
    std::vector<std::string> tagsOf(const PlannedFile& planned) const;

    ImportPlan& plan_;
    ImportRules rules_;
    std::vector<std::string> tags_;
    LinkedFiles linkedFiles_;
    NoteIndex otherFiles_;          ///< that become no notes
    bool linksAreExported_ = false; ///< the text at hand is one of an export, with links to files
};

} // namespace tarn
