#pragma once

#include "tools/tarn/commandline/ExitCode.h"
#include "tools/tarn/import/links/LinkRewriting.h"
#include "tools/tarn/import/reading/MarkdownFiles.h"

#include <cstddef>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace tarn {

/// What became of a file.
enum class FileOutcome {
    Imported,   ///< a new note
    Updated,    ///< its note has its text
    Unchanged,  ///< as it was when it was last imported
    Conflicted, ///< a copy beside its note, which was changed as well
    Skipped,    ///< its note is not to be changed
};

/// What became of a file, to be told.
struct ImportedFile {
    std::filesystem::path path;
    std::string title;
    FileOutcome outcome = FileOutcome::Imported;
};

/// A file whose note was left as it is.
struct SkippedNote {
    std::filesystem::path path;
    std::string reason;
};

/// A link that is worth telling of.
struct ToldLink {
    std::filesystem::path path; ///< of the file in which it stands
    RewrittenLink link;
};

/// Links by what became of them.
struct LinkCounts {
    std::size_t wiki = 0;
    std::size_t byIdentifier = 0;
    std::size_t waiting = 0;
    std::size_t ambiguous = 0;
    std::size_t anchors = 0;
    std::size_t outside = 0;
    std::size_t missing = 0;
    std::size_t kept = 0;
};

/// What an import came to.
struct ImportResult {
    std::size_t imported = 0;
    std::size_t updated = 0;
    std::size_t unchanged = 0;
    std::size_t conflicted = 0;
    std::size_t moved = 0;
    std::size_t attachments = 0;
    LinkCounts links;
    std::set<std::filesystem::path> attachedFiles; ///< without symbolic links
    std::vector<ToldLink> toldLinks;               ///< those of all files, in their order
    std::vector<SkippedNote> skippedNotes;
    std::vector<std::filesystem::path> gone; ///< known files that are not there any more
    std::filesystem::path lastImported;      ///< the last file whose note was saved
    std::vector<PathFailure> failures;
    /// Files of which nothing is in the store since the import ended before its time, and why it did.
    std::vector<std::filesystem::path> left;
    std::string reasonLeft;
    /// What ended the import, or the kind of the worst failure of a file.
    ExitCode code = ExitCode::Done;

    /// Notes that were made or changed.
    std::size_t written() const noexcept { return imported + updated + conflicted; }

    /// Adds what one batch came to.
    void add(ImportResult batch);
};

} // namespace tarn
