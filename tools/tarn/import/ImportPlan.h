#pragma once

#include "tarnmodel/platform/foundation/values/NSDate.h"
#include "tools/tarn/import/StoreTitles.h"
#include "tools/tarn/import/links/NoteIndex.h"
#include "tools/tarn/import/reading/MarkdownFiles.h"
#include "tools/tarn/import/record/ImportRecord.h"
#include "tools/tarn/import/titles/TitleRules.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tarn {

class OVNote;
class StoreSession;
class TextFileError;

/// How an import names notes, and what it does with links.
struct ImportRules {
    TitleMode titles = TitleMode::Auto;
    bool keepsLinks = false;
    bool makesTagsOfFolders = false;
};

/// A file of an import that was looked at.
struct PlannedFile {
    MarkdownFile file;
    std::string path;  ///< without symbolic links
    std::string bytes; ///< a hash of them
    TitleFacts facts;
    TitleRule titleRule = TitleRule::Text;
    std::string titleSuffix{}; ///< what stands behind the title in parentheses; "" for nothing
    std::string title{};       ///< that the note is going to have; of one that stays as it is that which it has
    std::string identifier{};  ///< of the note
    std::unique_ptr<const ImportedSource> known{}; ///< what became of it before, be it at another path
    bool hasMoved = false;                         ///< it was known at a path where nothing is any more
    std::optional<std::string> takenIdentifier{};  ///< one that the file tells and another note has
    std::optional<NSDate> exported{};              ///< of a file of an export: when its note was made
};

/// What the notes of an import are going to be called, and which note each file is, so that their texts can name each
/// other. Texts are read for it and not kept.
class ImportPlan {
public:
    using FailureHandler = std::function<void(const std::filesystem::path&, const TextFileError&)>;

    /// Both may be null: of a store that is not there. `record` is settled. Both must outlive this.
    ImportPlan(StoreSession* session, const ImportRecord* record, const ImportRules& rules);
    ImportPlan(const ImportPlan&) = delete;
    ImportPlan& operator=(const ImportPlan&) = delete;

    /// Looks at the files. `failed` hears of those that cannot be read, which are no part of the plan. Raises
    /// `CommandFailure` when it is interrupted.
    void make(const std::vector<MarkdownFile>& files, const FailureHandler& failed);

    const std::vector<PlannedFile>& files() const noexcept { return files_; }
    /// How many exported files say that they belong to a group of conflicted versions.
    std::size_t versionsInConflict(std::string_view group) const;
    /// Finds the files by their numbers in `files()`.
    const NoteIndex& index() const noexcept { return index_; }
    /// Whether this is a file of the import, be it one that cannot be read. `path` has no symbolic links.
    bool isFileOfNote(const std::string& path) const;
    const LinkedNames& linkedNames() const noexcept { return linkedNames_; }
    /// Known files below the folders of this import that are not there any more, and not elsewhere.
    std::vector<const ImportedSource*> goneBelow(const std::vector<std::filesystem::path>& roots) const;

    /// The note that alone has a title, be it planned or in the store and not in the trash: by identifier.
    std::optional<std::string> onlyNoteOf(const std::string& title);
    /// Whether one file of an export alone has it, whatever else is in the store and wherever its note is.
    bool isOnlyExportedTitle(const std::string& title) const;
    /// Whether any has it.
    bool hasTitle(const std::string& title);

private:
    /// The notes of one title.
    struct PlannedTitle {
        std::string note; ///< the first, by identifier
        bool isShared = false;
    };

    void look(const MarkdownFile& file);
    void putInOrder();
    void countHeadings();
    void recognise();
    const ImportedSource* onlyGoneFileOf(const std::string& bytes) const;
    void decideTitles();
    void tellTitlesApart();
    static void tellApart(const std::vector<PlannedFile*>& files);
    void giveIdentifiers();
    void askStore();
    /// The note of a file that is known, as it is before the import.
    struct StoredNote {
        std::string title;
        bool isTrashed = false;
        bool keepsTitle = false; ///< whatever the file says
        bool getsCopy = false;   ///< of the title that the file says
    };
    StoredNote storedNote(const OVNote& note, const PlannedFile& planned);
    void addTitle(const std::string& title, const std::string& note, std::vector<std::string>& titles);
    std::string headingKey(const PlannedFile& planned) const;

    StoreSession* session_;
    const ImportRecord* record_;
    ImportRules rules_;
    StoreTitles storeTitles_;
    std::vector<PlannedFile> files_;
    std::unordered_map<std::string, std::vector<std::string>> aliases_; ///< by path
    std::unordered_set<std::string> unreadable_;
    std::unordered_set<std::string> movedFrom_;
    LinkedNames linkedNames_;
    std::unordered_map<std::string, std::size_t> headings_;       ///< how many files of a folder begin with one
    std::unordered_set<std::string> identifiers_;                 ///< of the planned notes
    std::unordered_map<std::string, std::size_t> conflicts_;      ///< exported files by their group
    std::unordered_map<std::string, std::size_t> exportedTitles_; ///< folded; how many exported files have it
    std::unordered_map<std::string, PlannedTitle> plannedTitles_; ///< by the folded title
    NoteIndex index_{linkedNames_};
};

} // namespace tarn
