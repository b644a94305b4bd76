#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteCaches.h"
#include "tools/tarn/import/AttachedFiles.h"
#include "tools/tarn/import/ImportPlan.h"
#include "tools/tarn/import/ImportResult.h"
#include "tools/tarn/import/StoreTitles.h"
#include "tools/tarn/import/TextComposer.h"
#include "tools/tarn/import/record/ImportRecord.h"
#include "tools/tarn/session/StoreSession.h"

#include <functional>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace tarn {

/// What one save of an import makes of files: new notes, new texts of notes that it made before, conflicted copies of
/// those that somebody edited since. Nothing of it is saved by this.
class ImportBatch {
public:
    using FileHandler = std::function<void(const ImportedFile&)>;

    /// What batches of one import share; all of it must outlive this.
    struct Import {
        StoreSession* session = nullptr; ///< null for a store that is not there, which nothing is written into
        bool writes = false;
        ImportPlan& plan;
        StoreTitles& storeTitles;
        const FileHandler& handler; ///< hears of each file
    };
    explicit ImportBatch(const Import& import) : import_(import) { }
    ImportBatch(const ImportBatch&) = delete;
    ImportBatch& operator=(const ImportBatch&) = delete;

    /// Before the first is applied: says which notes nobody edited, and takes the titles off those that get
    /// another one, so that links follow each note to its own, and none that says a former title from now on.
    void begin(const std::vector<const PlannedFile*>& files);
    /// Whether its note gets another title. Those come first: what they do to links is no change of what files say.
    bool isRetitled(const PlannedFile& planned) const { return retitled_.contains(planned.identifier); }
    void apply(const PlannedFile& planned, const ComposedNote& composed);

    /// What is to be announced before the batch is saved: what becomes of files, and paths from which files have moved.
    std::vector<ImportedSource>& announced() noexcept { return announced_; }
    std::vector<std::string>& moved() noexcept { return moved_; }
    /// Of this batch alone.
    ImportResult& result() noexcept { return result_; }

private:
    void insertNote(const PlannedFile& planned, const ComposedNote& composed);
    void setExportedState(OVNote& note, const PlannedFile& planned, const ExportedIdentity& exported);
    void changeNote(const PlannedFile& planned, const ComposedNote& composed, OVNote* note);
    void keep(const PlannedFile& planned, const ComposedNote& composed, const OVNote* note);
    void updateNote(const PlannedFile& planned, const ComposedNote& composed, OVNote& note);
    void addCopy(const PlannedFile& planned, const ComposedNote& composed, OVNote& note);
    void skip(const PlannedFile& planned, const std::string& reason);
    std::string setText(OVNote& note, const ComposedNote& composed);
    bool isUnchangedBy(const ComposedNote& composed, OVNote& note);
    OVNote* noteOf(const PlannedFile& planned) const;
    bool isAsImported(const OVNote& note, const std::optional<TextFingerprint>& imported);
    ImportedSource sourceOf(const PlannedFile& planned, const ComposedNote& composed, const std::string& text);
    void announce(const PlannedFile& planned, ImportedSource source);
    void tell(const PlannedFile& planned, const ComposedNote& composed, FileOutcome outcome);

    Import import_;
    ImportResult result_;
    AttachedFiles files_{result_};
    std::unordered_set<std::string> asImported_; ///< notes by identifier
    std::unordered_set<std::string> retitled_;   ///< notes by identifier
    std::vector<ImportedSource> announced_;
    std::vector<std::string> moved_;
    // What the notes of a batch ask for again and again.
    OVNote::TagsCache tags_;
    OVNote::NotesCache notes_;
};

} // namespace tarn
