#pragma once

#include "tarnmodel/files/RecordFolder.h"
#include "tarnmodel/platform/foundation/filesystem/HeldFolder.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class NSError;

/// What a process has done to files for records that are not saved yet, on disk: so that whoever opens the store after
/// the process died can bring files and records in step.
///
/// It lies in a folder that the process holds, beside the attachments: the journal, in which each folder of a record is
/// named before anything in it changes, and what was moved aside. Each process has one for each store, which ends, and
/// is removed, when nothing is unsaved any more. Any thread.
class FileJournal {
public:
    /// The one of this process for the store, made when there is none. Null and an error when it cannot be made.
    static std::shared_ptr<FileJournal> forStore(std::string_view storeUUID, NSError* error);
    ~FileJournal();
    FileJournal(const FileJournal&) = delete;
    FileJournal& operator=(const FileJournal&) = delete;

    /// Notes that the folder is about to change.
    bool note(const RecordFolder& folder, NSError* error);
    /// Notes that the folder is about to be made.
    bool noteNew(const RecordFolder& folder, NSError* error);
    /// Notes that a file of another name is about to take the place of one in the folder; the former name is empty
    /// where that goes at once.
    bool noteExchange(const RecordFolder& folder, std::string_view former, std::string_view name, NSError* error);
    /// Notes that the record's folder, or with a name that file in it, is about to be moved aside; where to.
    std::optional<std::filesystem::path> noteAside(
        const RecordFolder& folder, std::string_view filename, NSError* error);
    /// Where nothing lies yet, in the same folder.
    std::filesystem::path unusedURL();

    /// What a line of a journal says.
    struct Line {
        RecordFolder folder;
        bool isNew = false;          ///< the folder was about to be made
        std::string filename;        ///< of a file that was moved aside or exchanged; empty for the whole folder
        std::string exchangedFor;    ///< the name of the file that took its place; empty where none did
        std::filesystem::path aside; ///< where it lies, if it does; empty when nothing was to be moved
    };
    /// What a process left that died: a folder that is held from now on, and the lines of its journal, those that were
    /// written whole.
    struct Abandoned {
        HeldFolder folder;
        std::vector<Line> lines;
    };
    /// The journals that processes left which died while this store had unsaved changes.
    static std::vector<Abandoned> abandonedForStore(std::string_view storeUUID);
    /// A journal as it lies there.
    struct Sighting {
        std::filesystem::path url; ///< of its folder
        bool isHeld = false;       ///< by a living process, this one included: what it says is under way
        bool isOfStore = false;    ///< not of another store that had its files here
        std::vector<Line> lines;
    };
    /// All journals, whoever has them. Looking takes nothing over.
    static std::vector<Sighting> journalsInSight(std::string_view storeUUID);

private:
    FileJournal(HeldFolder folder, int descriptor);
    bool append(std::string line, NSError* error);

    std::mutex mutex_;
    HeldFolder folder_;
    int descriptor_; ///< of the journal
    std::size_t nextAside_ = 0;
};

} // namespace tarn
