#pragma once

#include "tarnmodel/diagnosis/StoreFinding.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

namespace tarn {

class OVNoteFile;

/// What lies in the folder of a record.
struct RecordFile {
    static RecordFile ofRecord(const OVNoteFile& record);

    std::filesystem::path place;                   ///< where its bytes are to lie; the folder without a name
    std::optional<std::int64_t> size;              ///< of what lies there; none when nothing does
    std::size_t others = 0;                        ///< how many things lie beside it
    std::vector<std::filesystem::path> unfinished; ///< what was never written whole

    /// What a record that says that its bytes are here has to fear; none when all is well.
    std::optional<StoreFinding::Kind> whatIsAmiss(const OVNoteFile& record) const;
    /// Whether a protected record has something beside its file, which may be clear, and this is the finding: one whose
    /// bytes are said to be here and are not is amiss in another way.
    bool isClearBeside(const OVNoteFile& record) const;
};

/// Folders of records whose files some process is changing, as its journal says, or was changing when it died.
class FilesUnderWay {
public:
    explicit FilesUnderWay(std::string_view storeUUID);

    bool contains(const std::filesystem::path& folder) const { return folders_.contains(folder); }
    /// The journals that processes left which died over changes of this store.
    const std::vector<std::filesystem::path>& abandonedJournals() const noexcept { return abandoned_; }

private:
    std::set<std::filesystem::path> folders_;
    std::vector<std::filesystem::path> abandoned_;
};

} // namespace tarn
