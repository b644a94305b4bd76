#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteCaches.h"
#include "tools/tarn/MarkdownFiles.h"
#include "tools/tarn/StoreSession.h"
#include "tools/tarn/TextFile.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <span>
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
    std::filesystem::path lastImported; ///< the last file whose note was saved
    std::vector<PathFailure> failures;
    /// Files of which nothing is in the store since the import ended before its time, and why it did.
    std::vector<std::filesystem::path> left;
    std::string reasonLeft;
    /// What ended the import, or the kind of the worst failure of a file.
    ExitCode code = ExitCode::Done;
};

/// Makes a note of each file. Notes are saved in batches, so that a long import needs little memory and keeps what it
/// has when it is interrupted: an `Interruption` ends it between two files, and takes back the batch that was not
/// saved. Files that cannot be read are reported and the rest goes on; a store that cannot be written ends the import.
class Importer {
public:
    /// Without a session nothing is written: files are read and their notes thrown away.
    Importer(StoreSession* session, std::vector<std::string> tags);

    using FileHandler = std::function<void(const ImportedFile&)>;
    /// `handler` hears of each file that gives a note, before it is saved.
    ImportResult importFiles(const std::vector<std::filesystem::path>& files, const FileHandler& handler);

private:
    /// A note to be, as its file tells of it.
    struct UnsavedNote {
        std::filesystem::path path;
        std::string text;
        NSDate creation;
        NSDate modification;
    };

    void readFile(const std::filesystem::path& path);
    void takeNote(UnsavedNote note);
    void saveBatch();
    void insertBatch();
    void fail(const std::filesystem::path& path, const std::string& error, ExitCode code);
    void leave(std::span<const std::filesystem::path> untried);

    StoreSession* session_;
    std::vector<std::string> tags_;
    const FileHandler* handler_ = nullptr;
    ImportResult result_;
    std::vector<UnsavedNote> batch_;
    std::size_t batchBytes_ = 0;
    // What the notes of a batch ask for again and again.
    OVNote::TagsCache tagsOfBatch_;
    OVNote::NotesCache notesOfBatch_;
};

} // namespace tarn
