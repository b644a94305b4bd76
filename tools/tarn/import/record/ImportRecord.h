#pragma once

#include "tools/tarn/import/record/TextFingerprint.h"
#include "tools/tarn/import/titles/TitleRules.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarn {

/// What became of a file when it was last imported.
struct ImportedSource {
    std::string path;                      ///< without symbolic links
    std::string note{};                    ///< the identifier of the note that was made of it
    std::string file{};                    ///< a hash of its bytes; "" while the note is protected
    std::string stamp{};                   ///< its size and date, in place of the hash; "" while there is one
    std::optional<TextFingerprint> text{}; ///< of the text that the note got; none while the note is protected
    TitleRule titleRule = TitleRule::Text;
    std::string titleSuffix{};    ///< what tells its title from others; "" for nothing
    bool hasWaitingLinks = false; ///< whether links of the text found no note
    std::string copy{}; ///< the conflicted copy that a later state of the file became, by identifier; "" for none
    std::optional<TextFingerprint> copyText{}; ///< of the text that the copy got
    friend bool operator==(const ImportedSource&, const ImportedSource&) = default;
};

struct RecordEntry;

/// Which note was made of which file, in a file beside the store: importing a folder again changes the notes that it
/// made, and makes none twice.
///
/// What a batch of notes is going to be stands there, on the disk, before the batch is saved, and is confirmed behind
/// it: who finds it unconfirmed asks the store which of the two happened. Raises `CommandFailure` when the file cannot
/// be read or written; one that is damaged is read up to the damage. One session's, on its thread.
class ImportRecord {
public:
    /// The record beside this database, which is not there yet when nothing was imported.
    explicit ImportRecord(const std::filesystem::path& database);
    struct Place {
        std::filesystem::path file;
    };
    /// One that lies anywhere.
    explicit ImportRecord(Place place);
    ImportRecord(const ImportRecord&) = delete;
    ImportRecord& operator=(const ImportRecord&) = delete;

    /// Whether something in it is no entry: what stands behind it was not read.
    bool isDamaged() const noexcept { return isDamaged_; }
    /// Whether it says nothing of any file.
    bool isEmpty() const noexcept { return sources_.empty() && reserved_.empty() && announced_.empty(); }

    /// By the path in it. Where it lies in memory it stays until it goes.
    using SourcesByPath = std::map<std::string_view, std::unique_ptr<ImportedSource>>;

    /// Whether the store got what was to become of a file; asked of what was never confirmed.
    using Judge = std::function<bool(const ImportedSource&)>;
    /// Settles what an import left that did not come to its end. What never came to be keeps its identifiers for the
    /// next attempt.
    void settle(const Judge& happened);

    const ImportedSource* sourceAtPath(std::string_view path) const;
    /// Of the note of this identifier.
    const ImportedSource* sourceOfNote(const std::string& identifier) const;
    /// The identifier that an import gave a file whose note it could not save; "" for none.
    std::string reservedIdentifier(std::string_view path) const;
    /// The files that had these bytes.
    std::vector<const ImportedSource*> sourcesOfBytes(const std::string& file) const;
    /// All, by path.
    const SourcesByPath& sources() const noexcept { return sources_; }

    /// Announces what a batch is going to make of files, and the paths from which files have moved. On the disk when it
    /// returns.
    void announce(std::vector<ImportedSource> batch, std::vector<std::string> moved);
    /// What was announced is saved.
    void confirm();
    /// What was announced is not going to be.
    void withdraw();
    /// Takes away hashes of what is protected now; `stampOf` tells what stands for that of a file. Whether there were
    /// any.
    bool forgetTexts(const std::function<bool(const ImportedSource&)>& isProtected,
        const std::function<std::string(const std::filesystem::path&)>& stampOf);
    /// Paths below `old` lie below `now`.
    void moveRoot(const std::filesystem::path& old, const std::filesystem::path& now);
    /// Those of the notes that are to be had.
    using NotesThere = std::function<std::set<std::string>(const std::vector<std::string>& identifiers)>;
    /// Takes over what another record, which is settled, says of files and notes of which this one says nothing: of
    /// notes that are there.
    void takeFrom(const ImportRecord& other, const NotesThere& notesThere);
    /// Writes the record anew, without what is settled, where it has grown by that.
    void finish();

    /// Where it lies for the store in this file.
    static std::filesystem::path pathForDatabase(const std::filesystem::path& database);
    /// What it is called in a backup. Part of the format of backups.
    static constexpr std::string_view nameInBackups = "imports.jsonl";

private:
    void read();
    void read(const RecordEntry& entry);
    void take(ImportedSource source);
    void drop(std::string_view path);
    void forgetBytes(const ImportedSource& source);
    void adoptAnnounced();
    void dropAnnounced();
    void append(const std::string& lines, std::size_t count);
    void rewrite();
    std::size_t neededLines() const noexcept;

    std::filesystem::path file_;
    SourcesByPath sources_;
    // Keys are those of the sources themselves.
    std::unordered_map<std::string_view, const ImportedSource*> byNote_;
    std::unordered_multimap<std::string_view, const ImportedSource*> byBytes_;
    std::map<std::string, std::string, std::less<>> reserved_; ///< identifiers by path
    std::vector<ImportedSource> announced_;
    std::vector<std::string> movedAway_; ///< with what is announced
    std::size_t lines_ = 0;              ///< of the file
    bool mustBeRewritten_ = false;
    bool isDamaged_ = false;
};

} // namespace tarn
