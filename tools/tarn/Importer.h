#pragma once

#include "model/OVNote.h"
#include "tools/tarn/MarkdownFiles.h"
#include "tools/tarn/StoreSession.h"
#include "tools/tarn/TextFile.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// What became of a file.
struct ImportedFile {
    std::filesystem::path path;
    std::string title;
};

/// What an import came to.
struct ImportResult {
    std::size_t imported = 0;
    std::vector<PathFailure> failures;
    /// The first failure that ended the import, or the kind of the worst one of a file.
    ExitCode code = ExitCode::Done;
};

/// Makes a note of each file. Notes are saved in batches, so that a long import needs little memory and keeps what it
/// has when it is interrupted. Files that cannot be read are reported and the rest goes on; a store that cannot be
/// written ends the import, and what was not saved is reported.
class Importer {
public:
    /// Without a session nothing is written: files are read and their notes thrown away.
    Importer(StoreSession* session, std::vector<std::string> tags);

    using FileHandler = std::function<void(const ImportedFile&)>;
    /// `handler` hears of each file that gives a note, before it is saved.
    ImportResult importFiles(const std::vector<std::filesystem::path>& files, const FileHandler& handler);

private:
    void importFile(const std::filesystem::path& path, const FileHandler& handler);
    void saveBatch();
    void fail(const std::filesystem::path& path, const std::string& error, ExitCode code);

    StoreSession* session_;
    std::vector<std::string> tags_;
    ImportResult result_;
    std::vector<std::filesystem::path> batch_; ///< files whose notes are not saved yet
    std::size_t batchBytes_ = 0;
    // What the notes of a batch ask for again and again.
    OVNote::TagsCache tagsOfBatch_;
    OVNote::NotesCache notesOfBatch_;
};

} // namespace tarn
