#pragma once

#include "tools/tarn/import/ImportBatch.h"
#include "tools/tarn/import/ImportPlan.h"
#include "tools/tarn/import/ImportResult.h"
#include "tools/tarn/import/TextComposer.h"
#include "tools/tarn/import/reading/MarkdownFiles.h"
#include "tools/tarn/import/record/ImportRecord.h"
#include "tools/tarn/session/StoreSession.h"

#include <cstddef>
#include <filesystem>
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

    using FileHandler = ImportBatch::FileHandler;
    /// `handler` hears of each file, before its note is saved.
    ImportResult importFiles(const MarkdownFiles& found, const FileHandler& handler);

private:
    /// A file on its way into the store.
    struct Pending {
        std::size_t number = 0; ///< in the plan
        ComposedNote composed;
    };

    void prepare(const MarkdownFiles& found);
    void readFile(std::size_t number);
    void take(Pending pending);
    void saveBatch();
    void fill(std::optional<ImportBatch>& batch);
    void withdraw();
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
    std::vector<Pending> pending_; ///< for the next batch
    std::size_t pendingBytes_ = 0;
};

} // namespace tarn
