#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"
#include "tools/tarn/export/ExportManifest.h"
#include "tools/tarn/export/ExportNames.h"
#include "tools/tarn/import/record/ImportRecord.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarn {

/// Into which folders an export puts notes.
enum class ExportLayout {
    Flat,   ///< all into one
    Tags,   ///< by the first tag of the text
    Source, ///< as the files lay that the notes were imported from; others as with `Flat`
};

/// A note of an export.
struct PlannedNote {
    std::string identifier;
    std::string title;
    std::string name;                 ///< that the file is to have, without a counter and its ending
    std::filesystem::path folder{};   ///< from that of the export; as `path`
    std::filesystem::path path{};     ///< of the file
    bool isLocked = false;            ///< it cannot be read, so that its file stays where it is
    std::filesystem::path imported{}; ///< the file that it was made of; "" for none
    NSDate created{};
};

/// Which file each note of an export becomes, so that their texts can name each other.
///
///     ExportPlan plan(ExportLayout::Tags, nullptr);
///     for (const OVNote* note : notes)
///         plan.add(*note);
///     plan.giveNames(manifest, folder);
class ExportPlan {
public:
    /// `record`: where notes came from, for `Source`; else null. It must outlive this.
    ExportPlan(ExportLayout layout, const ImportRecord* record) : layout_(layout), record_(record) { }

    void add(const OVNote& note);
    /// Of notes that are called the same the one that was made first gets the name without a number.
    /// Files keep the names that they have while their notes are called the same. A name that another file has in the
    /// folder is not given. `keepsOthers`: notes that are not planned go on having theirs.
    void giveNames(const ExportManifest& manifest, const ExportFolder& folder, bool keepsOthers);

    const std::vector<PlannedNote>& notes() const noexcept { return notes_; }
    /// The note of this identifier; null for none.
    const PlannedNote* note(const std::string& identifier) const;
    /// Whether no other of the notes is called so.
    bool isOnlyOneCalled(std::string_view title) const;

private:
    std::filesystem::path tagFolder(const OVNote& note) const;
    void placeAsImported();
    std::vector<PlannedNote*> notesInOrder();

    ExportLayout layout_;
    const ImportRecord* record_;
    std::vector<PlannedNote> notes_;
    std::unordered_map<std::string, std::size_t> byIdentifier_;
    std::unordered_map<std::string, std::size_t> titles_; ///< folded; how many have it
    ExportNames names_;
};

/// Whether its text cannot be read for want of a password.
bool isLocked(const OVNote& note);

} // namespace tarn
