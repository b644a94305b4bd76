#pragma once

#include "tools/tarn/export/ExportFolder.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace tarn {

/// What an export made of a note.
struct ExportedNote {
    ExportedFile text;
    std::string name; ///< what the file was to be called, without a counter and its ending
    std::vector<ExportedFile> attachments;
    friend bool operator==(const ExportedNote&, const ExportedNote&) = default;
};

/// What an export has in its folder. On disk: a hidden file of JSON.
struct ExportContents {
    std::string store; ///< the identifier of the store; "" for none
    std::map<std::string, ExportedNote> notes{};
    std::vector<ExportedFile> leftovers{}; ///< of notes that are not exported any more: files that others changed
    friend bool operator==(const ExportContents&, const ExportContents&) = default;
};

/// The manifest of an export, in its folder: which file is that of which note, and what was in it.
///
/// Files that are about to be written are announced in a journal beside it, so that an export that was killed leaves
/// nothing that the next one would not know. What fails raises `CommandFailure`.
class ExportManifest {
public:
    /// Reads what is there. Raises for a folder that holds anything else than an export of this store. Writes nothing.
    ExportManifest(ExportFolder& folder, const std::string& store);

    /// What was exported before, as far as it is known.
    const ExportContents& contents() const noexcept { return contents_; }
    /// All files of an export, wherever they came from.
    std::vector<std::filesystem::path> knownPaths() const;
    /// Whether an export wrote a file there.
    bool isKnown(const std::filesystem::path& path) const { return known_.contains(path); }
    /// Whether an export wrote this file.
    bool isOurs(const std::filesystem::path& path, const std::string& hash) const;

    /// A file that an export wrote there, be it there or not.
    ExportedFile lastKnown(const std::filesystem::path& path) const;

    /// A file is going to be written: kept in the journal.
    void announce(const ExportedFile& file);
    /// Puts the manifest there, unless it says this already, and ends the journal.
    void finish(const ExportContents& contents);

private:
    void read(const std::string& store);
    void readJournal();
    void know(const ExportedFile& file) { known_[file.path][file.hash] = file.size; }

    ExportFolder& folder_;
    ExportContents onDisk_;
    ExportContents contents_; ///< the same with what the journal tells
    std::map<std::filesystem::path, std::map<std::string, std::uintmax_t>> known_; ///< hashes and sizes of what may be
    std::ofstream journal_;
    bool hasManifest_ = false;
    bool hasJournal_ = false;
};

} // namespace tarn
