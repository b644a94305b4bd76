#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tools/tarn/export/ExportFolder.h"
#include "tools/tarn/export/ExportManifest.h"
#include "tools/tarn/export/ExportPlan.h"
#include "tools/tarn/export/ExportedText.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// A file that an export meant to write or to remove and did not.
struct LeftFile {
    std::filesystem::path path;
    std::string reason;
    bool isFailure = false; ///< of the disk
    bool isLocked = false;  ///< for want of a password
};

/// What got another name on disk than it has in the store.
struct RenamedFile {
    std::string name; ///< a title
    std::filesystem::path path;
};

/// What an export came to.
struct ExportResult {
    std::size_t exported = 0;  ///< notes that were written
    std::size_t files = 0;     ///< attachments that were written
    std::size_t unchanged = 0; ///< notes and attachments that were there already, byte by byte
    std::size_t removed = 0;   ///< files of what is not exported any more, or now lies elsewhere
    std::vector<LeftFile> left;
    std::vector<RenamedFile> renamed;
};

/// Brings the folder of an export in step with the notes of a plan.
///
/// Only what an export wrote is written over or removed: a file of other bytes is left, with the note that it belongs
/// to. What the disk refuses is left too; a folder that cannot be made, and a manifest that cannot be written, raise
/// `CommandFailure`.
class Exporter {
public:
    struct Rules {
        bool linksToFiles = false;
        bool takesUnusedFiles = false;
        bool keepsOthers = false; ///< files of notes that are not planned stay
    };

    /// All must outlive this.
    Exporter(ExportFolder& folder, ExportManifest& manifest, const ExportPlan& plan, Rules rules);

    /// A note of the plan.
    void exportNote(const OVNote& note);
    /// Removes what has no place any more, and writes the manifest.
    void finish();
    const ExportResult& result() const noexcept { return result_; }

private:
    using Places = std::map<const OVNoteFile*, std::string>;

    const ExportedNote* before(const std::string& identifier) const;
    bool isOthers(const ExportedFile& file) const;
    void keep(const std::string& identifier);
    void keepOthers();
    void exportOpenNote(const OVNote& note, const PlannedNote& planned);
    std::filesystem::path placeOf(const OVNoteFile& file, const PlannedNote& planned);
    void exportAttachment(
        const OVNoteFile& file, const std::filesystem::path& place, const ExportedNote* known, ExportedNote& exported);
    bool copy(const std::filesystem::path& source, const std::filesystem::path& place, ExportedFile& copied);
    bool write(const OVNote& note, const std::string& bytes, const std::filesystem::path& place);
    void removeRest();
    void removeFile(const std::filesystem::path& path);
    void leave(const std::filesystem::path& path, std::string reason, bool isFailure = false);
    void leaveLocked(const std::filesystem::path& path, std::string reason);

    ExportFolder& folder_;
    ExportManifest& manifest_;
    const ExportPlan& plan_;
    Rules rules_;
    ExportedText texts_;
    ExportContents contents_;
    std::map<std::filesystem::path, std::string> owners_; ///< of folders of attachments: which one is in it
    ExportResult result_;
};

} // namespace tarn
