#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteCaches.h"
#include "tools/tarn/StoreSession.h"
#include "tools/tarn/import/ImportPlan.h"
#include "tools/tarn/import/ImportRecord.h"
#include "tools/tarn/import/ImportResult.h"
#include "tools/tarn/import/MarkdownFiles.h"
#include "tools/tarn/import/TextComposer.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// Makes a note of each file, with the files that its text links as attachments; or changes the note that it made of it
/// before.
///
/// All files are looked at first, so that their texts can link each other. Notes are saved in batches, so that a long
/// import needs little memory and keeps what it has when it is interrupted: an `Interruption` ends it between two
/// files, and takes back the batch that was not saved. Files that cannot be read are reported and the rest goes on; a
/// store that cannot be written ends the import.
class Importer {
public:
    /// `session`: null for a store that is not there, which then is not made. Without `writes` nothing is written:
    /// files are read, and their notes thrown away. The session must outlive this.
    Importer(StoreSession* session, bool writes, ImportRules rules, std::vector<std::string> tags);

    /// What was imported below `old` lies below `now` today.
    void moveRoot(const std::filesystem::path& old, const std::filesystem::path& now);

    /// Takes hashes of what is protected by now out of the record of imports, as each import does.
    void forgetProtectedNotes();
    /// Asks the store what became of what a record announces and does not confirm, and takes such hashes out of it.
    void settle(ImportRecord& record);
    /// Takes such hashes out of a record; whether there were any.
    bool forgetProtectedNotes(ImportRecord& record);

    using FileHandler = std::function<void(const ImportedFile&)>;
    /// `handler` hears of each file, before its note is saved.
    ImportResult importFiles(const MarkdownFiles& found, const FileHandler& handler);

private:
    /// A file on its way into the store.
    struct Pending {
        std::size_t number = 0; ///< in the plan
        ComposedNote composed;
    };

    void prepare(const MarkdownFiles& found);
    void settleRecord();
    bool hasHappened(const ImportedSource& source, const ImportRecord& record);
    void readFile(std::size_t number);
    void take(Pending pending);
    void saveBatch();
    void applyBatch();
    void withdraw();
    void apply(const PlannedFile& planned, const ComposedNote& composed);
    void insertNote(const PlannedFile& planned, const ComposedNote& composed);
    void setExportedState(OVNote& note, const PlannedFile& planned, const ExportedIdentity& exported);
    void changeNote(const PlannedFile& planned, const ComposedNote& composed, OVNote* note);
    void keep(const PlannedFile& planned, const ComposedNote& composed, const OVNote* note);
    void updateNote(const PlannedFile& planned, const ComposedNote& composed, OVNote& note);
    void addCopy(const PlannedFile& planned, const ComposedNote& composed, OVNote& note);
    void skip(const PlannedFile& planned, const std::string& reason);
    std::string setText(OVNote& note, const ComposedNote& composed);
    std::optional<std::string> textWithAttachments(const ComposedNote& composed, OVNote& note, bool attaches);
    std::optional<std::string> nameOfAttached(const LinkedFile& file, OVNote& note, bool attaches, bool isExported);
    bool isUnchangedBy(const ComposedNote& composed, OVNote& note);
    void countFilesToAttach(const ComposedNote& composed);
    ImportedSource sourceOf(const PlannedFile& planned, const ComposedNote& composed, const std::string& text);
    void announce(const PlannedFile& planned, ImportedSource source);
    bool isAsImported(const OVNote& note, const std::optional<TextFingerprint>& imported);
    void tell(const PlannedFile& planned, const ComposedNote& composed, FileOutcome outcome);
    void fail(const std::filesystem::path& path, const TextFileError& error);
    void leave(const MarkdownFiles& found, std::size_t next);

    StoreSession* session_;
    bool writes_;
    ImportRules rules_;
    std::vector<std::string> tags_;
    std::optional<ImportRecord> record_;
    StoreTitles storeTitles_;
    std::optional<ImportPlan> plan_;
    std::optional<TextComposer> composer_;
    const FileHandler* handler_ = nullptr;
    ImportResult result_;
    ImportResult batchResult_; ///< counted when the batch is saved
    std::vector<Pending> batch_;
    std::size_t batchBytes_ = 0;
    std::vector<ImportedSource> announced_;
    std::vector<std::filesystem::path> moved_;
    // What the notes of a batch ask for again and again.
    OVNote::TagsCache tagsOfBatch_;
    OVNote::NotesCache notesOfBatch_;
};

} // namespace tarn
