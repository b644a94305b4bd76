#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteCaches.h"
#include "tools/tarn/LinkedFiles.h"
#include "tools/tarn/MarkdownFiles.h"
#include "tools/tarn/StoreSession.h"
#include "tools/tarn/TextFile.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace tarn {

/// What became of a file.
struct ImportedFile {
    std::filesystem::path path;
    std::string title;
};

/// A link of an imported text that stays as it is, although it names a file.
struct LeftLink {
    std::filesystem::path note;
    std::string destination;
    LinkedFile::Kind kind = LinkedFile::Kind::Missing; ///< or Outside
};

/// What an import came to.
struct ImportResult {
    std::size_t imported = 0;
    std::size_t attachments = 0;
    std::set<std::filesystem::path> attachedFiles; ///< without symbolic links
    std::vector<LeftLink> leftLinks;
    std::filesystem::path lastImported; ///< the last file whose note was saved
    std::vector<PathFailure> failures;
    /// Files of which nothing is in the store since the import ended before its time, and why it did.
    std::vector<std::filesystem::path> left;
    std::string reasonLeft;
    /// What ended the import, or the kind of the worst failure of a file.
    ExitCode code = ExitCode::Done;
};

/// Makes a note of each file, with the files that its text links as attachments. Notes are saved in batches, so that a
/// long import needs little memory and keeps what it has when it is interrupted: an `Interruption` ends it between two
/// files, and takes back the batch that was not saved. Files that cannot be read are reported and the rest goes on; a
/// store that cannot be written ends the import.
class Importer {
public:
    /// Without a session nothing is written: files are read and their notes thrown away.
    Importer(StoreSession* session, std::vector<std::string> tags);

    using FileHandler = std::function<void(const ImportedFile&)>;
    /// `handler` hears of each file that gives a note, before it is saved.
    ImportResult importFiles(const std::vector<MarkdownFile>& files, const FileHandler& handler);

private:
    /// A note to be, as its file tells of it.
    struct UnsavedNote {
        std::filesystem::path path;
        std::string text;
        NSDate creation;
        NSDate modification;
        std::map<std::string, LinkedFile> files; ///< that become its attachments, by the destinations of their links
    };

    void readFile(const MarkdownFile& file);
    std::map<std::string, LinkedFile> filesToAttach(const MarkdownFile& file, const std::string& text);
    std::string textWithAttachments(UnsavedNote& unsaved, OVNote& note);
    void takeNote(UnsavedNote note);
    void saveBatch();
    void insertBatch();
    void fail(const std::filesystem::path& path, const std::string& error, ExitCode code);
    void leave(std::span<const MarkdownFile> untried);

    StoreSession* session_;
    std::vector<std::string> tags_;
    const FileHandler* handler_ = nullptr;
    std::optional<LinkedFiles> linkedFiles_;
    ImportResult result_;
    std::size_t attachmentsOfBatch_ = 0;
    std::vector<UnsavedNote> batch_;
    std::size_t batchBytes_ = 0;
    // What the notes of a batch ask for again and again.
    OVNote::TagsCache tagsOfBatch_;
    OVNote::NotesCache notesOfBatch_;
};

} // namespace tarn
